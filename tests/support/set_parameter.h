#ifndef FRAGSMITH_TESTS_SUPPORT_SET_PARAMETER_H_
#define FRAGSMITH_TESTS_SUPPORT_SET_PARAMETER_H_

#include <gtest/gtest.h>

#include <utility>

#include "model/bot.h"

namespace fragsmith {

/// Sets what a test needs; the test fails where the bot refuses it.
inline void Set(Bot& bot, ParameterId id, Value value) {
  const Result<void> set = bot.SetParameter(id, std::move(value));
  EXPECT_TRUE(set) << id.number();
}

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_SUPPORT_SET_PARAMETER_H_
