#include "inplace/save_in_place.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "game/stand_ins.h"
#include "inplace/game_values.h"
#include "install/packages/package.h"
#include "install/packages/package_writer.h"
#include "install/program/bot_list.h"
#include "session/save_again.h"
#include "support/files.h"
#include "tests/support/ids.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* kCharacter =
    "// mine\n#include \"chars.h\"\nskill 4\n{\n"
    "\tCHARACTERISTIC_NAME\t\t\t\t\t\t\t\"Rook\"\n"
    "\tCHARACTERISTIC_ATTACK_SKILL\t\t\t\t\t0.250 // timid\n}\n";
// The game takes the first of the two, a load the last.
constexpr const char* kWeights =
    "#include \"inv.h\"\n#define W_GAUNTLET\t\t\t\t20\n#ifndef HARD\n"
    "#define W_RAILGUN 5\n#else\n#define W_RAILGUN 7\n#endif\n"
    "#include \"fw_weap.c\"\n";
constexpr const char* kList =
    "{\nname Rook\nmodel sarge\naifile bots/rook_c.c\n}\n"
    "{\nname Other\nmodel major\naifile bots/other_c.c\n}\n";

class SaveInPlaceTest : public ::testing::Test {
 protected:
  /// Loads the bot as the window does.
  void Load() {
    LoadedBot loaded =
        LoadBotFromFolder("rook", folder_ / "botfiles/bots",
                          {.uses_layout = true, .loads_description = true},
                          {models_, bots_, prompts_});
    TakeGameValues(loaded, true, models_, StandInGameFile);
    bot_ = loaded.bot;
    home_.files = loaded.files;
    home_.saved = home_.loaded = std::make_shared<const Bot>(loaded.bot);
    prompts_.log.clear();
  }

  SaveInPlace Saving() {
    return {bot_, home_, author_, game_, prompts_, broken_};
  }

  InPlacePlan Save() {
    SavePlan plan = *PlanOfSaveAgain(bot_, home_);
    InPlacePlan in_place = PlanInPlace(Saving(), plan);
    if (in_place.is_cancelled) return in_place;
    TakeOutUnread(plan, bot_, home_, author_);
    EXPECT_TRUE(WriteBackups(in_place));
    written_ = SaveFiles(bot_, plan, author_, prompts_).written;
    return in_place;
  }

  TestFolder folder_;
  ScriptedPrompts prompts_;
  ModelCatalogue models_;
  BotList bots_;
  Author author_;
  IncludeLookup game_ = StandInGameFile;
  Bot bot_;
  BotHome home_;
  BrokenFiles broken_;
  std::vector<fs::path> written_;
};

/// In a description of another name.
class ListedBotTest : public SaveInPlaceTest,
                      public testing::WithParamInterface<const char*> {};

TEST_P(ListedBotTest, TouchesWhatWasEditedAlone) {
  folder_.Write("botfiles/bots/rook_c.c", kCharacter);
  folder_.Write("botfiles/bots/rook_w.c", kWeights);
  const std::string list = GetParam();
  folder_.Write(list, kList);
  Load();
  EXPECT_EQ(bot_.Text(kModelField), "sarge");
  bot_.Put(Id(402), 0.5);
  const InPlacePlan done = Save();
  EXPECT_FALSE(done.leaves_changes);
  EXPECT_THAT(prompts_.log, IsEmpty());
  std::string wanted = kCharacter;
  wanted.replace(wanted.find("0.250"), 5, "0.500");
  EXPECT_EQ(folder_.Read("botfiles/bots/rook_c.c"), wanted);
  EXPECT_EQ(folder_.Read("botfiles/bots/rook_w.c"), kWeights);
  EXPECT_EQ(folder_.Read(list), kList);
  EXPECT_FALSE(fs::exists(folder_ / "botfiles/bots/rook_i.c"));

  Load();
  bot_.Put(kModelField, std::string("major"));
  EXPECT_THAT(ChangesToShow(Saving()),
              HasSubstr("-model sarge\n+model major\n aifile"));
  Save();
  EXPECT_THAT(written_, ElementsAre(folder_ / list));
  EXPECT_THAT(folder_.Read(list), HasSubstr("name Rook\nmodel major\n"));
}

// The game reads the list first, and then each description.
INSTANTIATE_TEST_SUITE_P(Lists, ListedBotTest,
                         testing::Values("scripts/bots.txt",
                                         "scripts/mine.bot"));

