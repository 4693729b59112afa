#include "checks/bot_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "session/presets.h"
#include "tests/checks/bot_check_cases.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

std::vector<Finding> Only(std::vector<Finding> findings,
                          const std::string& id) {
  std::erase_if(findings,
                [&id](const Finding& finding) { return finding.id != id; });
  return findings;
}

TEST(BotChecks, SayNothingOfACleanBot) {
  const GameData game = SomeGame();
  for (const Finding& finding : CheckBot(CleanBot(), &game)) {
    ADD_FAILURE() << finding.id << ": " << finding.text;
  }
  const std::vector<Finding> without_game = CheckBot(CleanBot(), nullptr);
  ASSERT_EQ(without_game.size(), 1U);
  EXPECT_EQ(without_game[0].id, "game-not-checked");
  EXPECT_EQ(without_game[0].severity, Severity::kHint);
}

TEST(BotChecks, FindWhatIsThereAndNothingMore) {
  std::set<std::string> seen = {"game-not-checked"};
  for (const BotCheckCase& row : BotCheckCases()) {
    seen.insert(row.id);
    Bot bot = CleanBot();
    GameData game = SomeGame();
    row.brings(bot, game);
    const std::vector<Finding> found = Only(CheckBot(bot, &game), row.id);
    EXPECT_FALSE(found.empty()) << row.id;
    for (const Finding& finding : found) {
      EXPECT_TRUE(finding.text.ends_with('.')) << finding.text;
      // Every mend does what it says: the same is not found again.
      for (const Mend& mend : finding.mends) {
        Bot mended = bot;
        mend.apply(mended);
        for (const Finding& left : Only(CheckBot(mended, &game), row.id)) {
          EXPECT_FALSE(left.place == finding.place)
              << mend.title << ": " << left.text;
        }
      }
    }
    Bot other = CleanBot();
    GameData other_game = SomeGame();
    row.nearly(other, other_game);
    for (const Finding& finding : Only(CheckBot(other, &other_game), row.id)) {
      ADD_FAILURE() << row.id << ": " << finding.text;
    }
  }
  for (const Check& check : BotChecks()) {
    EXPECT_TRUE(seen.contains(std::string(check.id)))
        << check.id << " is not tried";
  }
}

TEST(BotChecks, TellWhichMenusANameIsTooLongFor) {
  const GameData game = SomeGame();
  const auto told = [&game](std::size_t length) {
    Bot bot = CleanBot();
    bot.Put(kNameField, std::string(length, 'x'));
    const auto found = Only(CheckBot(bot, &game), "name-too-long-for-menus");
    return found.empty() ? "nothing" : found.front().text;
  };
  EXPECT_THAT(told(31), Not(HasSubstr("add bots")));
  EXPECT_THAT(told(32), HasSubstr("add bots"));
  EXPECT_THAT(told(45), HasSubstr("add bots"));
  // Another finding tells of what the game does not add at all.
  EXPECT_EQ(told(46), "nothing");
}

TEST(BotChecks, NameThePlaceAndItsFile) {
  Bot bot = CleanBot();
  GameData game = SomeGame();
  Chat(kDeathInsult, "fine")(bot, game);
  bot.SetChatLine(kDeathInsult, ChatLineIndex(2), "\\o/");
  Set(107, 2.0)(bot, game);
  Set(60, "much")(bot, game);
  Set(45, "much")(bot, game);
  const auto place = [&](const std::string& id) {
    return Only(CheckBot(bot, &game), id).at(0).place;
  };
  const BotPlace line = place("chat-backslash");
  EXPECT_EQ(line, BotPlace(ChatPlace{.type = kDeathInsult,
                                     .line = ChatLineIndex(2)}));
  EXPECT_EQ(ChatPlaceText(line), "\"Bot dies (negative)\", line 3");
  EXPECT_EQ(FileOfPlace(bot, line), "rookie_t.c");
  EXPECT_EQ(place("reaction-time-clamped"), BotPlace(Id(107)));
  EXPECT_EQ(FileOfPlace(bot, place("reaction-time-clamped")), "rookie_c.c");
  EXPECT_EQ(FileOfPlace(bot, place("weight-not-a-number")), "rookie_w.c");
  EXPECT_EQ(FileOfPlace(bot, Id(60)), "rookie_i.c");
  EXPECT_EQ(FileOfPlace(bot, kFunNameField), "rookie.bot");
}

