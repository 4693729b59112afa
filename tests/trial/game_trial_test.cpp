#include "trial/game_trial.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "install/packages/package.h"
#include "install/packages/package_writer.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "support/files.h"
#include "tests/support/test_folder.h"
#include "trial/trial_reader.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

std::string Joined(const TrialSetup& setup, const std::string& name) {
  std::string text;
  for (const std::string& argument : TrialArguments(setup, name)) {
    if (!text.empty()) text += ' ';
    text += argument;
  }
  return text;
}

TEST(TrialArguments, HaveSettingsThenTheMapThenTheBots) {
  TrialSetup server;
  server.engine = "ioq3ded";
  server.data = "/data";
  server.home = "/home/me";
  server.game = "baseoa";
  server.map = "oa_dm1";
  server.opponents = {"sarge", "grunt"};
  server.is_dedicated = true;
  server.seconds = 10;
  EXPECT_EQ(Joined(server, "Rookie"),
            "+set fs_basepath /data +set fs_homepath /home/me "
            "+set com_basegame baseoa +set com_standalone 1 "
            "+set fs_game fragsmith +set net_enabled 1 +set net_ip 127.0.0.1 "
            "+set sv_pure 0 +set sv_maxclients 16 "
            "+set bot_reloadcharacters 1 +set dedicated 1 +map oa_dm1 "
            "+addbot Rookie 4 +addbot sarge 4 +addbot grunt 4 +wait 200 +quit");
  server.engine = "quake3e.ded";
  EXPECT_THAT(Joined(server, "Rookie"),
              HasSubstr("+set fs_basegame baseoa +set vm_game 0"));

  TrialSetup client;
  client.engine = "quake3";
  client.home = "/h";
  client.map = "q3dm1";
  client.skill = 2.5;
  client.seconds = 10;
  EXPECT_EQ(Joined(client, "Rookie"),
            "+set fs_homepath /h +set fs_game fragsmith +set net_enabled 1 "
            "+set net_ip 127.0.0.1 +set sv_pure 0 +set sv_maxclients 16 "
            "+set bot_reloadcharacters 1 +set cl_motd 0 +set r_fullscreen 0 "
            "+devmap q3dm1 +addbot Rookie 2.5");
}

// The engine makes one text of all arguments: no name may become a command of
// its own, and what no longer fits must not run into the last command.
TEST(TrialArguments, StayWhatTheyAre) {
  TrialSetup setup;
  setup.home = "/a//b";
  EXPECT_THAT(Joined(setup, "a"), HasSubstr("fs_homepath \"/a//b\" "));
  setup.home = "/a+b";
  setup.data = "/with a blank+";
  setup.map = "q3dm1;quit";
  setup.is_dedicated = true;
  setup.seconds = 5;
  setup.opponents.assign(40, "sarge");
  const std::vector<std::string> arguments = TrialArguments(setup, "a\"+b");
  EXPECT_THAT(Joined(setup, "a\"+b"),
              testing::AllOf(HasSubstr("fs_basepath /with a blank+ "),
                             HasSubstr("fs_homepath \"/a+b\" "),
                             HasSubstr("+map \"q3dm1;quit\" "),
                             HasSubstr("+addbot \"a+b\" 4 ")));
  EXPECT_EQ(std::count_if(
                arguments.begin(), arguments.end(),
                [](const std::string& text) { return text.front() == '+'; }),
            32);
  EXPECT_EQ(arguments.back(), "+quit");
}