TEST_F(SaveInPlaceTest, AsksAboutWhatIsNotEditable) {
  folder_.Write("botfiles/bots/rook_c.c", kCharacter);
  folder_.Write("botfiles/bots/rook_w.c", kWeights);
  Load();
  bot_.Put(ParameterId(49), 70.0);
  EXPECT_TRUE(Save().is_cancelled);
  EXPECT_EQ(folder_.Read("botfiles/bots/rook_w.c"), kWeights);
  ASSERT_THAT(prompts_.log, SizeIs(1));
  EXPECT_THAT(prompts_.log[0], HasSubstr("\"Railgun usage\" cannot be changed "
                                         "in place."));

  prompts_.choices = {1};
  EXPECT_TRUE(Save().leaves_changes);
  EXPECT_EQ(folder_.Read("botfiles/bots/rook_w.c"), kWeights);

  // What cannot be read any more cannot be kept, and stays.
  const std::string large(kMaxBotFileBytes + 1, ' ');
  folder_.Write("botfiles/bots/rook_w.c", large);
  prompts_.choices = {2};
  EXPECT_TRUE(Save().is_cancelled);
  EXPECT_EQ(folder_.Read("botfiles/bots/rook_w.c"), large);
  EXPECT_FALSE(IsFile(folder_ / "botfiles/bots/rook_w.c.bak"));
  folder_.Write("botfiles/bots/rook_w.c", kWeights);

  prompts_.choices = {2};
  EXPECT_FALSE(Save().leaves_changes);
  EXPECT_EQ(folder_.Read("botfiles/bots/rook_w.c.bak"), kWeights);
  EXPECT_THAT(folder_.Read("botfiles/bots/rook_w.c"),
              HasSubstr("#define W_RAILGUN\t\t\t\t70\r\n"));
}

TEST_F(SaveInPlaceTest, AsksAboutAFileThatTheGameCannotRead) {
  const std::string broken =
      std::string(kWeights) + "weight \"Shotgun\" { return 5 }\n";
  folder_.Write("botfiles/bots/rook_c.c", kCharacter);
  folder_.Write("botfiles/bots/rook_w.c", broken);
  Load();
  broken_ = {{BotFile::kWeaponWeights, "Line 9: A \";\" is missing."}};
  bot_.Put(Id(402), 0.5);
  prompts_.choices = {1};
  const InPlacePlan left = Save();
  EXPECT_FALSE(left.leaves_changes);
  EXPECT_THAT(left.left_broken, ElementsAre(BotFile::kWeaponWeights));
  EXPECT_EQ(folder_.Read("botfiles/bots/rook_w.c"), broken);
  EXPECT_THAT(folder_.Read("botfiles/bots/rook_c.c"), HasSubstr("0.500"));
  EXPECT_THAT(prompts_.log,
              ElementsAre(HasSubstr("The game does not take this file as it "
                                    "is. Line 9: A \";\" is missing.")));

  Load();
  prompts_.choices = {2};
  EXPECT_THAT(Save().left_broken, IsEmpty());
  EXPECT_THAT(written_, ElementsAre(folder_ / "botfiles/bots/rook_w.c"));
  EXPECT_EQ(folder_.Read("botfiles/bots/rook_w.c.bak"), broken);
  EXPECT_THAT(folder_.Read("botfiles/bots/rook_w.c"),
              HasSubstr("#define W_GAUNTLET\t\t\t\t20\r\n"));
}

TEST_F(SaveInPlaceTest, EditsAFileThatTheGameCannotRead) {
  folder_.Write("botfiles/bots/rook_c.c", kCharacter);
  Load();
  broken_ = {{BotFile::kCharacteristics, "There is no skill 1."}};
  bot_.Put(Id(402), 0.5);
  prompts_.choices = {1};
  EXPECT_FALSE(Save().leaves_changes);
  EXPECT_THAT(folder_.Read("botfiles/bots/rook_c.c"),
              HasSubstr("0.500 // timid"));
}

TEST_F(SaveInPlaceTest, AsksWhichOfSeveralNumbersIsMeant) {
  constexpr const char* kTwo =
      "#include \"inv.h\"\n#define NEAR 40\n#define FAR 90\n"
      "weight \"Shotgun\" { switch(ENEMY_HORIZONTAL_DIST) {\n"
      "case 600: return NEAR; default: return FAR; } }\n";
  folder_.Write("botfiles/bots/rook_c.c", kCharacter);
  folder_.Write("botfiles/bots/rook_w.c", kTwo);
  Load();
  EXPECT_EQ(ToNumber(bot_.Parameter(ParameterId(45))), 90);
  bot_.Put(ParameterId(45), 60.0);
  EXPECT_THAT(ChangesToShow(Saving()),
              HasSubstr("several numbers for it (FAR (line 3): 90, NEAR (line "
                        "2): 40), and nobody said which one is meant."));
  EXPECT_THAT(prompts_.log, IsEmpty());

  // To cancel this one is to cancel the save.
  EXPECT_TRUE(Save().is_cancelled);
  EXPECT_THAT(prompts_.log,
              ElementsAre(HasSubstr("several numbers for \"Shotgun usage\". "
                                    "Which one do you want to change?")));
  prompts_.choices = {2};
  const InPlacePlan in_place = Save();
  EXPECT_FALSE(in_place.leaves_changes);
  ASSERT_THAT(in_place.notes.list(), SizeIs(1));
  EXPECT_THAT(in_place.notes.list().front().text,
              HasSubstr("The next load shows the largest of them, 90, and not "
                        "the 60 that is written now."));
  EXPECT_THAT(folder_.Read("botfiles/bots/rook_w.c"),
              HasSubstr("NEAR 60\n#define FAR 90\n"));
  folder_.Write("botfiles/bots/rook_w.c", kTwo);
  prompts_.choices = {3};
  Save();
  EXPECT_THAT(folder_.Read("botfiles/bots/rook_w.c"),
              HasSubstr("NEAR 60\n#define FAR 60\n"));
}

