#include "cli/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "install/program/settings_file.h"
#include "support/files.h"
#include "tests/support/package_maker.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class CommandLine : public ::testing::Test {
 protected:
  struct Outcome {
    int status;
    std::string out;
    std::string err;
  };

  CommandLine() {
    settings_.WinZipDir = fs::absolute(WZUNZIP_PATH).parent_path().string();
    settings_.WorkDir = folder_.path().string();
    SaveSettings();
  }

  void SaveSettings() {
    folder_.Write("program/fgs.ini", FormatSettings(settings_));
  }

  /// The settings of the test are in force, and nothing lies beside them.
  void ExpectSettings() const {
    EXPECT_EQ(folder_.Read("program/fgs.ini"), FormatSettings(settings_));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / "program"), {}),
              1);
  }

  /// Runs a line of arguments with blanks between them; "@name" stands for a
  /// path in the test's folder.
  Outcome RunBare(const std::string& line,
                  const std::string& input = {}) const {
    std::istringstream words(line);
    std::vector<std::string> arguments;
    for (std::string word; words >> word;) {
      arguments.push_back(word[0] == '@' ? Path(word.substr(1)) : word);
    }
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int status = RunCommandLine(std::move(arguments), in, out, err);
    return {status, out.str(), err.str()};
  }

  /// With the program folder of the test.
  Outcome Run(const std::string& line, const std::string& input = {}) const {
    return RunBare(line + " --program-folder @program", input);
  }

  std::string Path(const std::string& name) const {
    return (folder_ / name).string();
  }

  TestFolder folder_;
  ProgramSettings settings_;
};

TEST_F(CommandLine, TellsDoneFailedAndWrongUsageApart) {
  folder_.Write("text", "text");
  using Row = std::pair<int, std::vector<std::string>>;
  for (const auto& [status, lines] : std::vector<Row>{
           {0, {"new", "settings", "new --seed 4294967295"}},
           {1,
            {"new --name \xC5\x81odz", "make @none --into @d",
             "make @text --into @d", "make @program --into @d", "load @none",
             "load @none.pk3", "load @text", "load @program", "scan @none"}},
           {2,
            {"fly", "new --seed 4294967296", "new --seed -1", "new --name",
             "new --preset best", "new more", "make @text", "make --into @d",
             "make @text @text --into @d", "load", "load @text name more",
             "load @text --as-gamer", "scan", "settings more"}}}) {
    for (const std::string& line : lines) {
      const Outcome outcome = Run(line);
      EXPECT_EQ(outcome.status, status) << line << ": " << outcome.err;
      EXPECT_EQ(outcome.out.empty(), status != 0) << line;
      EXPECT_EQ(outcome.err.empty(), status == 0) << line << outcome.err;
    }
  }
  EXPECT_FALSE(fs::exists(folder_ / "d"));
  EXPECT_EQ(RunBare("").status, 2);
  const Outcome nowhere = RunBare("new --program-folder @none");
  EXPECT_EQ(nowhere.status, 1);
  EXPECT_THAT(nowhere.err,
              HasSubstr(Path("none") + ": There is no such folder."));
}

TEST_F(CommandLine, HelpsWithEveryCommand) {
  using Row = std::pair<std::string, std::vector<std::string>>;
  for (const auto& [command, options] : std::vector<Row>{
           {"new", {"--preset", "sniper", "--name", "--seed", "--game"}},
           {"make", {"FILE", "--into DIR", "--layout", "--pk3"}},
           {"load", {"SOURCE", "NAME", "--layout", "--no-desc", "--as-game"}},
           {"scan", {"GAMEFOLDER", "--json"}},
           {"settings", {"--program-folder DIR"}}}) {
    EXPECT_THAT(RunBare("--help").out, HasSubstr("\n  " + command + " "));
    const Outcome outcome = RunBare(command + " --help");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    for (const std::string& option : options) {
      EXPECT_THAT(outcome.out, HasSubstr(option)) << command;
    }
  }
}

