#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/command_line.h"
#include "install/program/settings_file.h"
#include "support/files.h"
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
    settings_.WinZipDir = fs::absolute(WZUNZIP_PATH).parent_path().string();
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
                                    "read \"Railgun color\""));
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
  // The package that was made with them is what the game takes.
  EXPECT_THAT(good.out, Not(HasSubstr("[loose-files]")));
  std::filesystem::rename(folder_ / "bots/bot-Rookie.pk3",
                          folder_ / "bot-Rookie.pk3");
  EXPECT_THAT(Run("check @bots").out, HasSubstr("[loose-files]"));
  std::filesystem::rename(folder_ / "bot-Rookie.pk3",
                          folder_ / "bots/bot-Rookie.pk3");
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
  EXPECT_THAT(wrong.out, AllOf(HasSubstr("rookie_t.c:"),
                               HasSubstr("The game does not add the bot."),
                               Not(HasSubstr("[chat-quote]"))));
}

TEST_F(CheckAndDiff, LooksAtWhatLiesBesideABot) {
  ASSERT_EQ(Run("make - --into @home --layout", bot_.dump()).status, 0);
  const std::string bots = "home/botfiles/bots/";
  const std::string weights = folder_.Read(bots + "rookie_w.c");
  // A header of its own is read; one of the game's, without a game, is not
  // looked at. The game's folder stands for the bot's.
  folder_.Write(bots + "mine.h", "#define MINE 1\r\n");
  folder_.Write(bots + "rookie_w.c",
                "#include \"bots/mine.h\"\r\n#include "
                "\"match.h\"\r\n" +
                    weights);
  const Outcome good = Run("check @home");
  EXPECT_EQ(good.status, 0) << good.out;
  EXPECT_THAT(good.out, AllOf(HasSubstr("rookie_w.c:2: hint: The file "
                                        "\"botfiles/match.h\" is the game's"),
                              HasSubstr("type /addbot Rookie 3"),
                              Not(HasSubstr("mine"))));
  folder_.Write(bots + "rookie_w.c", weights);

  // The name that the game adds it by leads to it, however it is typed.
  const std::string description = folder_.Read("home/scripts/rookie.bot");
  folder_.Write("home/scripts/rookie.bot",
                "{ name Big^1Rook aifile bots/Rookie_c.c }");
  for (const char* const name : {"\"Big^1Rook\"", "bigrook", "ROOKIE"}) {
    EXPECT_THAT(Run(std::string("check @home ") + name).out,
                HasSubstr("type /addbot Big^1Rook 3"))
        << name;
  }
  // One that shares its description has a name of its own, and may lack files.
  folder_.Write("home/scripts/rookie.bot",
                "{ name Rookie aifile bots/Rookie_c.c }\n"
                "{ name Twin aifile bots/Rookie_c.c }\n"
                "{ name Rook aifile bots/rook_c.c }\n");
  EXPECT_THAT(
      Run("check @home").out,
      HasSubstr("rookie.bot:2: hint: The file describes \"Twin\" and "
                "\"Rook\" as well. What is said here is about \"Rookie\""));
  EXPECT_THAT(Run("check @home twin").out, HasSubstr("type /addbot Twin 3"));
  const Outcome lacking = Run("check @home rook");
  EXPECT_THAT(lacking.out,
              AllOf(HasSubstr("type /addbot Rook 3"),
                    HasSubstr("\"botfiles/bots/rook_c.c\" is not the bot's")));
  EXPECT_THAT(Run("check @home nobody").err,
              HasSubstr("There is no bot nobody; there are:"));
  // A name that runs to the end of the file is none.
  folder_.Write("home/scripts/rookie.bot",
                "{\nname \"Rookie\naifile bots/Rookie_c.c\n}\n");
  EXPECT_THAT(Run("check @home").out,
              AllOf(HasSubstr("[description-quote]"),
                    HasSubstr("type /addbot rookie 3 in the game's console. "
                              "[how-to-add]")));
  folder_.Write("home/scripts/rookie.bot", description);

  // A header of the game's is hidden for all bots.
  folder_.Write("home/botfiles/inv.h", "");
  EXPECT_THAT(Run("check @home").out,
              HasSubstr("botfiles/inv.h takes the place of the game's own"));
  fs::remove(folder_ / "home/botfiles/inv.h");

  // Packed with a folder around it.
  folder_.Write("deep.pk3", MakeZipOfNames({"mine/botfiles/bots/deep_c.c",
                                            "mine/scripts/deep.bot"}));
  const Outcome deep = Run("check @deep.pk3");
  EXPECT_EQ(deep.status, 1);
  EXPECT_THAT(deep.out, AllOf(HasSubstr("[folder-too-deep]"),
                              HasSubstr("\"mine\""), Not(HasSubstr("no-"))));
  folder_.Write("around/mine/botfiles/bots/deep_c.c", "");
  EXPECT_THAT(Run("check @around").err, HasSubstr("one folder too deep, in "
                                                  "mine"));

#ifndef _WIN32
  folder_.Write("capitals/botfiles/Bots/rookie_c.c", "");
  folder_.Write("capitals/scripts/rookie.bot", "");
  for (const char* const source :
       {"", "/botfiles", "/botfiles/Bots", "/botfiles/Bots/rookie_c.c",
        "/scripts/rookie.bot"}) {
    EXPECT_THAT(Run(std::string("check @capitals") + source).err,
                AllOf(HasSubstr("is called botfiles/Bots"),
                      HasSubstr("Rename it botfiles/bots.")))
        << source;
  }
#endif

  // Another bot of its name, and no description at all.
  folder_.Write("home/scripts/other.bot", "{ name ROOKIE aifile bots/x_c.c }");
  const Outcome taken = Run("check @home");
  EXPECT_EQ(taken.status, 3);
  EXPECT_THAT(taken.out,
              AllOf(HasSubstr("which is chance."), HasSubstr("[name-shared]")));
  fs::remove(folder_ / "home/scripts/other.bot");
  fs::remove(folder_ / "home/scripts/rookie.bot");
  EXPECT_THAT(Run("check @home").out,
              AllOf(HasSubstr("[no-description]"),
                    HasSubstr("The game does not add the bot.")));
  const Outcome without = Run("check @home --no-description");
  EXPECT_EQ(without.status, 0) << without.out;
}

