#ifndef FRAGSMITH_FUZZ_KEPT_VALUES_H_
#define FRAGSMITH_FUZZ_KEPT_VALUES_H_

#include <string_view>

#include "model/bot.h"
#include "model/characteristic_catalogue.h"
#include "model/value.h"

namespace fragsmith {

/// Expects the value that a file was written from in what was read out of it:
/// the same text, or the number without its sign in the digits that a file
/// has. A text that is a number with a point is not compared: files hold
/// numbers, and of these they lose the fourth digit behind the point.
void ExpectKept(const Value& before, const Value& after, ParameterId id);

/// The same for all parameters of the range. Values that a file has only when
/// they are above 0 are empty without.
void ExpectKept(const Bot& before, const Bot& after, IndexRange range);

/// True when one of the parameters is a text that holds the part: what a file
/// cannot tell from its own syntax is excepted from an expectation.
bool HasTextWith(const Bot& bot, IndexRange range, std::string_view part);

/// True when one of them is a text that is a number with a point.
bool HasPointInText(const Bot& bot, IndexRange range);

}  // namespace fragsmith

#endif  // FRAGSMITH_FUZZ_KEPT_VALUES_H_