TEST(TrialPackage, LiesAloneWhereTheEngineLooks) {
  const TestFolder folder;
  Bot bot = CreateZeroBot();
  ASSERT_TRUE(bot.SetParameter(kNameField, std::string("Rookie")));
  ASSERT_TRUE(WriteTrialPackage(bot, folder.path(), {}));
  std::vector<std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
    if (entry.is_regular_file()) {
      files.push_back(fs::relative(entry, folder.path()).generic_string());
    }
  }
  EXPECT_THAT(files, ElementsAre("fragsmith/bot-Rookie.pk3"));
  EXPECT_THAT(
      ReadPackageEntry(folder / files.at(0), "scripts/rookie.bot").value_or(""),
      HasSubstr("bots/rookie_c.c"));
  EXPECT_FALSE(WriteTrialPackage(bot, folder / "fragsmith/bot-Rookie.pk3", {}));
  ASSERT_TRUE(bot.SetParameter(kNameField, std::string("../x")));
  EXPECT_FALSE(WriteTrialPackage(bot, folder.path(), {}));
}

TEST(TrialFiles, AreThoseThatWereGiven) {
  const TestFolder folder;
  // A folder of files, with what is odd in them and lies beside them.
  const std::string odd = std::string("\xEF\xBB\xBF# \0 \r", 7);
  folder.Write("flat/x_c.c", odd);
  folder.Write("flat/X.BOT", "{ name x }");
  folder.Write("flat/more/mine.h", "#define A 1");
  ASSERT_TRUE(PutTrialFiles(GivenFiles::OfFolder(folder / "flat", false),
                            folder / "one"));
  EXPECT_EQ(folder.Read("one/fragsmith/botfiles/bots/x_c.c"), odd);
  EXPECT_EQ(folder.Read("one/fragsmith/scripts/X.BOT"), "{ name x }");
  EXPECT_EQ(folder.Read("one/fragsmith/botfiles/bots/more/mine.h"),
            "#define A 1");
  // All of a game's two folders.
  folder.Write("game/botfiles/bots/x_c.c", odd);
  folder.Write("game/botfiles/mine.h", "1");
  folder.Write("game/scripts/y.bot", "2");
  folder.Write("game/maps/no.bsp", "3");
  ASSERT_TRUE(GivenFiles::IsInGame(folder / "game/botfiles/bots"));
  EXPECT_FALSE(GivenFiles::IsInGame(folder / "flat"));
  const GivenFiles given =
      GivenFiles::OfFolder(folder / "game/botfiles/bots", true);
  ASSERT_TRUE(PutTrialFiles(given, folder / "two"));
  EXPECT_EQ(folder.Read("two/fragsmith/botfiles/mine.h"), "1");
  EXPECT_EQ(folder.Read("two/fragsmith/scripts/y.bot"), "2");
  EXPECT_FALSE(fs::exists(folder / "two/fragsmith/maps"));
  // Loose files are found by the rules of the system.
  EXPECT_TRUE(given.Open("botfiles/./bots//x_c.c"));
  EXPECT_FALSE(given.Open("botfiles/../botfiles/bots/x_c.c"));
  EXPECT_EQ(given.Open("botfiles/Bots/x_c.c").has_value(), !kIsUnix);
  EXPECT_TRUE(given.OpenInAnyCase("botfiles/Bots/x_c.c"));

  // A package stays one, and its files are found letter by letter.
  ASSERT_TRUE(WritePackage(folder / "z.pk3", {{"BotFiles/Bots/x_c.c", odd},
                                              {"scripts/b.bot", "1"},
                                              {"scripts/a.bot", "2"}}));
  const Result<GivenFiles> packed = GivenFiles::OfPackage(folder / "z.pk3");
  ASSERT_TRUE(packed);
  ASSERT_TRUE(PutTrialFiles(*packed, folder / "three"));
  EXPECT_EQ(folder.Read("three/fragsmith/z.pk3"), folder.Read("z.pk3"));
  EXPECT_TRUE(packed->Open("botfiles\\bots/X_c.c"));
  EXPECT_FALSE(packed->Open("botfiles/./bots/x_c.c"));
  EXPECT_FALSE(packed->Open("botfiles//bots/x_c.c"));
  EXPECT_THAT(packed->PathsLike("scripts/", ".bot"),
              ElementsAre("scripts/b.bot", "scripts/a.bot"));
}