TEST_F(CommandLine, BringsABotThroughFilesAndBack) {
  const std::string seven = Run("new --preset average --seed 7").out;
  EXPECT_EQ(Run("new --preset average --seed 7").out, seven);
  EXPECT_NE(Run("new --preset average --seed 8").out, seven);
  const Outcome surprise = Run("new --preset surprise");
  ASSERT_THAT(surprise.err, testing::StartsWith("Drawn with --seed "));
  EXPECT_EQ(Run("new --preset surprise " +
                surprise.err.substr(11, surprise.err.find('.') - 11))
                .out,
            surprise.out);
  EXPECT_NE(Run("new --preset sniper --seed 1").out,
            Run("new --preset camper --seed 1").out);
  // Something in every corner of the document.
  json bot = json::parse(seven);
  bot.merge_patch(json::parse(R"({
      "name": "R\u00f6kie", "gender": "it", "funName": "The ^1New",
      "railColor": 5, "model": "Biker", "skin": "Hossman", "arenaLord": 1,
      "levels": {"1": {"CHARACTERISTIC_AIM_SKILL": 0.1},
                 "4": {"CHARACTERISTIC_AIM_SKILL": "0..30"},
                 "5": {"CHARACTERISTIC_REACTIONTIME": 0.7}},
      "itemWeights": {"FS_HEALTH": 999},
      "chats": {"level_start": ["100 \u20ac", "Hi, {{SOMETHING}} \u00c4"]}})"));
  Run("make - --into @game --layout --pk3", bot.dump());
  Run("make - --into @flat --pk3", bot.dump());
  const std::string bots = "@game/botfiles/bots";
  const std::string name = "r\xC3\xB6kie";
  const std::string program = " --program-folder @program ";
  for (const std::string& source :
       {"@flat" + program, "@flat/" + name + "_c.c" + program,
        "@flat R\xC3\x96KIE" + program, bots + "/../bots/. --layout" + program,
        bots + "/" + name + "_c.c --layout" + program,
        "@game/bot-R\xC3\xB6kie.pk3" + program,
        "@flat/bot-R\xC3\xB6kie.pk3 " + name + program,
        // The program folder may stand anywhere behind the command.
        program + bots + " --layout " + name,
        bots + program + "--layout " + name,
        bots + " --layout --program-folder=" + Path("program") + " " + name}) {
    const Outcome outcome = RunBare("load " + source);
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(json::parse(outcome.out), bot) << source;
    // The only note is about the value that is no number.
    EXPECT_THAT(outcome.err, HasSubstr("\"0..30\" is not a number"));
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1);
  }
  const std::string bare = Run("load " + bots + " --no-description").out;
  EXPECT_EQ(json::parse(bare)["model"], "Sarge");
  EXPECT_EQ(Run("load @game/bot-R\xC3\xB6kie.pk3 --no-description").out, bare);
}

TEST_F(CommandLine, PrintsWhatItWroteAndCountsPackages) {
  const std::string pack = "make - --into @to --pk3";
  const std::string document = R"({"name": "Rookie"})";
  const std::string package = Path("to/bot-Rookie.pk3");
  std::string five;
  for (const std::string suffix : {"_c.c", "_w.c", "_i.c", "_t.c", ".bot"}) {
    five += Path("to/rookie" + suffix) + "\n";
  }
  EXPECT_EQ(Run("make - --into @to", document).out, five);
  ExpectSettings();
  for (settings_.Bots = 1; settings_.Bots <= 2; ++settings_.Bots) {
    const Outcome packed = Run(pack, document);
    EXPECT_EQ(packed.status, 0);
    EXPECT_EQ(packed.out, five + package + "\n");
    EXPECT_EQ(packed.err, "Fragsmith: " + package + " created succesfully\n");
    ExpectSettings();
  }
  // A package that fails counts, too.
  fs::remove(package);
  folder_.Write("to/bot-Rookie.pk3/in the way", "");
  const Outcome failed = Run(pack, document);
  EXPECT_EQ(failed.status, 1);
  EXPECT_EQ(failed.out, five);
  EXPECT_THAT(failed.err, StartsWith("Fragsmith: " + package + ": "));
  EXPECT_EQ(std::count(failed.err.begin(), failed.err.end(), '\n'), 1);
  ExpectSettings();
}

