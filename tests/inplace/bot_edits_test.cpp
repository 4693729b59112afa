#include "inplace/bot_edits.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "game/stand_ins.h"
#include "inplace/file_reading.h"
#include "inplace/origin_files.h"
#include "install/packages/package_writer.h"
#include "model/characteristic_catalogue.h"
#include "tests/support/ids.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::HasSubstr;
using ::testing::Optional;

constexpr const char* kCharacter =
    "#include \"chars.h\"\nskill 1\n{\n#include \"bots/more.h\"\n"
    "\tCHARACTERISTIC_AIM_SKILL\t\t\t\t\t0.3\n}\n";
constexpr const char* kMore = "CHARACTERISTIC_ATTACK_SKILL 0.4\n";

TEST(LookUpBesideTest, FindsWhatTheGameWillFindThere) {
  TestFolder folder;
  folder.Write("loose/More.h", "loose");
  folder.Write("set/botfiles/bots/more.h", "of the bots");
  folder.Write("set/botfiles/bots/deeper/more.h", "deeper");
  folder.Write("set/botfiles/more.h", "of botfiles");
  ASSERT_TRUE(
      WritePackage(folder / "x.pk3", {{"botfiles/bots/more.h", "packed"}}));
  const auto nothing = [](std::string_view) {
    return std::optional<std::string>();
  };
  const auto loose = LookUpBeside({folder / "loose/rook_c.c"}, nothing);
  EXPECT_THAT(loose("bots/more.h"), Optional(std::string("loose")));
  // The game does not look beside the file.
  EXPECT_EQ(loose("more.h"), std::nullopt);
  EXPECT_EQ(loose("bots/../loose/more.h"), std::nullopt);

  const auto set =
      LookUpBeside({folder / "set/botfiles/bots/rook_c.c"}, nothing);
  EXPECT_THAT(set("bots/more.h"), Optional(std::string("of the bots")));
  EXPECT_THAT(set("bots/deeper/more.h"), Optional(std::string("deeper")));
  EXPECT_THAT(set("more.h"), Optional(std::string("of botfiles")));
  EXPECT_EQ(set("../../loose/more.h"), std::nullopt);

  const auto packed =
      LookUpBeside({folder / "x.pk3", "botfiles/bots/rook_c.c"}, nothing);
  EXPECT_THAT(packed("bots/more.h"), Optional(std::string("packed")));
  EXPECT_EQ(packed("more.h"), std::nullopt);
}

TEST(EditBotFilesTest, LooksIntoWhatTheBotsOwnFileIncludes) {
  TestFolder folder;
  folder.Write("loose/rook_c.c", kCharacter);
  folder.Write("loose/more.h", kMore);
  ASSERT_TRUE(WritePackage(folder / "bot-rook.pk3",
                           {{"botfiles/bots/rook_c.c", kCharacter},
                            {"botfiles/bots/more.h", kMore}}));
  for (const OriginFile& origin : {OriginFile{.path = folder / "loose/rook_c.c",
                                  .fingerprint = FingerprintOf(kCharacter)},
                                   OriginFile{.path = folder / "bot-rook.pk3",
                                   .entry = "botfiles/bots/rook_c.c",
                                   .fingerprint = FingerprintOf(kCharacter)}}) {
    Bot before;
    before.Put(Id(103), 0.3);
    Bot after = before;
    after.Put(Id(102), 0.7);
    const OriginFiles files = {{BotFile::kCharacteristics, origin}};
    // A second line of it would make the game throw the level away.
    const BotEdits refused =
        EditBotFiles(files, before, after, StandInGameFile);
    EXPECT_FALSE(refused.IsEditable());
    EXPECT_THAT(refused.files.at(BotFile::kCharacteristics).reason.what,
                HasSubstr("from a file that is included."));
    after = before;
    after.Put(Id(103), 0.7);
    EXPECT_TRUE(EditBotFiles(files, before, after, StandInGameFile).HasEdits());
  }
}

