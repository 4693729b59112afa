#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <filesystem>
#include <string>

#include "editor/dialogs/open_dialog.h"
#include "support/files.h"
#include "tests/editor/window_fixture.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kRook =
    "{ // mine\nname Rook\nmodel sarge\naifile bots/rook_c.c\n}\n";
constexpr const char* kOther =
    "// theirs\n{\nname Other\nmodel major\naifile bots/other_c.c\n}\n";

class SaveInPlaceByWindow : public WindowFixture {
 protected:
  /// Opens a bot of another author that is described there.
  void OpenRook(const std::string& description) {
    folder_.Write("g/botfiles/bots/rook_c.c",
                  "// mine\n#include \"chars.h\"\nskill 1\n{\n"
                  "\tCHARACTERISTIC_NAME\t\t\t\t\t\t\t\"Rook\"\n}\n");
    folder_.Write(description, std::string(kOther) + kRook);
    prompts_.confirmations = {true};
    window_->OpenPath(folder_ / "g/botfiles/bots/rook_c.c");
    prompts_.confirmations.clear();
    prompts_.log.clear();
    ASSERT_EQ(bot().Text(kModelField), "Sarge");
  }

  void Make(const std::string& place, bool keeps_files) {
    prompts_.log.clear();
    ChooseAndAnswer<frmOpen>("mnuMake", [&](frmOpen& dialog) {
      const auto tick = [&dialog](const char* name, bool is_on) {
        auto* const box =
            dialog.findChild<QCheckBox*>(QString::fromLatin1(name));
        // There is nothing to keep of a bot that came from nowhere.
        if (box == nullptr && !is_on) return;
        ASSERT_NE(box, nullptr) << name;
        box->setChecked(is_on);
      };
      tick("chkSaveStructure", true);
      tick("chkKeepFiles", keeps_files);
      auto* const folder =
          dialog.findChild<QLineEdit*>(QStringLiteral("txtFolder"));
      folder->setText(QString::fromStdString(BytesFromPath(folder_ / place)));
      folder->setModified(true);
      dialog.accept();
    });
  }
};

TEST_F(SaveInPlaceByWindow, GivesTheAuthorsWordsBackThatUndoTakesBack) {
  // A load goes by columns and takes these otherwise than the game.
  const std::string weights =
      "#define W_RAILGUN 280\n#define W_BFG10K\t\t\t200\n"
      "#include \"fw_weap.c\"\n";
  const std::string rook =
      "{ // mine\nname Rook\nmodel sarge\nfunname Rook // the fun\n"
      "color1 5\naifile bots/rook_c.c\n}\n";
  folder_.Write("g/botfiles/bots/rook_w.c", weights);
  folder_.Write("g/botfiles/bots/rook_c.c",
                "skill 1\n{\n\tCHARACTERISTIC_NAME\t\t\t\t\t\t\t\"Rook\"\n}\n");
  folder_.Write("g/scripts/rook.bot", rook);
  prompts_.confirmations = {true};
  window_->OpenPath(folder_ / "g/botfiles/bots/rook_c.c");
  CurrentBot& current = window_->current();
  const auto set = [&current](ParameterId id, const Value& value) {
    current.EndStep();
    current.Edit({}, [&](Bot& bot) { bot.Put(id, value); });
  };
  const ParameterId railgun(kWeaponWeightRange.first + 6);
  set(kFunNameField, std::string("Castle"));
  set(kRailColorField, 3.0);
  set(railgun, 150.0);
  Choose("mnuSaveAgain");
  EXPECT_THAT(folder_.Read("g/scripts/rook.bot"),
              AllOf(HasSubstr("Castle"), HasSubstr("color1 3")));
  EXPECT_THAT(folder_.Read("g/botfiles/bots/rook_w.c"), HasSubstr("150"));
  // One of them is taken back, and then all.
  current.steps().undo();
  Choose("mnuSaveAgain");
  EXPECT_EQ(folder_.Read("g/botfiles/bots/rook_w.c"), weights);
  EXPECT_THAT(folder_.Read("g/scripts/rook.bot"), HasSubstr("color1 3"));
  current.steps().undo();
  Choose("mnuSaveAgain");
  EXPECT_THAT(folder_.Read("g/scripts/rook.bot"),
              AllOf(HasSubstr("Castle"), HasSubstr("color1 5\n")));
  current.steps().undo();
  Choose("mnuSaveAgain");
  EXPECT_EQ(folder_.Read("g/scripts/rook.bot"), rook);
}