TEST_F(CheckAndDiff, NamesFilesAndLinesAsTheyAreOnDisk) {
  bot_["levels"]["4"]["CHARACTERISTIC_REACTIONTIME"] = 3;
  bot_["weaponWeights"]["W_GAUNTLET"] = 500;
  bot_["chats"]["death_suicide"] = {"fine", "so  long"};
  bot_["chatCharacteristics"]["CHARACTERISTIC_CHAT_DEATH"] = 0.5;
  ASSERT_EQ(Run("make - --into @bots", bot_.dump()).status, 0);
  // The name inside is none of the files.
  std::string character = folder_.Read("bots/rookie_c.c");
  const std::string_view name = "\t\"Rookie\"";
  for (std::size_t at = character.find(name); at != std::string::npos;
       at = character.find(name, at + 1)) {
    character.replace(at, name.size(), "\t\"Other\"");
  }
  folder_.Write("bots/rookie_c.c", character);
  const auto line_of = [this](const std::string& file,
                              const std::string& text) {
    const std::string bytes = folder_.Read("bots/" + file);
    const std::size_t end = bytes.rfind(text);
    const auto line =
        1 + std::count(bytes.begin(),
                       bytes.begin() + static_cast<std::ptrdiff_t>(end), '\n');
    std::filesystem::path path = std::filesystem::path("bots") / file;
    return BytesFromPath(path.make_preferred()) + ":" + std::to_string(line) +
           ": ";
  };
  const std::string out = Run("check @bots --all").out;
  EXPECT_THAT(out,
              AllOf(HasSubstr(line_of("rookie_c.c", "REACTIONTIME\t\t\t\t\t3") +
                              "warning: \"Reaction time\" at level 4 is 3"),
                    HasSubstr(line_of("rookie_t.c", "so  long") +
                              "warning: \"Suicide\", line 2: The game changes"),
                    HasSubstr(line_of("rookie_w.c", "W_GAUNTLET") +
                              "warning: No weapon has a larger weight")));
  EXPECT_THAT(out, Not(HasSubstr("other_")));
}

TEST_F(CheckAndDiff, ChecksABotOfAListThatHasTheFilesOfAnother) {
  ASSERT_EQ(Run("make - --into @home --layout", bot_.dump()).status, 0);
  std::vector<TestEntry> files = {{"scripts/bots.txt",
                                   "{ name Rookie aifile bots/rookie_c.c }\n"
                                   "{ name Jenna aifile bots/rookie_c.c }\n"}};
  for (const char* const end : {"c", "w", "i", "t"}) {
    const std::string path = std::string("botfiles/bots/rookie_") + end + ".c";
    files.push_back({path, folder_.Read("home/" + path)});
  }
  folder_.Write("list.pk3", MakeZip(files));
  const Outcome listed = Run("check @list.pk3 jenna");
  EXPECT_THAT(
      listed.out,
      AllOf(HasSubstr("In the game the bot is called \"Jenna\", not as "
                      "its files are. To add the bot, type /addbot "
                      "Jenna 3"),
            Not(HasSubstr(": error: ")), Not(HasSubstr("[name-differs]"))));
}

