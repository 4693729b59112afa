#include "model/value_scale.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/level_linking.h"

namespace fragsmith {
namespace {

ValueScale One(int max) { return OneSliderScale(max).value(); }
ValueScale Three(int max) { return ThreeSliderScale(max).value(); }

TEST(ValueScale, TurnsPositionsIntoTexts) {
  // clang-format off
  const struct {
    ValueScale scale;
    int position;
    std::string_view text;
  } cases[] = {
      {Three(1), 1, "0.05"}, {Three(1), 3, "0.15"}, {Three(1), 13, "0.65"},
      {One(1), 10, "0.5"}, {One(1), 20, "1.0"}, {Three(5), 7, "1.75"},
      {Three(360), 72, "360"}, {Three(1000), 1, "10"}, {One(1000), 1, "5"},
      {One(400), 0, "No"}, {One(360), 7, "7"}, {One(4), 3, "3"}};
  // clang-format on
  for (const auto& row : cases) {
    const double value = ValueOf(row.position, row.scale);
    EXPECT_EQ(ValueText(value, row.scale, true), row.text);
  }
  EXPECT_EQ(ValueText(0.0, One(1), false), "0.0");
  EXPECT_EQ(ValueText({}, One(400), false), "0");
}

TEST(ValueScale, ReachesItsMaximumAndComesBack) {
  for (const int max : {1, 5, 4, 360, 400, 600, 1000}) {
    for (const auto& scale : {OneSliderScale(max), ThreeSliderScale(max)}) {
      if (!scale) continue;
      EXPECT_EQ(ValueOf(scale->positions, *scale), max);
      for (int position = 0; position <= scale->positions; ++position) {
        EXPECT_EQ(PositionOf(ValueOf(position, *scale), *scale), position);
      }
    }
  }
  EXPECT_FALSE(ThreeSliderScale(600) || ThreeSliderScale(4));
}

TEST(ValueScale, ShowsValuesBesideItsGridAsTheyAre) {
  const std::pair<double, int> positions[] = {
      {0.12, 2}, {-1, 0}, {1e300, 20}, {std::nan(""), 0}};
  for (const auto& [value, position] : positions) {
    EXPECT_EQ(PositionOf(value, One(1)), position);
  }
  EXPECT_EQ(ValueText(0.01F, One(1), true), "0.01");
  EXPECT_EQ(ValueText("odd", One(1), true), "odd");
  EXPECT_EQ(WeightMaximumFor(400), 400);
  EXPECT_EQ(WeightMaximumFor(400.5), 600);
  EXPECT_EQ(WeightMaximumFor(5000), 1000);
}

TEST(LevelLinking, MovesNeighboursOnlyAsFarAsNeeded) {
  constexpr auto kRising = LevelLinking::kRising;
  constexpr auto kFalling = LevelLinking::kFalling;
  const struct {
    LevelLinking linking;
    Level moved;
    LevelNumbers before;
    LevelNumbers after;
    std::vector<Level> changed;
  } cases[] = {
      {LevelLinking::kNone, Level::k1, {15, 10, 5}, {15, 10, 5}, {}},
      {kRising, Level::k1, {15, 10, 20}, {15, 15, 20}, {Level::k4}},
      {kRising, Level::k1, {18, 10, 12}, {18, 18, 18}, {Level::k4, Level::k5}},
      {kRising, Level::k1, {10, 10, 12}, {10, 10, 12}, {}},
      {kRising, Level::k4, {5, 3, 12}, {3, 3, 12}, {Level::k1}},
      {kRising, Level::k4, {5, 13, 12}, {5, 13, 13}, {Level::k5}},
      {kRising, Level::k4, {8, 6, 4}, {6, 6, 6}, {Level::k1, Level::k5}},
      {kRising, Level::k5, {5, 8, 2}, {2, 2, 2}, {Level::k4, Level::k1}},
      {kFalling, Level::k1, {15, 10, 5}, {15, 10, 5}, {}},
      {kFalling, Level::k1, {4, 10, 8}, {4, 4, 4}, {Level::k4, Level::k5}},
      {kFalling, Level::k4, {9, 12, 5}, {12, 12, 5}, {Level::k1}},
      {kFalling, Level::k4, {9, 3, 5}, {9, 3, 3}, {Level::k5}},
      {kFalling, Level::k5, {9, 5, 12}, {12, 12, 12}, {Level::k4, Level::k1}},
      {kRising, Level::k1, {0.36, 0.35, 1.5}, {0.36, 0.36, 1.5}, {Level::k4}},
      // Out of order before: who stays passes nothing on.
      {kRising, Level::k1, {5, 10, 3}, {5, 10, 3}, {}},
      {kFalling, Level::k1, {5, 4, 8}, {5, 4, 8}, {}}};
  for (const auto& row : cases) {
    LevelNumbers numbers = row.before;
    EXPECT_EQ(LinkLevels(row.linking, row.moved, numbers), row.changed);
    EXPECT_EQ(numbers, row.after);
  }
}

}  // namespace
}  // namespace fragsmith