TEST_F(SaveInPlaceByWindow, GivesALineBackAsItsAuthorWroteIt) {
  const std::string chat =
      "chat \"rook\"\n{\n\ttype \"game_enter\"\n\t{\n\t\t\"hi\";\n"
      "\t\tTAUNT0;\n\t}\n}\n";
  folder_.Write("b/rook_c.c", "#include \"chars.h\"\nskill 1\n{\n}\n");
  folder_.Write("b/rook_t.c", chat);
  prompts_.confirmations = {true};
  window_->OpenPath(folder_ / "b/rook_c.c");
  prompts_.log.clear();
  window_->current().Edit(
      {.text = {}, .place = {}, .merges = false},
      [](Bot& bot) { bot.RemoveChatLine(TypeAt(0), ChatLineIndex(1)); });
  Choose("mnuSaveAgain");
  EXPECT_THAT(folder_.Read("b/rook_t.c"), Not(HasSubstr("TAUNT")));
  Choose("mnuUndo");
  Choose("mnuSaveAgain");
  EXPECT_EQ(folder_.Read("b/rook_t.c"), chat);
  EXPECT_FALSE(is_changed());
  EXPECT_THAT(prompts_.log, IsEmpty());
}

TEST_F(SaveInPlaceByWindow, WritesWhatItShowsOverWhatAnotherHasWritten) {
  folder_.Write("b/rook_c.c",
                "#include \"chars.h\"\nskill 5\n{\n"
                "\tCHARACTERISTIC_ATTACK_SKILL\t\t\t\t\t0.50\n}\n");
  const std::string weights =
      "#define W_RAILGUN 10\n#define W_SHOTGUN 20\n"
      "#include \"fw_weap.c\"\n";
  folder_.Write("b/rook_w.c", weights);
  prompts_.confirmations = {true};
  window_->OpenPath(folder_ / "b/rook_c.c");
  ASSERT_EQ(bot().Parameter(Id(45)), Value(20.0));
  // Another program: a value in a file that is edited here too, and one in a
  // file that is not.
  folder_.Write("b/rook_w.c",
                "#define W_RAILGUN 10\n#define W_SHOTGUN 333\n// theirs\n"
                "#include \"fw_weap.c\"\n");
  folder_.Write("b/rook_c.c",
                "#include \"chars.h\"\nskill 5\n{\n"
                "\tCHARACTERISTIC_ATTACK_SKILL\t\t\t\t\t0.77\n}\n");
  window_->current().SetParameter(Id(49), 60.0);
  constexpr std::size_t kOverwrite = 2;
  prompts_.choices = {kOverwrite};
  prompts_.confirmations = {true};
  prompts_.log.clear();
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log,
              ElementsAre(HasSubstr("rook_c.c"), HasSubstr("rook_w.c")));
  EXPECT_THAT(folder_.Read("b/rook_w.c"), HasSubstr("W_SHOTGUN 20\n// theirs"));
  EXPECT_THAT(folder_.Read("b/rook_c.c"), HasSubstr("\t0.5\n"));
  EXPECT_THAT(folder_.Read("b/rook_w.c"), HasSubstr("W_RAILGUN 60"));
  EXPECT_FALSE(is_changed());
}