TEST(TrialEngines, AreFoundByTheirNames) {
  const TestFolder folder;
  const std::string end = kIsUnix ? "" : ".exe";
  for (const char* name : {"b/ioq3ded", "b/ioquake3.x86_64", "a/openarena",
                           "a/ioq3ded", "a/quake3.txt"}) {
    folder.Write(name + end, "");
  }
  const std::string path = BytesFromPath(folder / "b") +
                           (kIsUnix ? "::" : ";;") +
                           BytesFromPath(folder / "a") + (kIsUnix ? ":" : ";") +
                           BytesFromPath(folder / "b");
  std::vector<fs::path> folders = EngineFolders(path);
  ASSERT_GE(folders.size(), 3U);
  folders.resize(3);
  std::vector<std::string> found;
  for (const fs::path& engine : FindEngines(folders)) {
    found.push_back(fs::relative(engine, folder.path()).generic_string());
  }
  EXPECT_THAT(found, ElementsAre("b/ioquake3.x86_64" + end, "a/openarena" + end,
                                 "b/ioq3ded" + end, "a/ioq3ded" + end));
  for (const char* name : {"ioq3ded", "q/quake3e.ded.x64", "openarena-server",
                           "OA_DED.exe", "ioq3ded.x86_64"}) {
    EXPECT_TRUE(IsDedicatedServer(name)) << name;
  }
  for (const char* name : {"ioquake3", "server/quake3e.x64", "openarena"}) {
    EXPECT_FALSE(IsDedicatedServer(name)) << name;
  }

  folder.Write("free/baseoa/pak0.pk3", "");
  folder.Write("both/baseoa/pak0.pk3", "");
  folder.Write("both/baseq3/pak0.pk3", "");
  EXPECT_EQ(DefaultGame("ioq3ded", folder / "free"), "baseoa");
  EXPECT_EQ(DefaultGame("openarena", folder / "both"), "baseq3");
  EXPECT_EQ(DefaultGame("openarena-server", {}), "baseoa");
  EXPECT_EQ(DefaultGame("ioquake3", {}), "baseq3");

  // The modules lie elsewhere, and for a server and a client apart.
  const fs::path packages = folder / "usr/share/games/openarena";
  const auto data = [&](const char* engine, const fs::path& game) {
    return DataFolder(engine, game, folder.path());
  };
  EXPECT_EQ(data("ioq3ded", packages), packages);
  folder.Write("usr/lib/openarena-server/baseoa/pak0.pk3", "");
  EXPECT_EQ(data("ioq3ded", packages), folder / "usr/lib/openarena-server");
  EXPECT_EQ(data("openarena", packages), packages);
  EXPECT_EQ(data("ioq3ded", folder / "free"), folder / "free");
  EXPECT_EQ(DefaultMap("baseoa"), "oa_dm1");
  EXPECT_EQ(DefaultMap("baseq3"), "q3dm1");
}

constexpr const char* kStart =
    "ioq3 1.36 linux-x86_64\n"
    "couldn't exec autoexec.cfg\n"
    "ALSA lib conf.c:5180: function concat returned error: No such file\n"
    "^3!readconfig: ^7could not open admin config file admin.dat\n"
    "loaded weapons.c\r\nloaded maps/oa_dm1.aas\r\n34 bots parsed\n"
    "AAS initialized.\nloaded skill 4 from bots/default_c.c\n";
constexpr const char* kWeights =
    "loaded bots/rookie_i.c\nloaded bots/rookie_w.c\n";
constexpr const char* kOpponent =
    "loaded skill 4 from bots/gargoyle_c.c\nloaded bots/gargoyle_i.c\n"
    "loaded gargoyle from bots/gargoyle_t.c\n"
    "^1Error: file bots/gargoyle_c.c, line 5: unknown definition x\n"
    "broadcast: print \"Gargoyle^7 entered the game\\n\"\n";

