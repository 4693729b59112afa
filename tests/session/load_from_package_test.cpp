#include "session/load_from_package.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "model/characteristic_catalogue.h"
#include "session/bot_document.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "tests/support/ids.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

const std::string kBot = "botfiles\\bots\\rookie";
const std::string kFailed = "Load failed!: Bot loading failed";

/// The unzip tool is a script whose packages are folders. It keeps a list of
/// the files that it was asked for.
class LoadFromPackageTest : public ::testing::Test {
 protected:
  LoadFromPackageTest() : bot_(CreateAverageBot([] { return 0.5; })) {
    Set(bot_, kNameField, "Rookie");
    Set(bot_, kModelField, "Lucy");
    UseTool(R"sh(cp "$2/$(printf %s "$3" | tr '\\' /)" "$4")sh");
    tool_.folder = folder_ / "tool";
    tool_.patience = std::chrono::minutes(1);
    Pack();
  }

  void SetUp() override {
    if (!kIsUnix) GTEST_SKIP() << "The tool is a shell script.";
  }

  static void Set(Bot& bot, const IdNumber& index, Value value) {
    ASSERT_TRUE(bot.SetParameter(Id(index), std::move(value)));
  }

  void UseTool(const std::string& line) {
    folder_.WriteProgram(
        "tool/wzunzip",
        "#!/bin/sh\nprintf '%s\\n' \"$3\" >>\"$0.log\"\n" + line + "\n");
  }

  void Pack() {
    fs::create_directories(wanted_.package);
    ScriptedPrompts none;
    ASSERT_FALSE(
        SaveBot(bot_, wanted_.package, {.uses_layout = true}, {}, none).error);
  }

  std::optional<LoadedBot> Load() {
    prompts_.log.clear();
    fs::remove(folder_ / "tool/wzunzip.log");
    auto loaded = LoadBotFromPackage(wanted_, current_, tool_, temporary_,
                                     {models_, bots_, prompts_});
    EXPECT_TRUE(fs::is_empty(*temporary_.GetTempFolder()));
    return loaded;
  }

  std::string Asked() const { return folder_.Read("tool/wzunzip.log"); }

  TestFolder folder_;
  TemporaryFolder temporary_;
  UnzipTool tool_;
  ModelCatalogue models_ = ModelCatalogue::Standard();
  BotList bots_ = BotList::Standard();
  ScriptedPrompts prompts_;
  Bot bot_;
  Bot current_;
  PackagedBot wanted_ = {
      .package = folder_ / "mod.pk3", .name = "rookie", .withScript = true};
};

TEST_F(LoadFromPackageTest, TakesTheFilesOutOneByOne) {
  current_.SetChatLine(TypeAt(0), ChatLineIndex(9), "is not kept");
  const std::string four =
      kBot + "_c.c\n" + kBot + "_t.c\n" + kBot + "_i.c\n" + kBot + "_w.c\n";
  const auto loaded = Load();
  ASSERT_TRUE(loaded);
  EXPECT_EQ(WriteBotDocument(loaded->bot), WriteBotDocument(bot_));
  EXPECT_TRUE(loaded->notes.empty());
  EXPECT_EQ(Asked(), four + "scripts\\rookie.bot\n");
  wanted_.withScript = false;
  EXPECT_EQ(Load()->bot.Text(kModelField), "Sarge");
  EXPECT_EQ(Asked(), four);
  EXPECT_THAT(prompts_.log, IsEmpty());
  // The tool may spell the file as the package does.
  UseTool(R"sh(cp "$2/$(printf %s "$3" | tr '\\A-Z' /a-z)" "$4")sh");
  wanted_.name = "ROOKIE";
  EXPECT_TRUE(Load());
}

TEST_F(LoadFromPackageTest, FillsTheIdentityOfStandardBots) {
  Set(bot_, kNameField, "Anarki");
  wanted_.name = "anarki";
  Pack();
  const auto identity = [this](const std::string& script, bool with_script,
                               bool loads_description) {
    folder_.Write("mod.pk3/scripts/anarki.bot", script);
    wanted_.withScript = with_script;
    wanted_.loads_description = loads_description;
    const Bot bot = Load().value().bot;
    return bot.Text(kModelField) + " " + bot.Text(kArenaLordField) + " " +
           bot.FunName();
  };
  const std::string fun_name = "^1A^2n^3a^4r^5k^6i";
  // What a script says goes before the table; that fills what is left empty.
  EXPECT_EQ(identity("model\tlucy\n", true, true), "Lucy 1 " + fun_name);
  EXPECT_EQ(identity("funname\tX\narenalord\t0\n", true, true), "Sarge 0 X");
  EXPECT_EQ(identity("funname\tX\n", false, true), "Anarki 1 " + fun_name);
  EXPECT_EQ(identity("funname\tX\n", false, false), "Sarge 0 ");
}

