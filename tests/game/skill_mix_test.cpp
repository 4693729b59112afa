#include "game/skill_mix.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

#include "game/weapon_order.h"
#include "model/characteristic_catalogue.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using enum ValueOrigin;
using ::testing::ElementsAre;

Bot WithLevels(int index, const std::array<Value, 3>& values) {
  Bot bot;
  for (std::size_t place = 0; place < values.size(); ++place) {
    EXPECT_TRUE(bot.SetParameter(ParameterId(kLevels.at(place), index),
                                 values.at(place)));
  }
  return bot;
}

TEST(SkillMix, FollowsTheGamesRules) {
  struct Row {
    int index;
    std::array<Value, 3> levels;
    double skill;
    ValueOrigin origin;
    double value;
    double used;
  };
  const double fraction = 0.25;
  for (const Row& row : std::vector<Row>{
           {2, {0.25, 0.55, 0.75}, 1, kLevel, 0.25, 0.25},
           {2, {0.25, 0.55, 0.75}, 2, kMixed, 0.35, 0.35},
           {2, {0.25, 0.55, 0.75}, 3, kMixed, 0.45, 0.45},
           {2, {0.25, 0.55, 0.75}, 4.5, kMixed, 0.65, 0.65},
           {2, {0.25, 0.55, 0.75}, 5, kLevel, 0.75, 0.75},
           {2, {0.25, 0.55, 0.75}, 9, kLevel, 0.75, 0.75},
           // 0 and 1 have a point in the file, other whole numbers not.
           {2, {0.0, 1.0, 1.0}, 2.5, kMixed, 0.5, 0.5},
           {7, {2.5, 2.0, 0.5}, 2, kNone, 0, 0},
           {7, {2.5, 2.0, 0.5}, 4, kLevel, 2, 1},
           {7, {2.5, 2.0, 0.5}, 4.5, kLower, 2, 1},
           {7, {3.0, 0.5, 0.5}, 3, kLower, 3, 1},
           {6, {180.0, 300.0, 360.0}, 3.5, kLower, 180, 240},
           {6, {1.0, 300.0, 360.0}, 3.5, kNone, 0, 240},
           {6, {1.0, 300.0, 2000.0}, 5, kLevel, 2000, 1800},
           {5, {0.0, fraction, fraction}, 1, kLevel, 0, 0.01},
           {3, {"clever", 0.5, 0.5}, 3, kText, 0, 0},
           {3, {0.5, "clever", 0.5}, 3, kNone, 0, 0},
           {20, {0.0, 0.5, 0.5}, 1, kDefault, 0, 0},
           {20, {0.0, 0.5, 0.5}, 2, kDefault, 0, 0},
           {20, {0.5, 0.0, 0.5}, 2, kDefault, 0, 0},
           {20, {0.5, 0.5, 0.5}, 2, kMixed, 0.5, 0.5}}) {
    const ValueAtSkill mixed = MixSkill(WithLevels(row.index, row.levels),
                                        ParameterAt(row.index), row.skill);
    SCOPED_TRACE(testing::Message() << row.index << " at " << row.skill);
    EXPECT_EQ(mixed.origin, row.origin);
    EXPECT_NEAR(mixed.value, row.value, 1e-9);
    EXPECT_NEAR(mixed.used, row.used, 1e-9);
  }
}

std::vector<double> ThresholdValues(int index) {
  std::vector<double> values;
  for (const Threshold& threshold : ThresholdsOf(ParameterAt(index))) {
    values.push_back(threshold.value);
  }
  return values;
}

TEST(SkillMix, KnowsThresholdsInTheirOrder) {
  EXPECT_THAT(ThresholdValues(2), ElementsAre(0.2, 0.3, 0.4, 0.7));
  EXPECT_THAT(ThresholdValues(8), ElementsAre());
  // The game treats all weapons alike, but that plasma is not shot at corners.
  for (int accuracy = 18; accuracy <= 25; ++accuracy) {
    EXPECT_THAT(ThresholdValues(accuracy), ElementsAre(0.8, 0.9)) << accuracy;
  }
  for (const int skill : {26, 27, 29}) {
    EXPECT_THAT(ThresholdValues(skill), ElementsAre(0.4, 0.5, 0.6, 0.8, 0.9))
        << skill;
  }
  EXPECT_THAT(ThresholdValues(28), ElementsAre(0.4, 0.6, 0.8, 0.9));
  for (const int index : kPerLevelRange) {
    const ParameterId id = ParameterAt(index);
    double last = 0;
    for (const Threshold& threshold : ThresholdsOf(id)) {
      EXPECT_EQ(threshold.index, index);
      EXPECT_GT(threshold.value, last);
      last = threshold.value;
    }
    // What begins somewhere is read.
    EXPECT_TRUE(ThresholdsOf(id).empty() || IsReadByGame(id)) << index;
  }
}

std::vector<int> Indices(const std::vector<WeaponRank>& order) {
  std::vector<int> indices;
  for (const WeaponRank& rank : order) {
    indices.push_back(rank.weapon.index());
  }
  return indices;
}

TEST(WeaponOrder, PutsTiesInTheGamesOrder) {
  Bot bot;
  for (const auto& [index, weight] :
       {std::pair(52, 50.0), std::pair(49, 50.0), std::pair(46, 50.0),
        std::pair(44, 5.0), std::pair(53, 400.0)}) {
    ASSERT_TRUE(bot.SetParameter(Id(index), weight));
  }
  const std::vector<WeaponRank> order = WeaponOrder(bot);
  EXPECT_THAT(Indices(order),
              ElementsAre(53, 46, 49, 52, 44, 45, 47, 48, 51, 50));
  std::vector<bool> ties;
  for (const WeaponRank& rank : order) ties.push_back(rank.is_tied);
  EXPECT_THAT(ties, ElementsAre(false, false, true, true, false, false, false,
                                false, false, false));
  EXPECT_EQ(PickupOf(Id(45)), Id(56));
  EXPECT_EQ(PickupOf(Id(52)), Id(63));
  EXPECT_EQ(PickupOf(kGauntletUsage), std::nullopt);
}

TEST(WeaponOrder, LeavesOutWhatDoesNotReach) {
  Bot bot;
  for (const ParameterId weapon : kWeaponsInGameOrder) {
    bot.Put(weapon, 50.0);
  }
  const auto count_at = [&bot](double distance) {
    const std::vector<WeaponRank> order = WeaponOrder(bot, distance);
    return std::count_if(order.begin(), order.end(),
                         [](const auto& rank) { return rank.weight > 0; });
  };
  const std::ptrdiff_t all = std::ssize(kWeaponsInGameOrder);
  EXPECT_EQ(count_at(600), all);
  EXPECT_EQ(count_at(601), all - 2);
  EXPECT_EQ(count_at(768), all - 2);
  EXPECT_EQ(count_at(769), all - 3);
  EXPECT_EQ(count_at(800), all - 3);
  EXPECT_EQ(count_at(801), all - 4);
  EXPECT_EQ(count_at(2000), all - 4);
  EXPECT_EQ(count_at(2001), all - 5);
  EXPECT_EQ(count_at(4000), all - 5);
  const std::vector<WeaponRank> furthest = WeaponOrder(bot, 4001);
  EXPECT_THAT(Indices(furthest),
              ElementsAre(44, 49, 50, 53, 46, 45, 47, 48, 51, 52));
}

}  // namespace
}  // namespace fragsmith