TEST_F(CommandLine, SparesWhatOthersMade) {
  const std::string two =
      "{\nname Rookie\naifile bots/rookie_c.c\n}\n"
      "{\nname Zora\naifile bots/zora_c.c\n}\n";
  const std::string document = R"({"name": "Rookie"})";
  folder_.Write("to/rookie.bot", two);
  folder_.Write("to/rookie_c.c", "// by hand\n");
  const Outcome refused = Run("make - --into @to", document);
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.out, "");
  EXPECT_THAT(refused.err,
              StartsWith("fragsmith-cli: " + Path("to/rookie.bot") +
                         ": The file describes other bots, which would go: "
                         "\"Zora\". Choose another folder"));
  EXPECT_EQ(folder_.Read("to/rookie.bot"), two);
  EXPECT_EQ(folder_.Read("to/rookie_c.c"), "// by hand\n");
  fs::remove(folder_ / "to/rookie.bot");

  // So is a package with more in it.
  const std::string package = MakeZip({{"models/players/zora/head.md3", "x"}});
  folder_.Write("to/bot-Rookie.pk3", package);
  EXPECT_THAT(Run("make - --into @to --pk3", document).err,
              HasSubstr("bot-Rookie.pk3: Other files in it, which would go: "
                        "1. Choose"));
  EXPECT_EQ(folder_.Read("to/bot-Rookie.pk3"), package);

  EXPECT_THAT(Run("make - --into @odd", Run("new --name Mytype").out).err,
              HasSubstr("\"Mytype\" does not survive saving and loading"));

  // What was made by hand is kept each time, and said.
  EXPECT_THAT(Run("make - --into @to", document).err,
              HasSubstr("rookie_c.c' was not made by Fragsmith. It is kept as "
                        "'rookie_c.c.bak'."));
  EXPECT_EQ(folder_.Read("to/rookie_c.c.bak"), "// by hand\n");
  EXPECT_EQ(Run("make - --into @to", document).err, "");
  folder_.Write("to/rookie_c.c", "// again\n");
  EXPECT_THAT(Run("make - --into @to", document).err,
              HasSubstr("'rookie_c.c.bak2'"));
  EXPECT_EQ(folder_.Read("to/rookie_c.c.bak"), "// by hand\n");
  EXPECT_EQ(folder_.Read("to/rookie_c.c.bak2"), "// again\n");

  // A name that stands in another description, too.
  folder_.Write("to/other.bot", "{\nname ROOKIE\n}\n");
  EXPECT_THAT(Run("make - --into @to", document).err,
              AllOf(HasSubstr(Path("to/other.bot") +
                              "' describes a bot \"Rookie\" too."),
                    HasSubstr("'rookie.bot' the game takes the one that it "
                              "reads first")));
  folder_.Write("to/bots.txt", two);
  EXPECT_THAT(Run("make - --into @to", document).err,
              AllOf(HasSubstr(Path("to/bots.txt") + "' describes"),
                    HasSubstr("The game takes that one")));
}

TEST_F(CommandLine, RefusesToMakeWhatCannotBe) {
  const std::string field = "fragsmith-cli: standard input: Field ";
  std::string forbidden;
  for (const char letter : kForbiddenInFileNames) {
    (forbidden += ' ') += letter;
  }
  using Row = std::pair<std::string, std::string>;
  for (const auto& [document, error] :
       {Row(R"({"name": "../evil", "versionMinor": "1a"})",
            "Name error!: Bot name can't have any of these characters:" +
                forbidden +
                "\n"
                "Error-or-or!: Errors in bot! Correct before saving!\n"),
        Row(R"({"levels": {"1": {"SPEED": 1}}})",
            field + "levels.1.SPEED: there is no such key.\n"),
        Row(R"({"chats": {"death_bfg": ["", "\u0141"]}})",
            field + "chats.death_bfg[1]: the text has a character that the "
                    "game's code page lacks. Only characters of Windows-1252 "
                    "can be used.\n")}) {
    const Outcome outcome = Run("make - --into @to --pk3", document);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, error);
    EXPECT_EQ(outcome.out, "");
  }
  EXPECT_FALSE(fs::exists(folder_ / "to"));
  folder_.Write("to/bot_w.c/in the way", "");
  const Outcome blocked = Run("make - --into @to --pk3", "{}");
  EXPECT_EQ(blocked.status, 1);
  EXPECT_EQ(blocked.out, Path("to/bot_c.c") + "\n");
  EXPECT_THAT(blocked.err, StartsWith("fragsmith-cli: " + Path("to/bot_w.c") +
                                      ": The file cannot be written: "));
  ExpectSettings();
}