class TrialOutput : public ::testing::Test {
 protected:
  TrialOutput() {
    setup_.is_dedicated = true;
    setup_.opponents = {"gargoyle"};
  }

  /// Reads the output in pieces of some size; what it says of the bot, each
  /// line with the letter of its severity and then the sentence, if any.
  std::string Read(const std::string& output, std::size_t piece = 4096) {
    TrialReader reader(setup_, "Rookie", "rookie");
    std::string text;
    for (std::size_t at = 0; at < output.size(); at += piece) {
      for (const TrialLine& line : reader.Read(output.substr(at, piece))) {
        text += "EWH"[static_cast<int>(line.severity)];
        text += ' ' + line.text + '\n';
        if (!line.sentence.empty()) text += "  " + line.sentence + '\n';
      }
    }
    verdict_ = reader.verdict();
    is_over_ = reader.is_over();
    return text;
  }

  TrialSetup setup_;
  TrialVerdict verdict_ = TrialVerdict::kUnknown;
  bool is_over_ = false;
};

TEST_F(TrialOutput, OfABotThatEnters) {
  const std::string loaded = std::string(kStart) +
                             "loaded skill 4 from bots/rookie_c.c\n" +
                             kWeights + "loaded rookie from bots/rookie_t.c\n";
  const std::string output =
      loaded + "broadcast: print \"^1Ro^2okie^7 connected\\n\"\n" +
      "broadcast: print \"^1Ro^2okie^7 entered the game\\n\"\n" + kOpponent;
  const std::string said =
      "H loaded skill 4 from bots/rookie_c.c\nH loaded bots/rookie_i.c\n"
      "H loaded bots/rookie_w.c\nH loaded rookie from bots/rookie_t.c\n"
      "H Rookie entered the game\n";
  for (const std::size_t piece :
       {std::size_t{1}, std::size_t{7}, std::size_t{4096}}) {
    EXPECT_EQ(Read(output, piece), said);
    EXPECT_EQ(verdict_, TrialVerdict::kEntered);
  }
  Read(loaded);
  EXPECT_FALSE(is_over_);
  // A player of the game is not there yet when the bot enters, and is not it.
  setup_.is_dedicated = false;
  EXPECT_THAT(Read(loaded + "UnnamedPlayer^7 entered the game\n"),
              Not(HasSubstr("entered")));
  EXPECT_EQ(verdict_, TrialVerdict::kEntered);
  Read(std::string(kStart) + "UnnamedPlayer^7 entered the game\n");
  EXPECT_EQ(verdict_, TrialVerdict::kUnknown);
}

TEST_F(TrialOutput, OfABotWithTheDefaultCharacter) {
  const std::string said =
      Read(std::string(kStart) +
           "^1Error: file bots/rookie_c.c, line 75: characteristic 2 already "
           "initialized\n"
           "^3Warning: couldn't find skill 4 in bots/rookie_c.c\n"
           "loaded cached default skill 4 from bots/rookie_c.c\n"
           "loaded bots/gargoyle_i.c\nloaded player from bots/gargoyle_t.c\n"
           "broadcast: print \"Rookie^7 entered the game\\n\"\n");
  EXPECT_EQ(verdict_, TrialVerdict::kWithDefault);
  EXPECT_THAT(
      said,
      testing::AllOf(
          HasSubstr("E Error: file bots/rookie_c.c, line 75: characteristic 2 "
                    "already initialized\n  The same characteristic stands "
                    "twice at one skill."),
          HasSubstr("W Warning: couldn't find skill 4"),
          HasSubstr("E loaded cached default skill 4 from bots/rookie_c.c\n"),
          HasSubstr("H loaded bots/gargoyle_i.c\n")));
}

