#include "session/presets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;

TEST(Presets, AverageHasItsOwnValues) {
  const Bot bot = CreateAverageBot([] { return 0.0; });
  for (int index = 2; index <= 30; ++index) {
    const char* expected = index == 6 ? "180" : index == 7 ? "2" : "0.5";
    for (const Level level : kLevels) {
      EXPECT_EQ(bot.Text(ParameterId(level, index)), expected) << index;
    }
  }
  for (int index = 31; index <= 80; ++index) {
    const char* rest = index <= 43 ? "0.5" : "50";
    EXPECT_EQ(bot.Text(Id(index)), index == 31   ? "200"
                                   : index == 54 ? "1"
                                   : index == 55 ? "2"
                                                 : rest);
  }
  EXPECT_THAT(bot.ChatLines(TypeAt(20)), ElementsAre("{{DEATHRAIL0}}"));
}

TEST(Presets, ZerosAreZerosAndNotEmpty) {
  const Bot bot = CreateZeroBot();
  for (const int index : {102, 430, 530, 31, 43, 44, 80}) {
    EXPECT_EQ(bot.Parameter(Id(index)), Value(0.0)) << index;
  }
  EXPECT_THAT(bot.ChatLines(TypeAt(0)), ElementsAre(""));
}

}  // namespace
}  // namespace fragsmith