TEST_F(CommandLine, MakesNoMacrosOfAGameThatItDoesNotKnow) {
  folder_.Write("empty/baseq3/readme", "");
  folder_.Write(
      "game/baseq3/pak0.pk3",
      MakeZip({{"botfiles/inv.h", "#define INVENTORY_SHOTGUN 5\n"},
               {"botfiles/fw_weap.c", "weight \"Shotgun\" { return SGW; }"}}));
  const std::string make = "make - --into @to --game-macros";
  for (const std::string game : {"", " --game @none"}) {
    const Outcome refused = Run(make + game, "{}");
    EXPECT_EQ(refused.status, 1) << game;
    EXPECT_THAT(refused.err, HasSubstr("--game-macros needs the folder of a "
                                       "game. Give --game, or set the folder"));
    EXPECT_TRUE(fs::is_empty(folder_ / "to")) << game;
  }
  const Outcome refused = Run(make + " --game @empty", "{}");
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.err, HasSubstr("There is no game in this folder. Give"));
  // Files that have them are not told that ours would lack them.
  const std::string check = "check @to --game @game";
  Run("make - --into @to", "{}");
  EXPECT_THAT(Run(check).out, HasSubstr("[weights-of-other-macros]"));
  EXPECT_EQ(Run(make + " --game @game", "{}").status, 0);
  EXPECT_THAT(folder_.Read("to/bot_w.c"), HasSubstr("#define SGW\t"));
  EXPECT_THAT(Run(check).out, Not(HasSubstr("[weights-of-other-macros]")));
}

TEST_F(CommandLine, LeavesTheNameOfABotInItsOwnPackage) {
  Run("make - --into @to --pk3", R"({"name": "Rookie"})");
  const std::string before = folder_.Read("to/bot-Rookie.pk3");
  const std::string edit = "edit @to/bot-Rookie.pk3 --set name=";
  for (const std::string more : {"", " --dry-run"}) {
    const Outcome refused = Run(edit + "Zork" + more);
    EXPECT_EQ(refused.status, 1) << more;
    EXPECT_EQ(refused.out, "") << more;
    EXPECT_THAT(refused.err, HasSubstr("Under its new name the bot's own "
                                       "package would be bot-Zork.pk3."));
    EXPECT_EQ(folder_.Read("to/bot-Rookie.pk3"), before) << more;
  }
  EXPECT_EQ(Run(edit + "ROOKIE").status, 0);
  EXPECT_NE(folder_.Read("to/bot-Rookie.pk3"), before);
  fs::rename(folder_ / "to/bot-Rookie.pk3", folder_ / "to/mod.pk3");
  EXPECT_THAT(Run("edit @to/mod.pk3 --set funName=x").err,
              HasSubstr("The package is not this bot's own, bot-ROOKIE.pk3. "
                        "Take the bot's files out of it"));
}

TEST_F(CommandLine, TriesAPackageThatCannotTakeAnEdit) {
  Run("make - --into @to --pk3", R"({"name": "Rookie"})");
  const std::string name = "to/bot-Rookie.pk3";
  const std::string odd = "junk" + folder_.Read(name);
  folder_.Write(name, odd);
  ASSERT_EQ(Run("load @" + name).status, 0);
  for (const std::string more : {"", " --dry-run"}) {
    const Outcome refused =
        Run("edit @" + name + " --set weaponWeights.W_GAUNTLET=45" + more);
    EXPECT_EQ(refused.status, 1) << more;
    EXPECT_EQ(refused.out, "") << more;
    EXPECT_THAT(refused.err, HasSubstr("bot-Rookie.pk3: ")) << more;
  }
  EXPECT_EQ(folder_.Read(name), odd);
}

TEST_F(CommandLine, TakesADocumentOfANewerVersion) {
  const std::string newer = R"({"format": 2, "name": "Newt", "tags": []})";
  const Outcome made = Run("make - --into @to", newer);
  EXPECT_EQ(made.status, 0);
  EXPECT_EQ(std::count(made.out.begin(), made.out.end(), '\n'), 5);
  EXPECT_EQ(made.err,
            "standard input: A newer Fragsmith wrote this: it has format 2, "
            "and this one knows 1. What is known is read.\n"
            "standard input: Field tags: there is no such key. It is left "
            "out.\n");
  folder_.Write("new.json", newer);
  EXPECT_THAT(Run("diff @new.json @to").err,
              StartsWith(Path("new.json") + ": A newer Fragsmith"));
}

