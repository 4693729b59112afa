#include "inplace/keep_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "game/stand_ins.h"
#include "inplace/bot_edits.h"
#include "inplace/game_macro_files.h"
#include "inplace/game_values.h"
#include "inplace/origin_files.h"
#include "install/packages/package_writer.h"
#include "tests/support/ids.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

constexpr const char* kStart = "botfiles/bots/rook";
constexpr const char* kCharacter =
    "// mine\n#include \"chars.h\"\nskill 1\n{\n"
    "\tCHARACTERISTIC_NAME\t\t\t\t\t\t\t\"Rook\"\n"
    "\tCHARACTERISTIC_WEAPONWEIGHTS \"bots/rook_w.c\" // bots/rook_w.c\n"
    "\tCHARACTERISTIC_ITEMWEIGHTS \"bots/rook_i.c\"\n"
    "\tCHARACTERISTIC_CHAT_FILE \"bots/rook_t.c\"\n"
    "\tCHARACTERISTIC_CHAT_NAME \"rook\"\n"
    "\tCHARACTERISTIC_ATTACK_SKILL\t\t\t\t\t0.250 // timid\n}\n";
constexpr const char* kChat =
    "chat \"rook\" // me\n{\n\ttype \"kill_insult\"\n\t{\n"
    "\t\t\"rook\";\n\t}\n}\n";
constexpr const char* kWeapons =
    "#include \"inv.h\"\n#define SGW 30 // few\n#define NGW 7\n"
    "#include \"fuzw.c\"\n";
constexpr const char* kWeaponCode =
    "weight \"Shotgun\" { return SGW; }\nweight \"Nailgun\" { return NGW; }\n";
constexpr const char* kList =
    "{\nname Other\nmodel major\naifile bots/other_c.c\n}\n"
    "{\nname Rook // me\nmodel sarge\nheadmodel visor\n"
    "aifile bots/rook_c.c\n}\n";

/// A bot out of the package of somebody else.
class KeepFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::string start = kStart;
    ASSERT_TRUE(WritePackage(package_, {{start + "_c.c", kCharacter},
                                        {start + "_t.c", kChat},
                                        {start + "_w.c", kWeapons},
                                        {"botfiles/fuzw.c", kWeaponCode},
                                        {"scripts/bots.txt", kList}}));
    LoadedBot loaded;
    for (const BotFile kind :
         {BotFile::kCharacteristics, BotFile::kChat, BotFile::kWeaponWeights}) {
      const OriginFile file = {.path = package_,
                               .entry = start + std::string(FileSuffix(kind))};
      ReadBotFile(kind, WholeBot{}, *BytesAt(file), "rook", "rook", loaded);
      loaded.files.emplace(kind, file);
    }
    TakeGameValues(loaded, true, ModelCatalogue(), game_);
    ASSERT_THAT(loaded.files, SizeIs(4));
    bot_ = loaded.bot;
    home_.files = loaded.files;
    home_.saved = home_.loaded = std::make_shared<const Bot>(bot_);
  }

  SavePlan Plan() {
    return PlanOf(bot_, {folder_.path(), {.uses_layout = true}});
  }

  TestFolder folder_;
  fs::path package_ = folder_ / "pak6.pk3";
  IncludeLookup game_ = StandInGameFile;
  Bot bot_;
  BotHome home_;
};

TEST_F(KeepFiles, GivesTheAuthorsBytesWithTheEdits) {
  EXPECT_TRUE(HasFilesToKeep(bot_, home_));
  bot_.Put(Id(102), 0.5);
  bot_.Put(ParameterId(45), 60.0);
  SavePlan plan = Plan();
  EXPECT_THAT(KeepAuthorsFiles(bot_, home_, game_, {}, plan).list(), IsEmpty());
  std::string wanted = kCharacter;
  wanted.replace(wanted.find("0.250"), 5, "0.500");
  EXPECT_EQ(plan.contents[BotFile::kCharacteristics], wanted);
  EXPECT_EQ(plan.contents[BotFile::kChat], kChat);
  EXPECT_THAT(plan.contents[BotFile::kWeaponWeights],
              HasSubstr("#define SGW 60 // few\n#define NGW 7\n"));
  // Its part of the list becomes a description of its own.
  EXPECT_EQ(plan.contents[BotFile::kDescription],
            "{\nname Rook // me\nmodel sarge\nheadmodel visor\n"
            "aifile bots/rook_c.c\n}\n");
  // There is none to keep, and it is made anew.
  EXPECT_FALSE(plan.contents.contains(BotFile::kItemWeights));
}

