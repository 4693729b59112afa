#ifndef FRAGSMITH_TESTS_SUPPORT_IDS_H_
#define FRAGSMITH_TESTS_SUPPORT_IDS_H_

#include <stdexcept>

#include "model/chat_type_id.h"
#include "model/parameter_id.h"

namespace fragsmith {

/// A parameter by the number that tests write it as: its index, or, at a skill
/// level, level x 100 + index.
inline ParameterId Id(int number) {
  const ParameterId id = ParameterId::OfNumber(number);
  constexpr int kFirstOfLevels = 100;
  if (number >= kFirstOfLevels && !id.level()) {
    throw std::out_of_range("no level of that number");
  }
  return id;
}

inline ChatTypeId TypeAt(int index) { return ChatTypeOfIndex(index).value(); }

/// Takes either form, for the helpers of tests.
struct IdNumber : ParameterId {
  IdNumber(int number) : ParameterId(Id(number)) {}  // NOLINT: on purpose.
  IdNumber(ParameterId id) : ParameterId(id) {}      // NOLINT
};
inline ParameterId Id(const IdNumber& id) { return id; }

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_SUPPORT_IDS_H_
