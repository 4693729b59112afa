#include "game/bot_kinds.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "checks/bot_checks.h"
#include "game/ready_lines.h"
#include "game/weapon_order.h"
#include "model/characteristic_catalogue.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// With two of the ready-made lines, one of them too long to be shown.
GameData SmallGame() {
  GameData game;
  game.words = WordLists::Parse("MISC2 = { \"Nice.\"; } MISC5 = { \"" +
                                std::string(140, 'x') + "\"; }");
  game.has_weapon_script = true;
  game.has_item_script = true;
  return game;
}

double At(const Bot& bot, const IdNumber& id) {
  return ToNumber(bot.Parameter(Id(id))).value();
}

TEST(BotKinds, HaveNoErrorAndNoWarning) {
  const GameData game = SmallGame();
  for (const BotKind kind : kBotKinds) {
    for (std::uint32_t seed = 0; seed < 200; ++seed) {
      for (const GameData* const known :
           {static_cast<const GameData*>(nullptr), &game}) {
        const Bot bot =
            CreateBotOfKind(kind, seed, known ? &known->words : nullptr);
        for (const Finding& finding : CheckBot(bot, known)) {
          EXPECT_EQ(finding.severity, Severity::kHint)
              << TextOf(kind).key << " " << seed << ": " << finding.text;
        }
      }
    }
  }
}

TEST(BotKinds, GetBetterFromLevelToLevel) {
  for (const BotKind kind : kBotKinds) {
    for (std::uint32_t seed = 0; seed < 200; ++seed) {
      const Bot bot = CreateBotOfKind(kind, seed, nullptr);
      for (int index = 2; index <= 30; ++index) {
        // How it likes to play is no skill.
        if (index >= 8 && index <= 16) continue;
        const double low = At(bot, 100 + index);
        const double high = At(bot, 400 + index);
        const double best = At(bot, 500 + index);
        const bool falls = index == kReactionTimeIndex;
        EXPECT_TRUE(falls ? low > high && high > best
                          : low < high && high < best)
            << TextOf(kind).key << " " << seed << " " << index;
      }
    }
  }
}

TEST(BotKinds, TakeTheWeaponsOfTheirDistances) {
  const auto best_at = [](BotKind kind, double distance) {
    return WeaponOrder(CreateBotOfKind(kind, 0, nullptr), distance)
        .front()
        .weapon.index();
  };
  constexpr int kRockets = 48;
  constexpr int kRailgun = 49;
  constexpr int kLightning = 51;
  EXPECT_EQ(best_at(BotKind::kSniper, 300), kRailgun);
  EXPECT_EQ(best_at(BotKind::kSniper, 5000), kRailgun);
  EXPECT_EQ(best_at(BotKind::kRusher, 300), kLightning);
  EXPECT_EQ(best_at(BotKind::kRusher, 1500), kRockets);
  EXPECT_EQ(best_at(BotKind::kAllRounder, 300), kLightning);
  EXPECT_EQ(best_at(BotKind::kAllRounder, 1500), kRockets);
  EXPECT_EQ(best_at(BotKind::kAllRounder, 5000), kRailgun);
  // Only at a spot with one of these does the game let a bot camp.
  EXPECT_THAT(best_at(BotKind::kCamper, 1500),
              testing::AnyOf(kRockets, kRailgun));
}

TEST(BotKinds, SpeakLinesOfTheGameOrOfOurs) {
  const GameData game = SmallGame();
  const Bot with = CreateBotOfKind(BotKind::kSniper, 3, &game.words);
  EXPECT_THAT(with.ChatLines(TypeAt(27)),
              ElementsAre(PlainChatLine(TypeAt(27)), "{{MISC2}}"));
  EXPECT_THAT(with.ChatLines(TypeAt(23)), ElementsAre(""));
  const Bot without = CreateBotOfKind(BotKind::kSniper, 3, nullptr);
  EXPECT_THAT(without.ChatLines(TypeAt(27)),
              ElementsAre(PlainChatLine(TypeAt(27))));
}

TEST(BotKinds, AreDrawnBySeedAlone) {
  const auto draw = [](std::uint32_t seed) {
    return CreateBotOfKind(BotKind::kSurprise, seed, nullptr);
  };
  EXPECT_EQ(draw(7), draw(7));
  EXPECT_NE(draw(7), draw(8));
}

}  // namespace
}  // namespace fragsmith