TEST_F(SaveInPlaceTest, WritesOurOwnFilesAnew) {
  Bot made;
  made.Put(kNameField, "Rook");
  EXPECT_FALSE(
      SaveBot(made, folder_.path(), {.uses_layout = true}, author_, prompts_)
          .error);
  Load();
  const std::string chats = folder_.Read("botfiles/bots/rook_t.c");
  bot_.Put(kCommentField, "a comment");
  Save();
  EXPECT_THAT(written_, SizeIs(5));
  EXPECT_THAT(folder_.Read("botfiles/bots/rook_t.c"), HasSubstr("a comment"));
  // A head that no load gives back is not lost by an edit.
  Load();
  bot_.Put(Id(44), 20.0);
  Save();
  EXPECT_THAT(written_, ElementsAre(folder_ / "botfiles/bots/rook_w.c"));
  EXPECT_THAT(folder_.Read("botfiles/bots/rook_w.c"),
              AllOf(HasSubstr("a comment"), HasSubstr("W_GAUNTLET\t\t\t\t20")));
}

TEST_F(SaveInPlaceTest, ReplacesMembersOfTheBotsOwnPackage) {
  const fs::path package = folder_ / "bot-Rook.pk3";
  ASSERT_TRUE(WritePackage(package, {{"readme.txt", "hello"},
                                     {"botfiles/bots/rook_c.c", kCharacter}}));
  bot_.Put(kNameField, "Rook");
  bot_.Put(Id(402), 0.25);
  home_.files.emplace(BotFile::kCharacteristics,
                      OriginFile{.path = package,
                                 .entry = "botfiles/bots/Rook_c.c",
                                 .fingerprint = FingerprintOf(kCharacter)});
  home_.saved = std::make_shared<const Bot>(bot_);
  bot_.Put(Id(402), 0.5);
  ASSERT_TRUE(IsInOwnPackage(bot_, home_));
  const auto saved = SaveIntoOwnPackage(Saving(), home_);
  ASSERT_TRUE(saved);
  EXPECT_TRUE(*saved);
  EXPECT_EQ(*ReadPackageEntry(package, "readme.txt"), "hello");
  EXPECT_THAT(*ReadPackageEntry(package, "botfiles/bots/rook_c.c"),
              HasSubstr("0.500 // timid"));
  EXPECT_THAT(prompts_.log, IsEmpty());

  // Another program changed what is edited now; the safe answer keeps it.
  ASSERT_TRUE(WritePackage(package, {{"botfiles/bots/rook_c.c", kCharacter}}));
  bot_.Put(Id(402), 0.75);
  EXPECT_FALSE(*SaveIntoOwnPackage(Saving(), home_));
  EXPECT_THAT(prompts_.log,
              ElementsAre(HasSubstr("Changed since the bot was")));
  EXPECT_EQ(*ReadPackageEntry(package, "botfiles/bots/rook_c.c"), kCharacter);

  // A member that is written anew is kept beside the package.
  ASSERT_TRUE(WritePackage(package, {{"botfiles/bots/rook_w.c", kWeights}}));
  home_.files = {{BotFile::kWeaponWeights,
                  OriginFile{.path = package,
                             .entry = "botfiles/bots/rook_w.c",
                             .fingerprint = FingerprintOf(kWeights)}}};
  home_.saved = std::make_shared<const Bot>(bot_);
  bot_.Put(ParameterId(49), 70.0);
  prompts_.log.clear();
  prompts_.choices = {2};
  ASSERT_TRUE(*SaveIntoOwnPackage(Saving(), home_));
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("beside the package")));
  EXPECT_EQ(folder_.Read("rook_w.c.bak"), kWeights);
  EXPECT_THAT(*ReadPackageEntry(package, "botfiles/bots/rook_w.c"),
              HasSubstr("#define W_RAILGUN\t\t\t\t70\r\n"));

  // Under another name the package is not its own.
  bot_.Put(kNameField, "Bishop");
  EXPECT_FALSE(IsInOwnPackage(bot_, home_));
}

TEST(WriteEditsTest, PutsBackWhatWasWrittenBeforeAnError) {
  TestFolder folder;
  folder.Write("rook_c.c", "old");
  BotEdits edits;
  FileEdit& first = edits.files[BotFile::kCharacteristics];
  first.outcome = FileEdit::Outcome::kEdited;
  first.origin.path = folder / "rook_c.c";
  first.old_bytes = "old";
  first.bytes = "new";
  FileEdit& second = edits.files[BotFile::kDescription];
  second = first;
  second.origin.path = folder / "none/rook.bot";
  if (edits.files.begin()->first != BotFile::kCharacteristics) {
    std::swap(first, second);
  }
  const Result<void> written = WriteEdits(edits);
  ASSERT_FALSE(written);
  EXPECT_TRUE(
      written.error().advice.ends_with(" The other files are as they were."));
  EXPECT_EQ(folder.Read("rook_c.c"), "old");
}

}  // namespace
}  // namespace fragsmith