TEST_F(KeepFiles, FollowsTheBotToANewName) {
  bot_.Put(kNameField, "Bishop");
  SavePlan plan = Plan();
  EXPECT_THAT(KeepAuthorsFiles(bot_, home_, game_, {}, plan).list(), IsEmpty());
  const std::string& character = plan.contents[BotFile::kCharacteristics];
  EXPECT_THAT(character, HasSubstr("\"bots/bishop_w.c\" // bots/rook_w.c\n"));
  EXPECT_THAT(character, HasSubstr("CHARACTERISTIC_CHAT_NAME \"bishop\"\n"));
  EXPECT_THAT(character, HasSubstr("\t\"Bishop\"\n"));
  // What the bot says is another matter.
  EXPECT_EQ(plan.contents[BotFile::kChat],
            "chat \"bishop\" // me\n{\n\ttype \"kill_insult\"\n\t{\n"
            "\t\t\"rook\";\n\t}\n}\n");
  EXPECT_THAT(plan.contents[BotFile::kDescription],
              HasSubstr("{\nname Bishop // me\nmodel sarge\nheadmodel visor\n"
                        "aifile bots/bishop_c.c\n}\n"));
}

TEST_F(KeepFiles, SaysWhatIsWrittenAnewAfterAll) {
  // The weight code does not ask for it.
  bot_.Put(ParameterId(49), 60.0);
  bot_.Put(kCommentField, "a comment");
  SavePlan plan = Plan();
  const Notes notes = KeepAuthorsFiles(bot_, home_, game_, {}, plan);
  ASSERT_THAT(notes.list(), SizeIs(2));
  EXPECT_THAT(notes.list()[0].text,
              HasSubstr("The file was written anew. \"Railgun usage\" cannot"));
  EXPECT_FALSE(plan.contents.contains(BotFile::kWeaponWeights));
  EXPECT_TRUE(plan.contents.contains(BotFile::kCharacteristics));
}

TEST_F(KeepFiles, KnowsItsOwnFilesInItsOwnPackage) {
  // Another author's package may have the bot's own name.
  const fs::path own = folder_ / "bot-Rook.pk3";
  fs::rename(package_, own);
  for (auto& [kind, file] : home_.files) file.path = own;
  home_.files.erase(BotFile::kDescription);
  ASSERT_TRUE(IsInOwnPackage(bot_, home_));
  EXPECT_TRUE(HasFilesToKeep(bot_, home_));

  std::vector<PackageEntry> ours;
  for (const auto& [kind, file] : home_.files) {
    ours.push_back({file.entry, BytesOf(kind, bot_, {})});
  }
  ASSERT_TRUE(WritePackage(own, ours));
  EXPECT_FALSE(HasFilesToKeep(bot_, home_));
}

TEST_F(KeepFiles, GivesWayToTheGamesOwnMacros) {
  const MacrosByFile macros = OtherMacrosFor(home_.files, game_);
  ASSERT_THAT(macros, SizeIs(1));
  bot_.Put(ParameterId(45), 60.0);
  SavePlan plan = Plan();
  WriteGameMacros(macros, bot_, {}, home_.files, plan);
  const std::string text = plan.contents[BotFile::kWeaponWeights];
  EXPECT_THAT(text, HasSubstr("#define W_SHOTGUN\t\t\t\t60\r\n"));
  EXPECT_THAT(text,
              HasSubstr("#define SGW\t\t\t\t60\r\n#define NGW\t\t\t\t7\r\n"));
  EXPECT_TRUE(text.ends_with("//\r\n#include \"fuzw.c\"\r\n"));

  // In place, both macros of the weight change later on.
  folder_.Write("botfiles/bots/rook_w.c", text);
  folder_.Write("botfiles/fuzw.c", kWeaponCode);
  const OriginFiles files = {
      {BotFile::kWeaponWeights,
       OriginFile{.path = folder_ / "botfiles/bots/rook_w.c"}}};
  Bot after = bot_;
  after.Put(ParameterId(45), 80.0);
  const BotEdits edits = EditBotFiles(files, bot_, after, game_);
  ASSERT_TRUE(edits.IsEditable());
  EXPECT_THAT(DiffOf(edits), HasSubstr("-#define W_SHOTGUN\t\t\t\t60\r\n"));
  EXPECT_THAT(DiffOf(edits), HasSubstr("+#define SGW\t\t\t\t80\r\n"));

  // Without such code nothing is written that it would ask for.
  EXPECT_THAT(OtherMacrosFor({}, game_), IsEmpty());
}

}  // namespace
}  // namespace fragsmith
