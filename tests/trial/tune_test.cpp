#include "trial/tune.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "support/random.h"

namespace fragsmith {
namespace {

constexpr int kMachinegunAccuracy = 18;

TEST(Strength, MovesAllLevelsBetweenTheEnds) {
  Bot bot = CreateAverageBot(SeededRandom(1));
  const ParameterId reaction(Level::k4, kReactionTimeIndex);
  const ParameterId attack(Level::k1, kAttackSkillIndex);
  const ParameterId machinegun(Level::k5, kMachinegunAccuracy);
  bot.Put(reaction, 0.6);
  bot.Put(attack, std::string("ODD"));
  bot.Put(machinegun, 0.0);
  EXPECT_EQ(WithStrength(bot, 0), bot);
  const Bot stronger = WithStrength(bot, 0.5);
  EXPECT_EQ(stronger.Text(reaction), "0.3");
  EXPECT_EQ(stronger.Text(attack), "ODD");
  // Half of the way from what the game gives to one that leaves it out.
  EXPECT_EQ(stronger.Text(machinegun), "0.85");
  const Bot weakest = WithStrength(bot, -1);
  EXPECT_EQ(weakest.Text(reaction), "1");
  EXPECT_EQ(weakest.Text(machinegun), "0.01");
  // Beyond an end, a value is not moved back.
  EXPECT_EQ(weakest.Text({Level::k5, kReactionTimeIndex}), "2");
  EXPECT_EQ(weakest.Text({Level::k4, kViewMaxChangeIndex}), "180");
  EXPECT_EQ(stronger.Text(kArmorWeight), bot.Text(kArmorWeight));
}

/// A match of a bot whose share follows its strength.
MatchTally MatchAt(double strength, double share_at_zero, double slope,
                   const RandomSource& random) {
  const double odds = std::log(share_at_zero / (1 - share_at_zero));
  const double share = 1 / (1 + std::exp(-odds - slope * strength));
  const double luck = share + 0.2 * (random() - 0.5);
  constexpr int kFrags = 30;
  int own = 0;
  for (int frag = 0; frag < kFrags; ++frag) own += random() < luck ? 1 : 0;
  return {.minutes = 5, .bots = {{.score = own}, {.score = kFrags - own}}};
}

TuneState Tune(Tuner& tuner, double share_at_zero, double slope,
               const RandomSource& random) {
  for (int match = 0; match < 5000; ++match) {
    if (tuner.state() != TuneState::kOpen) break;
    tuner.Take(MatchAt(tuner.strength(), share_at_zero, slope, random));
  }
  return tuner.state();
}

TEST(Tuner, FindsTheStrengthThatTakesTheShare) {
  const RandomSource random = SeededRandom(5);
  int found = 0;
  for (int run = 0; run < 50; ++run) {
    Tuner tuner(0.5, 0.05);
    if (Tune(tuner, 0.75, 2, random) != TuneState::kFound) continue;
    // The truth is -0.55; 5 points in a hundred are 0.1 of strength.
    if (std::abs(tuner.strength() + 0.55) < 0.11) ++found;
    EXPECT_EQ(tuner.steps().at(1).strength, -1);
  }
  EXPECT_GE(found, 45);
}

TEST(Tuner, SaysWhenThereIsNone) {
  const RandomSource random = SeededRandom(6);
  Tuner far(0.3, 0.05);
  EXPECT_EQ(Tune(far, 0.95, 0.5, random), TuneState::kOutOfReach);
  EXPECT_EQ(far.strength(), -1);
  EXPECT_EQ(far.steps().size(), 2U);
  EXPECT_FALSE(far.Take(MatchAt(0, 0.5, 0, random)));
  // A leap at a strength of 0.3: from nothing to all.
  Tuner leap(0.5, 0.05);
  while (leap.state() == TuneState::kOpen) {
    leap.Take(MatchAt(0, leap.strength() > 0.3 ? 0.95 : 0.05, 0, random));
  }
  EXPECT_EQ(leap.state(), TuneState::kTooFine);
  EXPECT_NEAR(leap.strength(), 0.3, 0.03);
}

}  // namespace
}  // namespace fragsmith
