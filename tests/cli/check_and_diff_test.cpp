#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "install/settings_file.h"
#include "tests/support/package_maker.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

class CheckAndDiff : public ::testing::Test {
 protected:
  struct Outcome {
    int status;
    std::string out;
    std::string err;
  };

  CheckAndDiff() {
    settings_.WinZipDir = fs::path(WZUNZIP_PATH).parent_path().string();
    settings_.WorkDir = folder_.path().string();
    folder_.Write("program/fgs.ini", FormatSettings(settings_));
    // A bot that no check minds; there is no game to compare it with.
    bot_ = json::parse(Run("new --preset average --seed 1").out);
    bot_["name"] = "Rookie";
    bot_["chats"] = json::object();
    for (auto& [key, value] : bot_["chatCharacteristics"].items()) value = 0;
    for (auto& [key, level] : bot_["levels"].items()) {
      level["CHARACTERISTIC_REACTIONTIME"] = 0.5;
      level["CHARACTERISTIC_VIEW_MAXCHANGE"] = 360;
    }
    bot_["weaponWeights"]["W_GAUNTLET"] = 10;
  }

  /// Runs a line of arguments; "@name" stands for a path in the folder.
  Outcome Run(const std::string& line, const std::string& input = {}) const {
    std::istringstream words(line + " --program-folder @program");
    std::vector<std::string> arguments;
    for (std::string word; words >> word;) {
      arguments.push_back(word[0] == '@' ? (folder_ / word.substr(1)).string()
                                         : word);
    }
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int status = RunCommandLine(std::move(arguments), in, out, err);
    return {status, out.str(), err.str()};
  }

  TestFolder folder_;
  ProgramSettings settings_;
  json bot_;
};

TEST_F(CheckAndDiff, TellsErrorsWarningsAndHintsByTheExitStatus) {
  const Outcome clean = Run("check -", bot_.dump());
  EXPECT_EQ(clean.status, 0) << clean.out;
  EXPECT_THAT(clean.out, AllOf(HasSubstr("rookie.bot: hint: No game folder"),
                               HasSubstr("[game-not-checked]\n")));
  bot_["railColor"] = 5;
  const Outcome warned = Run("check -", bot_.dump());
  EXPECT_EQ(warned.status, 3);
  EXPECT_THAT(warned.out, HasSubstr("rookie.bot: warning: The game does not "
                                    "read the rail colour"));
  bot_["chats"]["death_suicide"] = {"fine", "say \"hi\" now"};
  bot_["chatCharacteristics"]["CHARACTERISTIC_CHAT_DEATH"] = 0.5;
  const Outcome wrong = Run("check -", bot_.dump());
  EXPECT_EQ(wrong.status, 1);
  EXPECT_THAT(wrong.out,
              HasSubstr("rookie_t.c: error: \"Suicide\", line 2: A double "
                        "quote ends the text early"));
  EXPECT_EQ(Run("check @none").status, 1);
  EXPECT_EQ(Run("check").status, 2);

  const json findings = json::parse(Run("check - --json", bot_.dump()).out);
  json found;
  for (const json& finding : findings) {
    if (finding["id"] == "chat-quote") found = finding;
  }
  EXPECT_EQ(found["file"], "rookie_t.c");
  EXPECT_EQ(found["severity"], "error");
  EXPECT_EQ(found["chatType"], 14);
  EXPECT_EQ(found["chatLine"], 1);
  EXPECT_EQ(found["mends"],
            json::parse(R"(["Use single quotes in the line"])"));
}

TEST_F(CheckAndDiff, ChecksFilesAsTheGameReadsThem) {
  ASSERT_EQ(Run("make - --into @bots --pk3", bot_.dump()).status, 0);
  const Outcome good = Run("check @bots");
  EXPECT_EQ(good.status, 0) << good.out;
  EXPECT_THAT(good.out, HasSubstr("[loose-files]"));
  const Outcome packed = Run("check @bots/bot-Rookie.pk3");
  EXPECT_EQ(packed.status, 0) << packed.out;
  EXPECT_THAT(packed.out, Not(HasSubstr("[loose-files]")));
  // An error is told once, with the place in the file.
  std::string chats = folder_.Read("bots/rookie_t.c");
  const std::string type = "type \"death_suicide\"\r\n\t{\r\n";
  const std::size_t place = chats.find(type);
  ASSERT_NE(place, std::string::npos);
  chats.insert(place + type.size(), "\t\t\"say \"hi\" now\";\r\n");
  folder_.Write("bots/rookie_t.c", chats);
  const Outcome wrong = Run("check @bots rookie");
  EXPECT_EQ(wrong.status, 1);
  EXPECT_THAT(wrong.out,
              AllOf(HasSubstr("rookie_t.c:"), HasSubstr("[not-added]"),
                    Not(HasSubstr("[chat-quote]"))));
}

TEST_F(CheckAndDiff, ComparesWithTheInstalledGame) {
  folder_.Write("game/baseq3/pak0.pk3",
                MakeZip({{"scripts/bots.txt", "{ name rookie }"},
                         {"botfiles/rnd.c", "food = { \"soup\"; }"}}));
  bot_["chats"]["level_end"] = {"my {CURSE}"};
  const Outcome outcome = Run("check - --game @game", bot_.dump());
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.out,
              AllOf(HasSubstr("[name-taken]"),
                    HasSubstr("Your game has no word list {CURSE}"),
                    HasSubstr("[weight-scripts-missing]"),
                    Not(HasSubstr("[game-not-checked]"))));
  // A folder without packages is no game.
  EXPECT_THAT(Run("check - --game @program", bot_.dump()).out,
              HasSubstr("[game-not-checked]"));
}

TEST_F(CheckAndDiff, PrintsDifferences) {
  folder_.Write("a.json", bot_.dump());
  ASSERT_EQ(Run("make @a.json --into @bots").status, 0);
  EXPECT_EQ(Run("diff @a.json @bots").status, 0);
  EXPECT_EQ(Run("diff @a.json @bots").out, "");
  bot_["name"] = "Other";
  bot_["levels"]["4"]["CHARACTERISTIC_AIM_SKILL"] = 0.75;
  bot_["chats"]["level_end"] = {"\u00C4h\u0009"};
  ASSERT_EQ(Run("make - --into @bots", bot_.dump()).status, 0);
  const Outcome outcome = Run("diff @bots:rookie @bots:OTHER");
  EXPECT_EQ(outcome.status, 1) << outcome.err;
  EXPECT_EQ(outcome.out,
            "\"Name\": \"Rookie\" -> \"Other\"\n"
            "\"Aim skill\" at level 4: 0.5 -> 0.75\n"
            "\"Level ends\", line 1: (nothing) -> \u00C4h\n");
  EXPECT_EQ(Run("diff @bots @a.json").status, 2);
  EXPECT_EQ(Run("diff @a.json @none").status, 2);
  EXPECT_EQ(Run("diff @a.json").status, 2);
}

}  // namespace
}  // namespace fragsmith