TEST_F(SaveInPlaceByWindow, LeavesTheListToTheOthersUnderANewName) {
  const std::string list = std::string(kOther) + kRook;
  OpenRook("g/scripts/bots.txt");
  Type("txtBotPara_0", "Zora");
  ChooseAndAnswer<QDialog>("mnuChanges", [](QDialog& dialog) {
    EXPECT_THAT(
        dialog.findChild<QPlainTextEdit*>()->toPlainText().toStdString(),
        AllOf(HasSubstr("--- /dev/null\n+++ b/scripts/zora.bot\n"),
              HasSubstr("+++ b/botfiles/bots/zora_t.c\n"),
              HasSubstr("+\tCHARACTERISTIC_NAME\t\t\t\t\t\t\t\"Zora\"\n"),
              Not(HasSubstr("bots.txt")), Not(HasSubstr("--- a/"))));
    dialog.reject();
  });
  EXPECT_FALSE(IsFile(folder_ / "g/scripts/zora.bot"));
  Choose("mnuSaveAgain");
  EXPECT_EQ(folder_.Read("g/scripts/bots.txt"), list);
  EXPECT_EQ(folder_.Read("g/scripts/zora.bot"),
            "{ // mine\nname Zora\nmodel sarge\naifile bots/zora_c.c\n}\n");
  Choose("mnuUndo");
  Type("txtBotPara_2", "Castle");
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_THAT(folder_.Read("g/scripts/bots.txt"),
              AllOf(HasSubstr(kOther), HasSubstr("Castle")));
  EXPECT_FALSE(is_changed());

  // Somebody takes the bot out of the list, and then the list away.
  folder_.Write("g/scripts/bots.txt", kOther);
  Choose("mnuSaveAgain");
  fs::remove(folder_ / "g/scripts/bots.txt");
  Choose("mnuSaveAgain");
  const auto asks_for_its_own =
      AllOf(HasSubstr("bots.txt' does not describe the bot any more. Do you "
                      "want to make '"),
            HasSubstr("rook.bot'?"), Not(HasSubstr("author's own")));
  EXPECT_THAT(prompts_.log, ElementsAre(asks_for_its_own, asks_for_its_own));
  EXPECT_FALSE(IsFile(folder_ / "g/scripts/rook.bot"));
  folder_.Write("g/scripts/bots.txt", kOther);
  folder_.Write("g/scripts/rook.bot", kOther);
  prompts_.log.clear();
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log,
              ElementsAre(HasSubstr("rook.bot' was not read with this bot. "
                                    "Other bots in it, which would go: "
                                    "\"Other\". Do you want to replace it?")));
  fs::remove(folder_ / "g/scripts/rook.bot");
  prompts_.confirmations = {true};
  Choose("mnuSaveAgain");
  EXPECT_EQ(folder_.Read("g/scripts/bots.txt"), kOther);
  EXPECT_THAT(folder_.Read("g/scripts/rook.bot"), HasSubstr("Castle"));
}

TEST_F(SaveInPlaceByWindow, TellsWhatAnEditReachedToo) {
  const std::string gender = "\tCHARACTERISTIC_GENDER\t\t\t\t\t\t";
  folder_.Write("b/rook_c.c", "#include \"chars.h\"\nskill 1\n{\n" + gender +
                                  "\"male\"\n}\nskill 4\n{\n" + gender +
                                  "\"it\"\n}\n");
  prompts_.confirmations = {true};
  window_->OpenPath(folder_ / "b/rook_c.c");
  window_->current().SetParameter(kGenderField, std::string("female"));
  const std::string note = "\"male\" at level 1, \"it\" at level 4";
  ChooseAndAnswer<QDialog>("mnuChanges", [&note](QDialog& dialog) {
    EXPECT_THAT(
        dialog.findChild<QPlainTextEdit*>()->toPlainText().toStdString(),
        HasSubstr(note));
    dialog.reject();
  });
  const auto count = [this, &note] {
    const auto* const list = window_->findChild<QListWidget*>("lstNotes");
    return list->findItems(QString::fromStdString(note), Qt::MatchContains)
        .size();
  };
  EXPECT_EQ(count(), 0);
  Choose("mnuSaveAgain");
  EXPECT_EQ(count(), 1);
}

TEST_F(SaveInPlaceByWindow, DropsNoOtherBotOfADescriptionWithoutAWord) {
  OpenRook("g/scripts/rook.bot");
  Type("txtBotPara_2", "Castle");
  Make("g", true);
  EXPECT_THAT(prompts_.log, Not(testing::Contains(HasSubstr("Other bots"))));
  const std::string edited = folder_.Read("g/scripts/rook.bot");
  EXPECT_THAT(edited,
              AllOf(HasSubstr(kOther), HasSubstr("{ // mine\nname Rook\n"),
                    HasSubstr("Castle")));
  EXPECT_FALSE(is_changed());

  const std::string never_read =
      std::string(kOther) + "{\nname Rai\naifile bots/rai_c.c\n}\n";
  folder_.Write("h/scripts/rook.bot", never_read);
  Make("g", false);
  EXPECT_THAT(prompts_.log, testing::Contains(HasSubstr(
                                "rook.bot' is there already. Other bots in it, "
                                "which would go: \"Other\". Do you want")));
  EXPECT_EQ(folder_.Read("g/scripts/rook.bot"), edited);
  for (const bool keeps_files : {false, true}) {
    Make("h", keeps_files);
    EXPECT_THAT(prompts_.log,
                testing::Contains(HasSubstr("go: \"Other\", \"Rai\". ")));
    EXPECT_EQ(folder_.Read("h/scripts/rook.bot"), never_read);
    EXPECT_FALSE(IsFile(folder_ / "h/botfiles/bots/rook_c.c"));
  }
}