TEST_F(CommandLine, AsksForANameWhereThereAreSeveral) {
  for (const std::string name : {"b", "\xC3\x84", "A"}) {
    Run("make - --into @bots", json{{"name", name}}.dump());
  }
  folder_.Write("two.pk3",
                MakeZipOfNames({"botfiles/bots/b_c.c", "botfiles/bots/b_t.c",
                                "botfiles/bots/b_i.c", "botfiles/bots/b_w.c",
                                "botfiles/bots/a_c.c"}));
  const auto expect = [this](const std::string& line, int status,
                             const std::string& error) {
    const Outcome outcome = Run(line);
    EXPECT_EQ(outcome.status, status) << line;
    EXPECT_EQ(outcome.out.empty(), status != 0) << line;
    EXPECT_THAT(outcome.err, ::testing::EndsWith(error)) << line;
  };
  expect("load @bots", 2, ":\na\nb\n\xC3\xA4\n");
  expect("load @two.pk3", 2, ":\nA\nB\n");
  expect("load @two.pk3 c", 1, ":\nA\nB\n");
  expect("load @two.pk3 b", 0, "");
  expect("load @two.pk3 a", 1,
         "Load failed!: Bot loading failed\n"
         "Operation cancelled!: Bot A not loaded.\n");
  expect("load @bots c", 1,
         "Error during load: Unable to find bot file for c.\n");
  // What there is of a bot is loaded.
  fs::remove(folder_ / "bots/b_c.c");
  EXPECT_THAT(Run("load @bots b").err,
              ::testing::StartsWith("Error during load: Unable to find "
                                    "characteristics file for b.\n"));
}

TEST_F(CommandLine, TellsOddValuesAndTakesTheGamesOnDemand) {
  folder_.Write("odd_c.c",
                "skill 4\n\tCHARACTERISTIC_AGGRESSION\t\t\t\t\t0.1234\n");
  for (const std::string option : {"", "--as-game"}) {
    const Outcome outcome = Run("load @odd_c.c --no-description " + option);
    EXPECT_THAT(outcome.err,
                HasSubstr(Path("odd_c.c") + ":2: CHARACTERISTIC_AGGRESSION of "
                                            "level 4: read as 0, but 0.1234"));
    EXPECT_THAT(outcome.out,
                HasSubstr("\"CHARACTERISTIC_AGGRESSION\": " +
                          std::string(option.empty() ? "0," : "0.1234,")));
  }

  // What only the game's own reader understands.
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"AGGRESSION 0200", "128,"},
      {"AGGRESSION 240.", "235.2,"},
      {"AGGRESSION 1..5", "0.85,"},
      {"AGGRESSION \"0.6\"", "0,"},
      {"AGGRESSION 0.5\n#if 0\nCHARACTERISTIC_AGGRESSION 0.7\n#endif", "0.5,"}};
  for (const auto& [written, value] : cases) {
    folder_.Write("odd_c.c",
                  "#include \"chars.h\"\nskill 4\n{\nCHARACTERISTIC_" +
                      written + "\n}\n");
    EXPECT_THAT(Run("load @odd_c.c --no-description --as-game").out,
                HasSubstr("\"CHARACTERISTIC_AGGRESSION\": " + value))
        << written;
  }
}