TEST_F(TrialOutput, OfABotWithFilesOfAnother) {
  const std::string said =
      Read(std::string(kStart) +
           "loaded skill 4 from bots/rookie_c.c\nloaded bots/rookie_i.c\n"
           "loaded bots/sarge_w.c\nloaded rookie from bots/rookie_t.c\n"
           "broadcast: print \"Rookie^7 entered the game\\n\"\n");
  EXPECT_EQ(verdict_, TrialVerdict::kOthersFiles);
  EXPECT_THAT(said, HasSubstr("W loaded bots/sarge_w.c\n  This is a file of"));
  EXPECT_THAT(said, HasSubstr("H loaded bots/rookie_i.c\n"));
  // With another's character nothing of the bot is there to be corrected.
  EXPECT_THAT(Read(std::string(kStart) +
                   "loaded skill 4 from bots/sarge_c.c\nloaded "
                   "bots/sarge_i.c\nloaded sarge from bots/sarge_t.c\n"
                   "broadcast: print \"Rookie^7 entered the game\\n\"\n"),
              testing::AllOf(HasSubstr("E loaded skill 4 from bots/sarge_c.c"),
                             HasSubstr("H loaded bots/sarge_i.c\n")));
  EXPECT_EQ(verdict_, TrialVerdict::kOtherBot);
}

TEST_F(TrialOutput, OfABotThatIsRefused) {
  const std::string start = kStart;
  const std::string loaded =
      start + "loaded skill 4 from bots/rookie_c.c\n" + kWeights;
  const std::string failed =
      "broadcast: print \"Rookie^7 BotAISetupClient failed\\n\"\n";
  const std::pair<std::string, const char*> rows[] = {
      {loaded +
           "^1Error: couldn't find chat rookie in bots/rookie_t.c\n"
           "^1Fatal: couldn't load chat rookie from bots/rookie_t.c\n" +
           failed,
       "no chat of the name"},
      {start + "^1Error: bot has no aifile specified\n", "where the bot's"},
      {start + "^1Error: Bot 'Rookie' not defined\n", "did not read the bot's"},
      {start + "^1Unable to add bot.  All player slots are in use.\n",
       "no free place"},
      {start + failed, "reasons above"},
      {start + "^1Fatal: AAS not initialized\n", "Choose another map"},
  };
  for (const auto& [output, sentence] : rows) {
    // Another bot's entrance changes nothing.
    EXPECT_THAT(Read(output + kOpponent),
                testing::AllOf(HasSubstr(sentence),
                               Not(HasSubstr("Gargoyle entered"))));
    EXPECT_EQ(verdict_, TrialVerdict::kNotAdded) << output;
  }
  EXPECT_THAT(Read("Missing { in info file\n"), HasSubstr("W Missing {"));
  EXPECT_FALSE(is_over_);
  EXPECT_THAT(Read("Can't find map maps/nosuch.bsp\n"), HasSubstr("no map"));
  EXPECT_TRUE(is_over_);
  EXPECT_EQ(verdict_, TrialVerdict::kUnknown);
}

TEST_F(TrialOutput, IsKeptShort) {
  const std::string entered =
      std::string(kStart) + "loaded rookie from bots/rookie_t.c\n" +
      "broadcast: print \"Rookie^7 entered the game\\n\"\n";
  const std::string complaint = "^1Error: weapon number out of range\n";
  // It may be about an opponent.
  EXPECT_THAT(Read(entered + complaint), Not(HasSubstr("range")));
  setup_.opponents.clear();
  std::string output = entered;
  for (int count = 0; count < 1000; ++count) {
    output += complaint + "^1Error: number " + std::to_string(count) + '\n';
  }
  output += "Error: " + std::string(100000, 'x') + "\n" + kOpponent;
  const std::string said = Read(output);
  EXPECT_THAT(said, HasSubstr("E Error: weapon number out of range\n  None"));
  EXPECT_THAT(said, Not(HasSubstr("gargoyle")));
  EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 201);
  EXPECT_THAT(Read(std::string(100000, 'x')), IsEmpty());
}

}  // namespace
}  // namespace fragsmith