TEST_F(CheckAndDiff, SaysNothingOfValuesThatItDoesNotKnow) {
  ASSERT_EQ(Run("make - --into @bots", bot_.dump()).status, 0);
  const std::string good = folder_.Read("bots/rookie_c.c");
  const std::size_t begin = good.find("skill 4");
  const std::size_t end = good.find("skill 5");
  // The game finds the level in another file, or finds none.
  folder_.Write("bots/more.h", good.substr(begin, end - begin));
  folder_.Write(
      "bots/rookie_c.c",
      good.substr(0, begin) + "#include \"bots/more.h\"\n" + good.substr(end));
  const Outcome elsewhere = Run("check @bots --all");
  EXPECT_EQ(elsewhere.status, 0) << elsewhere.out;
  EXPECT_THAT(elsewhere.out, Not(HasSubstr("at level 4")));
  folder_.Write("bots/rookie_c.c",
                good.substr(0, begin) + "skill \"4\"" + good.substr(begin + 7));
  const Outcome broken = Run("check @bots --all");
  EXPECT_EQ(broken.status, 1) << broken.out;
  EXPECT_THAT(broken.out, Not(HasSubstr("at level 4")));
  // A level that only the game sees has values, and they are the file's.
  for (const char* const level :
       {"skill 0x4", "#if 1\nskill 4\n#else\nskill 9\n#endif\n"}) {
    folder_.Write("bots/rookie_c.c",
                  good.substr(0, begin) + level + good.substr(begin + 7));
    const Outcome odd = Run("check @bots --all");
    EXPECT_EQ(odd.status, 0) << odd.out;
    EXPECT_THAT(odd.out, Not(HasSubstr("at level 4"))) << level;
  }
  // A key that is missing has the default character's value, which is not 0.
  const std::size_t key = good.find("CHARACTERISTIC_VIEW_MAXCHANGE", begin);
  const std::size_t line_end = good.find('\n', key);
  folder_.Write("bots/rookie_c.c",
                good.substr(0, key) + good.substr(line_end + 1));
  EXPECT_THAT(Run("check @bots --all").out,
              Not(HasSubstr("\"Max view change angle\" at level 4")));
  // Nor of the lines of a chat file that the game cannot read.
  folder_.Write("bots/rookie_c.c", good);
  folder_.Write("bots/rookie_t.c", "chat \"Rookie\"");
  EXPECT_THAT(Run("check @bots --all").out, Not(HasSubstr("[chat-")));
}

TEST_F(CheckAndDiff, FoldsWhatIsOfOneKind) {
  for (auto& [key, level] : bot_["levels"].items()) {
    level["CHARACTERISTIC_REACTIONTIME"] = 2.5;
  }
  const Outcome folded = Run("check -", bot_.dump());
  EXPECT_THAT(folded.out, HasSubstr("at level 1 is 2.5"));
  EXPECT_THAT(folded.out, AllOf(HasSubstr("(2 more like this: --all)"),
                                Not(HasSubstr("at level 4 is 2.5"))));
  const Outcome all = Run("check - --all", bot_.dump());
  EXPECT_THAT(all.out, AllOf(HasSubstr("at level 4 is 2.5"),
                             HasSubstr("at level 5 is 2.5"),
                             Not(HasSubstr("more like this"))));
  for (const json& finding :
       json::parse(Run("check - --json", bot_.dump()).out)) {
    if (finding["id"] != "reaction-time-clamped") continue;
    EXPECT_EQ(finding["more"], 2);
  }
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
  // Of packages the last by name wins, of which the bot is not told when it is
  // its own.
  const auto put = [this](const std::string& text) {
    folder_.Write("game/baseq3/zz.pk3", MakeZip({{"scripts/z.bot", text}}));
  };
  bot_["name"] = "Loner";
  put("{\nname LONER\naifile bots/other_c.c\n}\n");
  EXPECT_THAT(Run("check - --game @game", bot_.dump()).out,
              AllOf(HasSubstr("already, in zz.pk3/scripts/z.bot, and adds"),
                    HasSubstr("[name-taken]")));
  put("{\nname LONER\naifile bots/loner_c.c\n}\n");
  EXPECT_THAT(Run("check - --game @game", bot_.dump()).out,
              Not(HasSubstr("[name-taken]")));
  // A bot of the game's own name plays where its files win; capitals and the
  // kind of slash do not count in a package.
  const auto pack = [this](const char* package) {
    const auto read = [this](const std::string& name) {
      return folder_.Read("own/" + name);
    };
    folder_.Write(package,
                  MakeZip({{"SCRIPTS\\ROOKIE.BOT", read("rookie.bot")},
                           {"BOTFILES\\BOTS\\ROOKIE_C.C", read("rookie_c.c")},
                           {"botfiles/bots/rookie_w.c", read("rookie_w.c")},
                           {"botfiles/bots/rookie_i.c", read("rookie_i.c")},
                           {"botfiles/bots/rookie_t.c", read("rookie_t.c")}}));
    return Run("check @" + std::string(package) + " --game @game").out;
  };
  bot_["name"] = "Rookie";
  ASSERT_EQ(Run("make - --into @own", bot_.dump()).status, 0);
  folder_.Write("game/baseq3/pak0.pk3",
                MakeZip({{"scripts/bots.txt",
                          "{\nname rookie\naifile bots/rookie_c.c\n}\n"},
                         {"botfiles/bots/rookie_c.c", ""}}));
  EXPECT_THAT(pack("z.pk3"), AllOf(HasSubstr("[description-not-read]"),
                                   Not(HasSubstr("[name-taken]")),
                                   Not(HasSubstr("[files-shadowed]"))));
  EXPECT_THAT(pack("a.pk3"), AllOf(HasSubstr("[name-taken]"),
                                   HasSubstr("before the ones of \"a.pk3\"")));
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