TEST_F(LoadFromPackageTest, ReadsOneFileIntoTheCurrentBot) {
  Set(current_, kNameField, "Anarki");
  current_.SetChatLine(TypeAt(0), ChatLineIndex(0), "Mine");
  const std::vector<std::string> files = {"scripts\\rookie.bot", kBot + "_c.c",
                                          kBot + "_t.c", kBot + "_i.c",
                                          kBot + "_w.c"};
  wanted_.withScript = false;
  for (int type = 0; type <= 4; ++type) {
    wanted_.LoType = static_cast<BotFile>(type);
    const Bot bot = Load().value().bot;
    EXPECT_EQ(Asked(), files.at(static_cast<std::size_t>(type)) + "\n");
    EXPECT_EQ(bot.Text(kModelField), type == 0 ? "Lucy" : "Sarge");
    EXPECT_EQ(bot.Text(Id(405)), type == 1 ? "0.5" : "");
    EXPECT_EQ(bot.Text(kArmorWeight), type == 3 ? "2" : "");
    EXPECT_EQ(bot.Text(Id(44)), type == 4 ? "50" : "");
    EXPECT_EQ(bot.ChatLines(TypeAt(0)),
              (type == 2 ? bot_ : current_).ChatLines(TypeAt(0)));
    EXPECT_EQ(bot.Name() + bot.FunName(), "Anarki");
  }
}

TEST_F(LoadFromPackageTest, GivesNothingWhenAFileIsMissing) {
  for (const char* file : {"botfiles/bots/rookie_c.c", "scripts/rookie.bot",
                           "botfiles/bots/rookie_w.c"}) {
    Pack();
    fs::remove(wanted_.package / file);
    EXPECT_FALSE(Load()) << file;
    EXPECT_THAT(prompts_.log, ElementsAre(kFailed));
    EXPECT_EQ(prompts_.messages.back().icon, MessageIcon::kExclamation);
  }
  wanted_.LoType = BotFile::kWeaponWeights;
  EXPECT_FALSE(Load());
  EXPECT_THAT(prompts_.log, ElementsAre(kFailed));
  // Nothing is looked for, or removed, outside the temporary folder.
  wanted_.LoType = WholeBot{};
  folder_.Write("x_c.c", "whole");
  UseTool(":");
  for (const std::string& name : {std::string("../../x"), std::string("a/.."),
                                  (folder_ / "x").string(), std::string()}) {
    wanted_.name = name;
    EXPECT_FALSE(Load()) << name;
    EXPECT_THAT(prompts_.log, ElementsAre(kFailed));
  }
  EXPECT_EQ(folder_.Read("x_c.c"), "whole");
}

TEST_F(LoadFromPackageTest, GivesNothingWhenAFileIsTooLarge) {
  const std::string file = "mod.pk3/botfiles/bots/rookie_t.c";
  std::string chat = folder_.Read(file);
  chat.resize(kMaxBotFileBytes, '\n');
  folder_.Write(file, chat);
  EXPECT_TRUE(Load());
  folder_.Write(file, chat + '\n');
  EXPECT_FALSE(Load());
  EXPECT_THAT(
      prompts_.log,
      ElementsAre(
          AllOf(StartsWith(kFailed + ". "), HasSubstr("mod.pk3/botfiles/bots/"),
                HasSubstr("larger than 4 MiB"), HasSubstr("4194305 bytes"))));
}

TEST_F(LoadFromPackageTest, SaysWhyTheToolIsNotStarted) {
  tool_.folder = folder_ / "none";
  EXPECT_FALSE(Load());
  const std::string reason =
      ". There is no unzip tool in '" + tool_.folder.string() + "'.";
  EXPECT_THAT(prompts_.log,
              ElementsAre("Load failed: Couldn't load botfiles\\bots\\rookie_c"
                          ".c from mod.pk3. Check that the pk3-file still "
                          "exists" +
                              reason,
                          kFailed + reason));
}

TEST_F(LoadFromPackageTest, GivesNothingWhenTheToolIsSlowOrStopped) {
  UseTool("sleep 5");
  tool_.patience = std::chrono::milliseconds(50);
  EXPECT_FALSE(Load());
  EXPECT_THAT(prompts_.log,
              ElementsAre(AllOf(
                  StartsWith("Load failed: Couldn't load botfiles\\bots\\rook"
                             "ie_c.c from mod.pk3. Check that the pk3-file "
                             "still exists. "),
                  HasSubstr("wzunzip' did not come to its end within"))));
  tool_.patience = std::chrono::minutes(1);
  tool_.keep_going = [] { return false; };
  EXPECT_FALSE(Load());
  EXPECT_THAT(prompts_.log, IsEmpty());
}

}  // namespace
}  // namespace fragsmith
