#include "checks/mend_all.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "checks/bot_checks.h"
#include "checks/odd_values.h"
#include "game/ready_lines.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "tests/support/ids.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

using ::testing::AllOf;
using ::testing::AnyOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Ne;
using ::testing::StartsWith;

/// A game with few of the ready-made lines, one of them too long to be shown.
GameData SmallGame() {
  GameData game;
  game.models = {"sarge"};
  game.skins = {"sarge/default"};
  game.words = WordLists::Parse(
      "TAUNT3 = { \"Ha!\"; } MISC2 = { \"Nice \", food, \".\"; }\n"
      "MISC5 = { \"" +
      std::string(140, 'x') + "\"; } food = { \"soup\"; }");
  game.has_weapon_script = true;
  game.has_item_script = true;
  return game;
}

std::vector<std::string> ErrorsAndWarnings(const Bot& bot,
                                           const GameData* game) {
  std::vector<std::string> texts;
  for (const Finding& finding : CheckBot(bot, game)) {
    if (finding.severity != Severity::kHint) texts.push_back(finding.text);
  }
  return texts;
}

TEST(MendAll, MakesEachNewBotReadyForAnyGame) {
  const GameData small = SmallGame();
  for (const GameData* const game :
       {static_cast<const GameData*>(nullptr), &small}) {
    Bot zeros = CreateZeroBot();
    // It has no weapon to draw yet, and no other fault of that weight.
    EXPECT_THAT(CheckBot(zeros, game),
                Each(AnyOf(Field(&Finding::id, "no-weapon-at-start"),
                           Field(&Finding::severity, Ne(Severity::kError)))));
    EXPECT_GT(MendAll(zeros, game, FirstMend), 0);
    EXPECT_THAT(ErrorsAndWarnings(zeros, game), IsEmpty());
    for (std::uint32_t seed = 0; seed < 30; ++seed) {
      Bot bot = CreateAverageBot(SeededRandom(seed));
      EXPECT_GT(MendAll(bot, game, FirstMend), 0);
      EXPECT_THAT(ErrorsAndWarnings(bot, game), IsEmpty()) << seed;
      EXPECT_EQ(MendAll(bot, game, FirstMend), 0);
      // Nobody's lines need to be saved from the types that nobody hears, and
      // all others have one.
      for (const ChatTypeId type : kAllChatTypes) {
        EXPECT_EQ(
            bot.ChatLine(type, ChatLineIndex(0)).empty(),
            IndexOf(type) == 1 || IndexOf(type) == 2 || IndexOf(type) == 23);
      }
    }
  }
}

TEST(MendAll, LeavesWhatTheAuthorMeant) {
  Bot bot = CreateAverageBot([] { return 0.0; });
  Set(bot, Id(0), std::string("NameOfSeventeen17"));
  bot.SetChatLine(TypeAt(23), ChatLineIndex(0), "Typed by hand");
  bot.SetChatLine(TypeAt(26), ChatLineIndex(0), "I {HAVE} braces");
  MendAll(bot, nullptr, SafeMend);
  EXPECT_EQ(bot.Name(), "NameOfSeventeen17");
  EXPECT_THAT(bot.ChatLines(TypeAt(23)), ElementsAre("Typed by hand"));
  EXPECT_THAT(bot.ChatLines(TypeAt(26)), ElementsAre("I {HAVE} braces"));
  EXPECT_EQ(bot.Parameter(Id(107)), Value(1.0));
  for (const Finding& finding : CheckBot(bot, nullptr)) {
    EXPECT_EQ(SafeMend(finding), nullptr) << finding.text;
  }
}

TEST(MendAll, CountsEachMendOnceAndOnlyTheChosen) {
  Bot bot = CreateAverageBot([] { return 0.0; });
  // Three findings of one kind: the first one mends all levels.
  const auto reaction = [](const Finding& finding) -> const Mend* {
    return finding.id == "reaction-time-clamped" ? FirstMend(finding) : nullptr;
  };
  EXPECT_EQ(MendAll(bot, nullptr, reaction), 1);
  EXPECT_EQ(bot.Parameter(Id(507)), Value(1.0));
  EXPECT_EQ(bot.Parameter(Id(44)), Value(50.0));
}

/// Weights with comments behind them, which columns make texts of.
TEST(MendAll, TakesNothingThatTheGameHasInTheFile) {
  Bot bot = CreateAverageBot(SeededRandom(0));
  LoadReport report;
  for (const int index : kWeaponWeightRange) {
    Set(bot, Id(index), std::string("// mine"));
    report.odd_values[Id(index)] = {.read = std::string("// mine"),
                                    .plain = index + 0.5};
  }
  // The user's own by now, and one that was read as the game does.
  Set(bot, Id(49), 400.0);
  report.odd_values[Id(50)].plain = std::string("// mine");

  std::vector<Finding> findings = CheckBot(bot, nullptr);
  TellOddValues(bot, report, findings);
  for (Finding& finding : findings) {
    if (finding.place != BotPlace(Id(46))) continue;
    EXPECT_THAT(finding.text,
                AllOf(StartsWith("The load read \"// mine\" for "
                                 "\"Machinegun usage\", while the game has "
                                 "46.5 from the file."),
                      HasSubstr("\"Take the values as the game reads them\"")));
    Bot mended = bot;
    FirstMend(finding)->apply(mended);
    EXPECT_EQ(mended.Parameter(Id(46)), Value(46.5));
  }

  for (const MendChoice& choice :
       {MendChoice(SafeMend), MendChoice(FirstMend)}) {
    Bot mended = bot;
    EXPECT_GT(MendAll(mended, nullptr, choice, report), 0);
    for (const int index : kWeaponWeightRange) {
      if (index == 49 || index == 50) continue;
      EXPECT_EQ(mended.Parameter(Id(index)), Value(index + 0.5)) << index;
    }
    EXPECT_EQ(mended.Parameter(Id(49)), Value(400.0));
    EXPECT_EQ(mended.Parameter(Id(50)), Value(0.0));
  }
  // Where one place alone is mended that sets others too.
  Set(bot, Id(54), 0.0);
  for (int index = 55; index <= kItemWeightRange.last; ++index) {
    Set(bot, Id(index), std::string("// mine"));
    report.odd_values[Id(index)] = {.read = std::string("// mine"),
                                    .plain = 7.0};
  }
  MendAll(
      bot, nullptr,
      [](const Finding& finding) {
        return finding.place == BotPlace(Id(54)) ? FirstMend(finding) : nullptr;
      },
      report);
  EXPECT_EQ(bot.Parameter(Id(55)), Value(7.0));
}

TEST(ReadyLines, AreThoseThatTheGameHasAndShowsWhole) {
  const GameData game = SmallGame();
  EXPECT_THAT(ReadyMadeLines(TypeAt(27), game.words), ElementsAre("{{MISC2}}"));
  Bot bot;
  EXPECT_EQ(OtherChatLine(bot, TypeAt(27), game.words), "{{MISC2}}");
  bot.SetChatLine(TypeAt(27), ChatLineIndex(0), "{{MISC2}}");
  EXPECT_EQ(OtherChatLine(bot, TypeAt(27), game.words),
            PlainChatLine(TypeAt(27)));
}

}  // namespace
}  // namespace fragsmith