TEST(BotChecks, MendTextsAsTheirTitlesSay) {
  const GameData game = SomeGame();
  const auto mended = [&game](const std::string& line, const std::string& id,
                              std::size_t which = 0) {
    Bot bot = CleanBot();
    bot.SetChatLine(kDeathInsult, ChatLineIndex(0), line);
    Only(CheckBot(bot, &game), id).at(0).mends.at(which).apply(bot);
    return bot.ChatLine(kDeathInsult, ChatLineIndex(0));
  };
  EXPECT_EQ(mended("caf\xE9;  50% // \x84hm\x93", "chat-characters-changed"),
            "cafe, 50 percent / 'hm'");
  EXPECT_EQ(mended("\\o/ \\\\ \\n \\", "chat-backslash"),
            "\\\\o/ \\\\ \\n \\\\");
  EXPECT_EQ(mended("\\o/", "chat-backslash", 1), "o/");
  EXPECT_EQ(mended("a \"b\"", "chat-quote"), "a 'b'");
}

TEST(BotChecks, BringNoErrorByAMend) {
  const GameData game = SomeGame();
  const auto errors = [&game](const Bot& bot) {
    const std::vector<Finding> findings = CheckBot(bot, &game);
    return std::count_if(findings.begin(), findings.end(),
                         [](const Finding& finding) {
                           return finding.severity == Severity::kError;
                         });
  };
  for (const Bot& bot : {CreateZeroBot(), CreateAverageBot(SeededRandom(1))}) {
    int mends = 0;
    for (const Finding& finding : CheckBot(bot, &game)) {
      for (const Mend& mend : finding.mends) {
        Bot mended = bot;
        mend.apply(mended);
        EXPECT_LE(errors(mended), errors(bot)) << mend.title;
        ++mends;
      }
    }
    EXPECT_GT(mends, 0);
  }
}

TEST(BotChecks, NameParametersAsTheWindowDoes) {
  Bot bot = CleanBot();
  const GameData game = SomeGame();
  for (const auto& [index, value, id, text] :
       {std::tuple(407, 2.0, "level-mix-gap",
                   "has no \"Reaction time\" at all"),
        std::tuple(520, 0.0, "default-character-decides",
                   "\"Rocket launcher aim accuracy\" is \"No\" at level 5:"),
        std::tuple(511, 0.9, "value-not-read", "reads \"Grapple user\""),
        std::tuple(104, 2.0, "value-clamped", "\"Aim accuracy\" at level 1"),
        std::tuple(80, -1.0, "value-negative", "\"CTF Flag pickup\" is -1,"),
        std::tuple(38, 1.0, "chat-enemy-suicide", "\"Enemy suicide\"")}) {
    ASSERT_TRUE(bot.SetParameter(Id(index), value));
    EXPECT_THAT(Only(CheckBot(bot, &game), id).at(0).text, HasSubstr(text));
  }
}

TEST(BotChecks, ReadNegativeNumbersAsTheGameDoes) {
  // A written -10 is 010, which the game takes for eight.
  Bot bot = CleanBot();
  const GameData game = SomeGame();
  for (const auto& [value, read] :
       {std::pair(-10.0, "will read 8"), std::pair(-8.0, "will read 8"),
        std::pair(-2.5, "will read 2.5"), std::pair(-0.5, "will read 0.5")}) {
    ASSERT_TRUE(bot.SetParameter(Id(45), value));
    EXPECT_THAT(Only(CheckBot(bot, &game), "value-negative").at(0).text,
                HasSubstr(read));
  }
}

TEST(BotChecks, BearHostileBots) {
  Bot bot = CleanBot();
  for (int line = 0; line < 5000; ++line) {
    bot.SetChatLine(TypeAt(3), ChatLineIndex(line), "\"\\ \x01 {");
  }
  EXPECT_LT(CheckBot(bot, nullptr).size(),
            BotChecks().size() * FindingList::kMaxOfOneCheck);
}

}  // namespace
}  // namespace fragsmith