TEST_F(SaveInPlaceByWindow, AsksBeforeItTakesThePlaceOfOthers) {
  OpenRook("g/scripts/rook.bot");
  // Files that somebody made by hand, which this bot was not read from.
  const std::string by_hand = "// by hand\n#define W_RAILGUN 9\n";
  folder_.Write("h/botfiles/bots/rook_w.c", by_hand);
  Make("h", false);
  EXPECT_THAT(prompts_.log,
              ElementsAre(HasSubstr("rook_w.c' was not read with this bot. Do "
                                    "you want to replace it?")));
  EXPECT_EQ(folder_.Read("h/botfiles/bots/rook_w.c"), by_hand);
  EXPECT_FALSE(IsFile(folder_ / "h/botfiles/bots/rook_c.c"));
  prompts_.confirmations = {true};
  Make("h", false);
  prompts_.confirmations.clear();
  EXPECT_THAT(folder_.Read("h/botfiles/bots/rook_w.c"),
              Not(HasSubstr("by hand")));

  // A new name that a list, or another description, has already.
  folder_.Write("h/scripts/bots.txt",
                "{\nname ZORA\naifile bots/other_c.c\n}\n");
  Type("txtBotPara_0", "Zora");
  prompts_.log.clear();
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log,
              ElementsAre(AllOf(HasSubstr("bots.txt' describes a bot \"Zora\" "
                                          "too. The game takes that one"),
                                HasSubstr("'zora.bot'"))));
  EXPECT_FALSE(IsFile(folder_ / "h/botfiles/bots/zora_c.c"));
  prompts_.confirmations = {true};
  Choose("mnuSaveAgain");
  EXPECT_TRUE(IsFile(folder_ / "h/botfiles/bots/zora_c.c"));
  EXPECT_FALSE(is_changed());
  // It was said.
  prompts_.log.clear();
  Type("txtBotPara_2", "Castle");
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, IsEmpty());
}

TEST_F(SaveInPlaceByWindow, AsksBeforeItTakesThePlaceOfABotOfOurs) {
  fs::create_directories(folder_ / "h");
  fs::create_directories(folder_ / "i");
  Type("txtBotPara_0", "Beta");
  Make("h", false);
  const std::string first = folder_.Read("h/botfiles/bots/beta_c.c");
  // It is known there, also after a save elsewhere.
  Type("txtBotPara_2", "Castle");
  Make("i", false);
  Make("h", false);
  EXPECT_THAT(prompts_.log, IsEmpty());
  folder_.Write("h/botfiles/bots/beta_c.c", first + "// mine");
  Make("i", false);
  Make("h", false);
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("beta_c.c' was changed")));

  prompts_.confirmations = {true};
  Choose("mnuNew_rusher");
  prompts_.confirmations.clear();
  Type("txtBotPara_0", "Beta");
  Make("h", false);
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("not read with this bot")));
  EXPECT_THAT(folder_.Read("h/botfiles/bots/beta_c.c"), HasSubstr("// mine"));
}

TEST_F(SaveInPlaceByWindow, KnowsThatABotIsInNoFileAnyMore) {
  OpenRook("g/scripts/rook.bot");
  fs::remove_all(folder_ / "g");
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("not there any more")));
  EXPECT_TRUE(is_changed());
}

TEST_F(SaveInPlaceByWindow, KnowsWhatItWroteBeforeASaveFailed) {
  OpenRook("g/scripts/rook.bot");
  Type("txtBotPara_0", "Zora");
  const fs::path in_the_way = folder_ / "g/botfiles/bots/zora_t.c";
  fs::create_directories(in_the_way / "full");
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log,
              ElementsAre(HasSubstr("New: zora_c.c, zora_i.c, zora_w.c.")));
  EXPECT_TRUE(is_changed());
  fs::remove_all(in_the_way);
  prompts_.log.clear();
  // What another program has made of it is not the bot's.
  folder_.Write("g/botfiles/bots/zora_w.c", "theirs");
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log,
              ElementsAre(AllOf(HasSubstr("zora_w.c' was not read"),
                                Not(HasSubstr("zora_c.c")))));
}

}  // namespace
}  // namespace fragsmith