TEST(EditBotFilesTest, SaysWhatReadsAnotherFileAndWhoReadsThis) {
  const auto character = [](const std::string& low, const std::string& high) {
    std::string text = "#include \"chars.h\"\n";
    for (const std::string level : {"1", "2", "4", "5"}) {
      text +=
          "skill " + level + "\n{\n\tCHARACTERISTIC_WEAPONWEIGHTS\t\t\t\t\t";
      text += "\"bots/" + (level == "5" || level == "2" ? high : low);
      text += "\"\n}\n";
    }
    return text;
  };
  const std::string weights = "#define W_GAUNTLET\t\t\t\t50\n";
  TestFolder folder;
  folder.Write("rook_c.c", character("rook_w.c", "hard_w.c"));
  folder.Write("rook_w.c", weights);
  folder.Write("pal_c.c", character("rook_w.c", "rook_w.c"));
  folder.Write("foe_c.c", character("foe_w.c", "foe_w.c") + "// rook_w.c\n");
  OriginFiles files = {
      {BotFile::kCharacteristics,
       {.path = folder / "rook_c.c",
        .fingerprint = FingerprintOf(character("rook_w.c", "hard_w.c"))}},
      {BotFile::kWeaponWeights,
       {.path = folder / "rook_w.c", .fingerprint = FingerprintOf(weights)}}};
  Bot before;
  before.Put(kNameField, "Rook");
  before.Put(Id(44), 50.0);
  Bot after = before;
  after.Put(Id(44), 60.0);
  BotEdits edits = EditBotFiles(files, before, after, StandInGameFile);
  const FileEdit& edit = edits.files.at(BotFile::kWeaponWeights);
  EXPECT_EQ(edit.outcome, FileEdit::Outcome::kEdited) << edit.reason.what;
  ASSERT_EQ(edit.notes.list().size(), 2U);
  EXPECT_EQ(edit.notes.list().at(0).text,
            "At level 5 the game reads bots/hard_w.c, which stays as it is.");
  EXPECT_EQ(edit.notes.list().at(1).text,
            "The edit changes other bots too, whose characteristic files name "
            "this file: pal_c.c.");

  const std::string list =
      "{\nname Rook\naifile bots/rook_c.c\n}\n{\nname Twin\n"
      "aifile bots/rook_c.c\n}\n{\nname Foe\naifile bots/foe_c.c\n}\n";
  folder.Write("bots.txt", list);
  files.insert(
      {BotFile::kDescription,
       {.path = folder / "bots.txt", .fingerprint = FingerprintOf(list)}});
  edits = EditBotFiles(files, before, after, StandInGameFile);
  EXPECT_EQ(edits.files.at(BotFile::kWeaponWeights).notes.list().at(0).text,
            "The edit changes other bots too, which have the same files by "
            "bots.txt: Twin.");
  // The bot itself, which its description calls otherwise.
  const std::string own = "{\nname Tower\naifile bots/rook_c.c\n}\n";
  folder.Write("rook.bot", own);
  files[BotFile::kDescription] = {.path = folder / "rook.bot",
                                  .fingerprint = FingerprintOf(own)};
  edits = EditBotFiles(files, before, after, StandInGameFile);
  EXPECT_EQ(edits.files.at(BotFile::kWeaponWeights).notes.list().size(), 2U);
}

TEST(EditBotFilesTest, SaysThatTheGameDoesNotTakeWhatIsEdited) {
  const auto weights = [](const std::string& shotgun) {
    std::string text = "#include \"inv.h\"\n";
    for (const int index : kWeaponWeightRange) {
      text += std::string(PaddedKey(index)) +
              (index == 45   ? shotgun
               : index == 50 ? "100"
                             : "50") +
              "\n";
    }
    return text + "#include \"fw_weap.c\"\n";
  };
  const auto notes_on = [&weights](const std::string& shotgun, int edited) {
    TestFolder folder;
    folder.Write("rook_w.c", weights(shotgun));
    const OriginFiles files = {
        {BotFile::kWeaponWeights,
         {.path = folder / "rook_w.c",
          .fingerprint = FingerprintOf(weights(shotgun))}}};
    const Bot before =
        BothReaders({BotFile::kWeaponWeights, {}, "rook"}, StandInGameFile)
            .Read(weights(shotgun))
            .bot;
    Bot after = before;
    after.Put(Id(edited), 70.0);
    const BotEdits edits = EditBotFiles(files, before, after, StandInGameFile);
    const FileEdit& edit = edits.files.at(BotFile::kWeaponWeights);
    EXPECT_EQ(edit.outcome, FileEdit::Outcome::kEdited) << edit.reason.what;
    std::string told;
    for (const Note& note : edit.notes.list()) {
      told += std::to_string(note.line) + ": " + note.text + "\n";
    }
    return told;
  };
  EXPECT_EQ(notes_on("(280)", 50),
            "3: The game does not take the file as it is, with this edit or "
            "without: The value of W_SHOTGUN must be one plain number, and "
            "not \"(280)\". Write 280 and nothing else.\n");
  EXPECT_EQ(notes_on("280", 50), "");
  // The edit mends it.
  EXPECT_EQ(notes_on("\"280\"", 45), "");
}

}  // namespace
}  // namespace fragsmith