TEST_F(CommandLine, ListsAGamesFolder) {
  const std::string own = "\xC3\xA4.PK3";
  folder_.Write("game/baseq3/pak0.pk3",
                MakeZipOfNames({"botfiles/bots/hidden_c.c"}));
  folder_.Write(
      "game/baseq3/" + own,
      MakeZipOfNames({"models/players/m\xFCller/icon_red.tga", "scripts/x.bot",
                      "botfiles/bots/x_c.c", "scripts/bots.txt"}));
  folder_.Write("game/baseq3/bad.pk3", "no archive");
  const Outcome outcome = Run("scan @game --json");
  ASSERT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_THAT(outcome.err, AllOf(HasSubstr("Bots.txt found!: " + own +
                                           " has an additional "
                                           "'bots.txt' file!\n"),
                                 HasSubstr("\nbad.pk3: "),
                                 HasSubstr("\nAdd-ons: 1 model, 1 skin, 1 bot."
                                           " New: M\xC3\xBCller/Red, X.\n")));
  const json lists = json::parse(outcome.out);
  EXPECT_EQ(lists["models"].size(), 24U);
  EXPECT_EQ(lists["bots"].size(), 33U);
  EXPECT_THAT(lists["models"], Contains(json::parse(R"({
      "name": "M\u00fcller", "package": "\u00e4.PK3", "original": false,
      "skins": [{"name": "Red", "package": "\u00e4.PK3", "original": false,
                 "icon": "models\\players\\m\u00fcller\\icon_red.tga"}]})")));
  EXPECT_THAT(lists["bots"], Contains(json::parse(R"({
      "name": "X", "package": "\u00e4.PK3", "standard": false,
      "script": true, "status": "Yes"})")));
  EXPECT_THAT(lists["bots"], Contains(json::parse(R"({
      "name": "Xaero", "package": "pak0.pk3", "standard": true,
      "script": false, "status": "-D-"})")));
  EXPECT_THAT(
      Run("scan @game").out,
      AllOf(HasSubstr("\n  M\xC3\xBCller: Red\n"),
            HasSubstr("\n  X              " + own + "               Yes\n")));
  ExpectSettings();
}

TEST_F(CommandLine, PrintsTheSettingsAfterTheirCheck) {
  settings_ = {.Q3Baseq3 = "/no \"game\"",
               .WorkDir = folder_.path().string() + "/work \xFF",
               .WinZipDir = "/no tool",
               .UserName = "J\xF6rg",
               .Email = "a@b",
               .Http = "https://c",
               .Bots = 12,
               .BaseQ3Check = true};
  fs::create_directory(PathFromBytes(settings_.WorkDir));
  SaveSettings();
  const Outcome outcome = Run("settings");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err,
            "Fragsmith: Quake3.exe missing: Quake3.exe not found in '/no "
            "\"game\"'\n"
            "Fragsmith: Work directory missing: Winzip command line support "
            "executives not found in '/no tool'. Pk3 bot loading disabled.\n");
  json wanted = json::parse(
      R"({"Q3Baseq3": "", "WinZipDir": "/no tool", "UserName": "J\u00f6rg",
          "Email": "a@b", "Http": "https://c", "Bots": 12,
          "BaseQ3Check": true})");
  wanted["WorkDir"] = folder_.path().string() + "/work \xEF\xBF\xBD";
  EXPECT_EQ(json::parse(outcome.out), wanted);
  ExpectSettings();
  fs::remove(folder_ / "program/fgs.ini");
  EXPECT_EQ(json::parse(Run("settings").out)["WorkDir"], Path("program"));
  EXPECT_TRUE(fs::is_empty(folder_ / "program"));
}

TEST_F(CommandLine, LetsNoNameCommandTheTerminal) {
  // The five codes that Windows-1252 leaves empty are controls elsewhere.
  const std::string name = "\x1B]0;x\x07\x9D\xC4\x7F";
  const std::string shown = "\uFFFD]0;x\uFFFD\uFFFD\u00C4\uFFFD";
  folder_.Write("game/baseq3/a.pk3",
                MakeZip({{"botfiles/bots/" + name + "_c.c", {}},
                         {"models/players/" + name + "/icon_a.tga", {}}}));
  // Elsewhere a file's name cannot have controls.
  const std::string package = kIsUnix ? "b\x1B.pk3" : "b.pk3";
  folder_.Write("game/baseq3/" + package, "no package");
  const Outcome scan = Run("scan @game");
  EXPECT_THAT(scan.out, AllOf(HasSubstr("\n  " + shown + ": A\n"),
                              HasSubstr("\n  " + shown + " ")));
  EXPECT_THAT(scan.err, HasSubstr(kIsUnix ? "\nb\uFFFD.pk3: " : "\nb.pk3: "));
  const Outcome load = Run("load @game/baseq3/a.pk3");
  EXPECT_THAT(load.err, HasSubstr("Bot " + shown + " not loaded."));
  const Outcome none = Run("load @game/baseq3/" + package + " x");
  for (const std::string& text : {scan.out, scan.err, load.err, none.err}) {
    EXPECT_EQ(text.find_first_of("\x1B\x07\x7F"), std::string::npos) << text;
  }
  EXPECT_THAT(Run("load @game/baseq3/a.pk3 none").err,
              HasSubstr("there are:\n" + shown + "\n"));
}

}  // namespace
}  // namespace fragsmith
