#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStatusBar>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "editor/controls/dir_view.h"
#include "editor/dialogs/open_dialog.h"
#include "editor/state/bot_checker.h"
#include "editor/state/draft_keeper.h"
#include "install/packages/package.h"
#include "install/packages/package_writer.h"
#include "install/program/model_list_file.h"
#include "session/presets.h"
#include "session/save_bot.h"
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
using testing::SizeIs;

/// Where bots came from, and that what is saved goes there and nowhere else.
class Origin : public WindowFixture {
 protected:
  /// Writes a bot with that attack skill; gives its characteristic file.
  fs::path Make(const std::string& place, const std::string& name, double skill,
                SaveOptions options = {.uses_layout = true}) {
    Bot made = CreateZeroBot();
    made.Put(kNameField, name);
    made.Put(kFunNameField, "Fun" + place);
    made.Put(Id(102), skill);
    fs::create_directories(folder_ / place);
    return SaveBot(made, folder_ / place, options, {}, prompts_)
        .written.front();
  }

  void Open(const fs::path& file) {
    prompts_.confirmations = {true};
    window_->OpenPath(file);
    prompts_.confirmations.clear();
    prompts_.log.clear();
  }

  /// Has the files made in that folder by the dialog.
  void MakeIn(const std::string& place, bool makes_package) {
    fs::create_directories(folder_ / place);
    ChooseAndAnswer<frmOpen>("mnuMake", [&](frmOpen& dialog) {
      dialog.findChild<QCheckBox*>(QStringLiteral("chkMakePk3"))
          ->setChecked(makes_package);
      dialog.findChild<DirView*>()->SetFolder(folder_ / place);
      dialog.accept();
    });
  }

  void Press(Qt::Key key) {
    auto* const slider = Find<QWidget>("osBotPara_44")
                             ->findChild<QSlider*>(QStringLiteral("sliValue"));
    slider->setFocus();
    QTest::keyClick(slider, key);
  }

  std::map<std::string, std::string> Contents(const std::string& place) {
    std::map<std::string, std::string> contents;
    for (const auto& entry :
         fs::recursive_directory_iterator(folder_ / place)) {
      if (!entry.is_regular_file()) continue;
      contents
          [entry.path().lexically_relative(folder_ / place).generic_string()] =
              *ReadFile(entry.path());
    }
    return contents;
  }

  /// An unzip tool that takes what it is asked for out of that folder.
  void TakeOutOf(const std::string& place) {
    folder_.WriteProgram("tools/wzunzip",
                         "#!/bin/sh\nname=${3##*[\\\\/]}\ncp '" +
                             BytesFromPath(folder_ / place) +
                             "'/$(echo \"$name\" | tr R r) \"$4/$name\"\n");
    state_->settings.WinZipDir = BytesFromPath(folder_ / "tools");
    state_->InitByValues();
  }

  QString Status() { return window_->statusBar()->currentMessage(); }
};

TEST_F(Origin, IsThatOfTheBotThatIsShown) {
  const fs::path a = Make("a", "Rookie", 0.25);
  const fs::path b = Make("b", "Rookie", 0.75);
  // One that says the same as the other is another bot all the same.
  const fs::path c = Make("c", "Rookie", 0.75);
  Open(a);
  Open(b);
  Open(c);
  const auto b_before = Contents("b");
  const auto c_before = Contents("c");
  Choose("mnuUndo");
  Choose("mnuUndo");
  EXPECT_EQ(bot().Parameter(Id(102)), Value(0.25F));
  Press(Qt::Key_End);
  Choose("mnuSaveAgain");
  EXPECT_FALSE(is_changed());
  EXPECT_THAT(folder_.Read("a/botfiles/bots/rookie_w.c"), HasSubstr("400"));
  EXPECT_EQ(Contents("b"), b_before);
  EXPECT_EQ(Contents("c"), c_before);
  // What is put back is that of this bot too.
  EXPECT_EQ(window_->current().loaded().Parameter(Id(102)), Value(0.25F));

  // A step before or behind the save is no work of another program.
  Choose("mnuUndo");
  Choose("mnuSaveAgain");
  EXPECT_THAT(folder_.Read("a/botfiles/bots/rookie_w.c"),
              Not(HasSubstr("400")));
  EXPECT_THAT(prompts_.log, IsEmpty());

  // A new bot has no place, and the undone one has its own again.
  Choose("mnuNewZero");
  ChooseAndAnswer<frmOpen>("mnuSaveAgain",
                           [](frmOpen& dialog) { dialog.reject(); });
  Choose("mnuUndo");
  Press(Qt::Key_End);
  Choose("mnuSaveAgain");
  EXPECT_THAT(folder_.Read("a/botfiles/bots/rookie_w.c"), HasSubstr("400"));
}

TEST_F(Origin, MaySaveAnewWhatTheGameCannotRead) {
  const fs::path bot_file = Make("a", "Rookie", 0.25);
  const std::string chats = folder_.Read("a/botfiles/bots/rookie_t.c");
  std::string broken = chats;
  broken.insert(broken.find("\t}"), "\t\t\"hi;\r\n");
  folder_.Write("a/botfiles/bots/rookie_t.c", broken);
  Open(bot_file);
  prompts_.choices = {1};
  Choose("mnuSaveAgain");
  EXPECT_THAT(
      prompts_.log,
      ElementsAre(HasSubstr("The game does not take this file as it is.")));
  EXPECT_EQ(folder_.Read("a/botfiles/bots/rookie_t.c"), broken);
  EXPECT_EQ(Status(), "Nothing was written.");
  // With an edit, that alone is saved.
  Press(Qt::Key_End);
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, SizeIs(1));
  EXPECT_THAT(folder_.Read("a/botfiles/bots/rookie_w.c"), HasSubstr("400"));

  prompts_.choices = {2};
  Choose("mnuSaveAgain");
  EXPECT_EQ(folder_.Read("a/botfiles/bots/rookie_t.c.bak"), broken);
  EXPECT_NE(folder_.Read("a/botfiles/bots/rookie_t.c"), broken);
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, SizeIs(2));
  EXPECT_EQ(Status(), "The files say all this already; nothing was written.");
}

TEST_F(Origin, GoesWithADraft) {
  const fs::path a = Make("a", "Rookie", 0.25);
  const fs::path b = Make("b", "Other", 0.75);
  std::ofstream(a, std::ios::app)
      << "// a comment of the author\nskill 1 { CHARACTERISTIC_OWN 1 }\n";
  Open(a);
  const auto notes = [this] {
    const auto* const list = Find<QListWidget>("lstNotes");
    std::vector<std::string> texts;
    for (int row = 0; row < list->count(); ++row) {
      texts.push_back(list->item(row)->text().toStdString());
    }
    return texts;
  };
  const std::vector<std::string> noticed = notes();
  EXPECT_THAT(noticed, ElementsAre(HasSubstr("Comments"), "Also in these files",
                                   HasSubstr("CHARACTERISTIC_OWN")));
  Press(Qt::Key_End);
  window_->findChild<DraftKeeper*>()->SaveNow();
  WindowFixture::Open();
  Open(b);
  const auto b_before = Contents("b");
  Find<QPushButton>("cmdTakeDraft")->click();
  EXPECT_EQ(bot().Name(), "Rookie");
  EXPECT_TRUE(Find<QWidget>("barNotes")->isVisible());
  EXPECT_EQ(notes(), noticed);
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_FALSE(is_changed());
  EXPECT_THAT(folder_.Read("a/botfiles/bots/rookie_w.c"), HasSubstr("400"));
  EXPECT_EQ(Contents("b"), b_before);
}

TEST_F(Origin, GoesWithADraftAsItWasLastMade) {
  Open(Make("a", "Rookie", 0.25));
  MakeIn("out", true);
  Type("txtBotPara_0", "Newt");
  window_->findChild<DraftKeeper*>()->SaveNow();
  WindowFixture::Open();
  Open(Make("b", "Other", 0.75));
  MakeIn("elsewhere", false);
  const auto elsewhere = Contents("elsewhere");
  Find<QPushButton>("cmdTakeDraft")->click();
  Choose("mnuSaveAgain");
  EXPECT_TRUE(IsFile(folder_ / "out/bot-Newt.pk3"));
  EXPECT_EQ(Contents("elsewhere"), elsewhere);
}

TEST_F(Origin, LeavesADescriptionThatWasNotRead) {
  const fs::path file = Make("a", "Rookie", 0.25);
  const fs::path description = folder_ / "a/scripts/rookie.bot";
  const std::string before = *ReadFile(description);
  // The dialog's options: not at all, or not where it lies.
  for (const char* const option : {"chkLoadBotFile", "chkLoadStructure"}) {
    const bool is_off = std::string(option) == "chkLoadStructure";
    prompts_.confirmations = {true};
    window_->OpenPath(folder_ / "a");
    ChooseAndAnswer<frmOpen>("mnuLoad", [&](frmOpen& dialog) {
      dialog.findChild<QCheckBox*>(QStringLiteral("chkLoadStructure"))
          ->setChecked(!is_off);
      dialog.findChild<QCheckBox*>(QStringLiteral("chkLoadBotFile"))
          ->setChecked(is_off);
      dialog.findChild<QListWidget*>(QStringLiteral("filFile"))
          ->setCurrentRow(0);
      dialog.accept();
    });
    prompts_.confirmations.clear();
    prompts_.log.clear();
    Press(is_off ? Qt::Key_Home : Qt::Key_End);
    Choose("mnuSaveAgain");
    EXPECT_EQ(*ReadFile(description), before);
    EXPECT_THAT(prompts_.log, IsEmpty());
    EXPECT_FALSE(is_changed());
    EXPECT_THAT(Status().toStdString(),
                HasSubstr("Left as it is: rookie.bot."));

    // What the user has changed there is not let go without a word, and half
    // a bot is written only when that is wanted.
    enum : std::size_t { kCancel, kLeave, kReplace };
    const auto old_files = Contents("a");
    Press(is_off ? Qt::Key_Right : Qt::Key_Left);
    Type("txtBotPara_2", "Mine");
    Choose("mnuSaveAgain");
    EXPECT_EQ(Contents("a"), old_files);
    EXPECT_THAT(prompts_.log,
                ElementsAre(AllOf(HasSubstr(Utf8FromPath(description)),
                                  HasSubstr("was not read with this bot"))));
    EXPECT_EQ(*ReadFile(description), before);
    EXPECT_TRUE(is_changed());
    prompts_.choices = {kLeave};
    Choose("mnuSaveAgain");
    EXPECT_NE(Contents("a"), old_files);
    EXPECT_EQ(*ReadFile(description), before);
    EXPECT_TRUE(is_changed());
    prompts_.choices = {kReplace};
    Choose("mnuSaveAgain");
    EXPECT_THAT(*ReadFile(description), HasSubstr("Mine"));
    EXPECT_FALSE(is_changed());
    ASSERT_TRUE(SaveFile(description, before));
  }
}

TEST_F(Origin, IsAFolderBelowTheLayoutsToo) {
  const fs::path made = Make("a", "Rookie", 0.25);
  const fs::path old = made.parent_path() / "old";
  fs::create_directory(old);
  for (const char* const name :
       {"rookie_c.c", "rookie_w.c", "rookie_i.c", "rookie_t.c"}) {
    fs::rename(made.parent_path() / name, old / name);
  }
  // A file keeps the spelling that it has.
  const std::string weights = kIsUnix ? "Rookie_W.C" : "rookie_w.c";
  fs::rename(old / "rookie_w.c", old / weights);
  auto wanted = Contents("a");
  Open(old / "rookie_c.c");
  Press(Qt::Key_End);
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, IsEmpty());
  const auto saved = Contents("a");
  EXPECT_THAT(saved.at("botfiles/bots/old/" + weights), HasSubstr("400"));
  wanted["botfiles/bots/old/" + weights] =
      saved.at("botfiles/bots/old/" + weights);
  EXPECT_EQ(saved, wanted);

  // A bot of another name has files of its own there.
  Type("txtBotPara_0", "Newt");
  folder_.Write("a/botfiles/bots/old/newt_t.c", "somebody else's");
  constexpr std::size_t kLeave = 1;
  prompts_.choices = {kLeave};
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("newt_t.c' was not read")));
  EXPECT_EQ(folder_.Read("a/botfiles/bots/old/newt_t.c"), "somebody else's");
  EXPECT_TRUE(IsFile(old / "newt_c.c"));
  EXPECT_TRUE(IsFile(folder_ / "a/scripts/newt.bot"));
  EXPECT_EQ(folder_.Read("a/botfiles/bots/old/rookie_c.c"),
            wanted.at("botfiles/bots/old/rookie_c.c"));
  EXPECT_TRUE(is_changed());
}

TEST_F(Origin, OffersAPackageThatHidesTheFilesAnew) {
  const fs::path file =
      Make("a", "Rookie", 0.25, {.uses_layout = true, .makes_package = true});
  const fs::path package = folder_ / "a/bot-Rookie.pk3";
  const std::string before = *ReadFile(package);
  Open(file);
  Press(Qt::Key_End);
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, ElementsAre(AllOf(HasSubstr(Utf8FromPath(package)),
                                              HasSubstr("make it anew?"),
                                              Not(HasSubstr("Other files")))));
  EXPECT_FALSE(is_changed());
  EXPECT_EQ(*ReadFile(package), before);
  // The answer holds for this bot, and for no other.
  Press(Qt::Key_Home);
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, testing::SizeIs(1));

  ASSERT_TRUE(WritePackage(package, {{"botfiles/bots/rookie_c.c", ""},
                                     {"models/players/x.md3", ""}}));
  Open(file);
  Press(Qt::Key_End);
  prompts_.confirmations = {true};
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("would go: 1.")));
  EXPECT_THAT(Status().toStdString(), HasSubstr(", with bot-Rookie.pk3."));
  EXPECT_THAT(*ReadPackageEntry(package, "botfiles/bots/rookie_w.c"),
              HasSubstr("400"));
  // From then on it is the bot's own, and somebody else may change it.
  ASSERT_TRUE(WritePackage(package, {{"x", ""}}));
  Press(Qt::Key_Home);
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log.back(),
              HasSubstr("was changed since the bot was read or saved"));
  EXPECT_TRUE(ReadPackageEntry(package, "x"));

  // Nor does a new name take another bot's package.
  const fs::path other = folder_ / "a/bot-Newt.pk3";
  ASSERT_TRUE(WritePackage(other, {{"models/newt.md3", ""}}));
  Type("txtBotPara_0", "Newt");
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log.back(), HasSubstr("bot-Newt.pk3' lies there too"));
  EXPECT_TRUE(ReadPackageEntry(other, "models/newt.md3"));
}

TEST_F(Origin, AsksAboutAPackageAnewOnceTheBotIsMadeWithoutOne) {
  Open(Make("a", "Rookie", 0.25));
  MakeIn("out", true);
  const auto save_edited = [this](Qt::Key key) {
    prompts_.log.clear();
    Press(key);
    Choose("mnuSaveAgain");
  };
  save_edited(Qt::Key_End);
  EXPECT_THAT(prompts_.log, IsEmpty());
  // Neither that it was the bot's own holds then, nor the answer of before.
  for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End}) {
    MakeIn("out", false);
    save_edited(key);
    EXPECT_THAT(prompts_.log,
                ElementsAre(HasSubstr("bot-Rookie.pk3' lies there too")));
  }
}

TEST_F(Origin, AsksBeforeWhatIsGoneComesBack) {
  const fs::path file = Make("a", "Rookie", 0.25);
  Open(file);
  fs::remove(folder_ / "a/botfiles/bots/rookie_w.c");
  fs::remove(folder_ / "a/scripts/rookie.bot");
  const auto left = Contents("a");
  Press(Qt::Key_End);
  Choose("mnuSaveAgain");
  EXPECT_THAT(
      prompts_.log,
      ElementsAre(AllOf(HasSubstr("rookie_w.c"), HasSubstr("rookie.bot"),
                        Not(HasSubstr("rookie_c.c")),
                        HasSubstr("are not there any more."),
                        HasSubstr("author's own are lost."))));
  EXPECT_EQ(Contents("a"), left);
  EXPECT_TRUE(is_changed());

  fs::remove_all(folder_ / "a");
  Choose("mnuSaveAgain");
  EXPECT_FALSE(fs::exists(folder_ / "a"));
  prompts_.confirmations = {true};
  Choose("mnuSaveAgain");
  EXPECT_THAT(Contents("a"), SizeIs(5));
  EXPECT_FALSE(is_changed());
  // From then on they are there.
  prompts_.log.clear();
  Press(Qt::Key_Home);
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, IsEmpty());
}

TEST_F(Origin, IsSavedIntoItsPackageWithoutABox) {
#ifdef _WIN32
  GTEST_SKIP() << "The unzip tool is a shell script.";
#endif
  fs::create_directory(folder_ / "p");
  Make("a", "Rookie", 0.25, {.makes_package = true});
  const fs::path package = folder_ / "p/bot-Rookie.pk3";
  fs::rename(folder_ / "a/bot-Rookie.pk3", package);
  TakeOutOf("a");
  Open(package);
  for (const Qt::Key key : {Qt::Key_End, Qt::Key_Home}) {
    Press(key);
    Choose("mnuSaveAgain");
    EXPECT_THAT(prompts_.log, IsEmpty());
    EXPECT_FALSE(is_changed());
  }
  fs::remove(package);
  Press(Qt::Key_End);
  ChooseAndAnswer<frmOpen>("mnuSaveAgain",
                           [](frmOpen& dialog) { dialog.reject(); });
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("not there any more")));
}

TEST_F(Origin, IsNoPlaceThatASaveReachedInPart) {
  const fs::path file = Make("a", "Rookie", 0.25);
  Open(file);
  fs::create_directories(folder_ / "b/rookie_i.c/in the way");
  Press(Qt::Key_End);
  ChooseAndAnswer<frmOpen>("mnuMake", [this](frmOpen& dialog) {
    auto* const box = dialog.findChild<QLineEdit*>(QStringLiteral("txtFolder"));
    box->setText(QString::fromStdString(BytesFromPath(folder_ / "b")));
    box->setModified(true);
    dialog.accept();
  });
  EXPECT_THAT(
      prompts_.log,
      ElementsAre(AllOf(HasSubstr("New: rookie_c.c, rookie_w.c."),
                        HasSubstr("Not written: "), HasSubstr("rookie_t.c"))));
  EXPECT_TRUE(is_changed());
  const auto half = Contents("b");
  Choose("mnuSaveAgain");
  EXPECT_EQ(Contents("b"), half);
  EXPECT_THAT(folder_.Read("a/botfiles/bots/rookie_w.c"), HasSubstr("400"));
  EXPECT_FALSE(is_changed());
}

TEST_F(Origin, TakesTheGamesValuesOfTheBotThatIsShown) {
  const fs::path a = Make("a", "Rookie", 0.25);
  const fs::path b = Make("b", "Other", 0.75);
  folder_.Write("a/botfiles/bots/rookie_w.c",
                "#define W_RAILGUN 250\n#define W_GAUNTLET 250\n");
  const auto weights = [this] {
    return bot().Text(Id(44)) + " " + bot().Text(Id(49));
  };
  const auto* const button = Find<QPushButton>("cmdAsGame");
  Open(a);
  EXPECT_EQ(weights(), "0 0");
  EXPECT_TRUE(button->isVisible());
  Open(b);
  EXPECT_FALSE(button->isVisible());
  EXPECT_FALSE(Find<QWidget>("barNotes")->isVisible());
  Choose("mnuUndo");
  EXPECT_EQ(bot().Name(), "Rookie");
  EXPECT_TRUE(button->isVisible());
  // What was changed since is the user's.
  Press(Qt::Key_End);
  const std::string mine = bot().Text(Id(44));
  EXPECT_NE(mine, "0");
  Find<QPushButton>("cmdAsGame")->click();
  EXPECT_EQ(weights(), mine + " 250");
  EXPECT_FALSE(button->isVisible());
  Choose("mnuUndo");
  EXPECT_EQ(weights(), mine + " 0");
  EXPECT_TRUE(button->isVisible());
  Choose("mnuNewZero");
  EXPECT_TRUE(button->isVisible());
  prompts_.confirmations = {true};
  Choose("mnuNewZero");
  EXPECT_FALSE(button->isVisible());
}

TEST_F(Origin, KnowsTheGamesFunNameAfterASaveToo) {
  const fs::path file = Make("a", "Rookie", 0.25);
  folder_.Write("a/scripts/rookie.bot",
                "{\nname Rookie\nfunname \"^1Rook the ^2Great\" // colours!\n"
                "model sarge\naifile bots/rookie_c.c\n}\n");
  Open(file);
  const auto told = [this] {
    std::string texts;
    auto* const checker = window_->findChild<BotChecker*>();
    checker->CheckNow();
    for (const Finding& finding : checker->findings()) {
      if (finding.place == BotPlace(kFunNameField)) texts += finding.text;
    }
    return texts;
  };
  EXPECT_THAT(told(), HasSubstr("while the game has"));
  Press(Qt::Key_End);
  Choose("mnuSaveAgain");
  EXPECT_THAT(told(), HasSubstr("while the game has"));
  Find<QPushButton>("cmdAsGame")->click();
  EXPECT_EQ(bot().FunName(), "^1Rook the ^2Great");
}

TEST_F(Origin, UndoesModelsWithoutAQuestionAndTouchesNoList) {
  Bot stranger = CreateZeroBot();
  stranger.Put(kModelField, "Penguin");
  stranger.Put(kSkinField, "Ice");
  prompts_.choices = {1};
  window_->current().Replace(stranger, false, QStringLiteral("Load"));
  EXPECT_THAT(prompts_.log, testing::SizeIs(1));
  // The first of the list in its place is a change.
  EXPECT_EQ(bot().Text(kModelField), "Anarki");
  EXPECT_TRUE(is_changed());
  const std::string lists = FormatModelList(state_->lists.models);
  prompts_.log.clear();
  auto* const models = Find<QComboBox>("cmbModel");
  models->setFocus();
  int steps = window_->current().steps().count();
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
    QTest::keyClick(models, key);
    EXPECT_EQ(window_->current().steps().count(), ++steps);
  }
  window_->current().Edit({}, [&stranger](Bot& bot) { bot = stranger; });
  EXPECT_EQ(models->currentIndex(), -1);
  EXPECT_EQ(models->placeholderText(), "Penguin (not in the list)");
  for (int time = 0; time < 100; ++time) {
    Choose(time % 8 < 4 ? "mnuUndo" : "mnuRedo");
  }
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_EQ(FormatModelList(state_->lists.models), lists);
}

TEST_F(Origin, UndoesOnTheScaleThatTheUserChose) {
  Press(Qt::Key_End);
  auto* const scale =
      Find<QWidget>("mseSelect_0")
          ->findChild<QRadioButton*>(QStringLiteral("opScale_2"));
  scale->click();
  Choose("mnuUndo");
  EXPECT_EQ(bot().Text(Id(44)), "0");
  EXPECT_TRUE(scale->isChecked());
}

TEST_F(Origin, KnowsTheFilesOfAnotherNameAgain) {
  const fs::path file = Make("a", "Rookie", 0.25);
  const std::string scripts = "a/scripts/rookie.bot";
  folder_.Write(scripts, "// mine\n" + folder_.Read(scripts) +
                             "{\nname Second\naifile bots/second_c.c\n}\n");
  const std::string weights = "a/botfiles/bots/rookie_w.c";
  folder_.Write(weights,
                "// by hand\n#include \"inv.h\"\n"
                "#define W_GAUNTLET\t\t\t\t50\n"
                "#include \"fw_weap.c\"\n");
  Open(file);
  const auto before = Contents("a");
  Type("txtBotPara_0", "Other");
  Choose("mnuSaveAgain");
  EXPECT_FALSE(is_changed());
  // Under the new name the files are their author's still.
  EXPECT_EQ(folder_.Read("a/botfiles/bots/other_w.c"), folder_.Read(weights));
  EXPECT_THAT(folder_.Read("a/scripts/other.bot"), Not(HasSubstr("Second")));
  const std::string other = folder_.Read("a/scripts/other.bot");

  // The old name has its files again, without a question and untouched.
  Choose("mnuUndo");
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, IsEmpty());
  for (const auto& [name, bytes] : before) {
    EXPECT_EQ(folder_.Read("a/" + name), bytes) << name;
  }
  Press(Qt::Key_End);
  Choose("mnuSaveAgain");
  EXPECT_THAT(folder_.Read(weights), HasSubstr("// by hand"));
  EXPECT_THAT(folder_.Read(weights), HasSubstr("400"));
  // And so has the new one.
  Choose("mnuUndo");
  Choose("mnuRedo");
  Type("txtBotPara_0", "Other");
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_EQ(folder_.Read("a/scripts/other.bot"), other);
}

TEST_F(Origin, KnowsTheFilesOfAnotherNameInAnotherFolder) {
  Open(Make("a", "Rookie", 0.25, {}));
  fs::create_directory(folder_ / "b");
  const auto make_in = [this](const char* place) {
    ChooseAndAnswer<frmOpen>("mnuMake", [&](frmOpen& dialog) {
      dialog.findChild<DirView*>()->SetFolder(folder_ / place);
      dialog.accept();
    });
  };
  Press(Qt::Key_End);
  make_in("a");
  Type("txtBotPara_0", "Other");
  make_in("b");
  const auto b = Contents("b");
  ASSERT_THAT(b, SizeIs(5));
  // The name, and then the value.
  prompts_.log.clear();
  Choose("mnuUndo");
  Choose("mnuUndo");
  ASSERT_EQ(bot().Name(), "Rookie");
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_EQ(Contents("b"), b);
  EXPECT_THAT(Contents("a"), SizeIs(5));
  EXPECT_THAT(folder_.Read("a/rookie_w.c"), Not(HasSubstr("400")));
  // And forth again.
  Choose("mnuRedo");
  Choose("mnuRedo");
  ASSERT_EQ(bot().Name(), "Other");
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_EQ(Contents("b"), b);
  EXPECT_THAT(Contents("a"), SizeIs(5));
}

TEST_F(Origin, KnowsThePackageOfAnotherNameAgain) {
  Type("txtBotPara_0", "Rookie");
  Press(Qt::Key_End);
  MakeIn("out", true);
  Type("txtBotPara_0", "Newt");
  Choose("mnuSaveAgain");
  EXPECT_TRUE(IsFile(folder_ / "out/bot-Newt.pk3"));
  EXPECT_FALSE(is_changed());
  for (const char* const step : {"mnuUndo", "mnuRedo"}) {
    prompts_.log.clear();
    Choose(step);
    EXPECT_TRUE(is_changed());
    Choose("mnuSaveAgain");
    EXPECT_THAT(prompts_.log, Not(testing::Contains(HasSubstr("anew?"))));
    EXPECT_FALSE(is_changed()) << step << Status().toStdString();
  }
  // What is changed then goes into the package of that name.
  Choose("mnuUndo");
  Press(Qt::Key_Home);
  Choose("mnuSaveAgain");
  EXPECT_THAT(*ReadPackageEntry(folder_ / "out/bot-Rookie.pk3",
                                "botfiles/bots/rookie_w.c"),
              Not(HasSubstr("400")));
  EXPECT_THAT(
      *ReadPackageEntry(folder_ / "out/bot-Newt.pk3", "botfiles/bots/newt_w.c"),
      HasSubstr("400"));
}

TEST_F(Origin, KeepsTheFilesOfAnotherAuthorAsTheyAre) {
  const std::string character =
      "// mine\n#include \"chars.h\"\nskill 4 {\n"
      "\tCHARACTERISTIC_NAME\t\t\t\t\t\t\t\"Rook\"\n"
      "\tCHARACTERISTIC_ATTACK_SKILL\t\t\t\t\t0.250 // timid\n}\n";
  const std::string weights =
      "#include \"inv.h\"\n#define W_GAUNTLET 20 // hands\n"
      "#ifndef HARD\n#define W_RAILGUN 5\n#else\n#define W_RAILGUN 7\n"
      "#endif\n#include \"fw_weap.c\"\n";
  folder_.Write("b/rook_c.c", character);
  folder_.Write("b/rook_w.c", weights);
  folder_.Write("b/rook.bot",
                "{\nname Rook\nmodel sarge\naifile bots/rook_c.c\n}\n");
  Open(folder_ / "b/rook_c.c");
  const auto before = Contents("b");
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("no block for skill 1")));
  prompts_.log.clear();
  EXPECT_EQ(Contents("b"), before);

  Press(Qt::Key_End);
  ChooseAndAnswer<QDialog>("mnuChanges", [](QDialog& dialog) {
    auto* const view = dialog.findChild<QPlainTextEdit*>();
    ASSERT_NE(view, nullptr);
    EXPECT_THAT(view->toPlainText().toStdString(),
                HasSubstr("\n-#define W_GAUNTLET 20 // hands\n"
                          "+#define W_GAUNTLET\t\t\t\t400 // hands\n"));
    dialog.reject();
  });
  EXPECT_EQ(Contents("b"), before);
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_FALSE(is_changed());
  auto wanted = before;
  std::string& edited = wanted["rook_w.c"];
  edited.replace(edited.find(" 20 "), 4, "\t\t\t\t400 ");
  EXPECT_EQ(Contents("b"), wanted);

  // What cannot be had so is asked about; the safe answer writes nothing.
  window_->current().Edit({.text = {}, .place = {}, .merges = false},
                          [](Bot& bot) { bot.Put(Id(49), 70.0); });
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("\"Railgun usage\" cannot")));
  EXPECT_TRUE(is_changed());
  EXPECT_EQ(Contents("b"), wanted);
  constexpr std::size_t kWriteItAnew = 2;
  prompts_.choices = {kWriteItAnew};
  Choose("mnuSaveAgain");
  EXPECT_FALSE(is_changed());
  EXPECT_EQ(folder_.Read("b/rook_w.c.bak"), edited);
  EXPECT_THAT(folder_.Read("b/rook_w.c"), HasSubstr("W_RAILGUN\t\t\t\t70"));
  EXPECT_EQ(folder_.Read("b/rook_c.c"), character);
}

TEST_F(Origin, KeepsTheFilesOfAnotherAuthorInANewPlace) {
#ifdef _WIN32
  GTEST_SKIP() << "The unzip tool is a shell script.";
#endif
  const std::string weights =
      "#include \"inv.h\"\n// seldom\n#define W_GAUNTLET\t\t\t\t20\n"
      "#include \"fw_weap.c\"\n";
  std::vector<PackageEntry> entries;
  for (const std::string suffix : {"_c.c", "_w.c", "_i.c", "_t.c"}) {
    const std::string bytes = suffix == "_w.c" ? weights : "// mine\n";
    folder_.Write("files/rook" + suffix, bytes);
    entries.push_back({"botfiles/bots/rook" + suffix, bytes});
  }
  ASSERT_TRUE(WritePackage(folder_ / "pak6.pk3", entries));
  TakeOutOf("files");
  window_->OpenPath(folder_ / "pak6.pk3");
  ASSERT_THAT(prompts_.log, IsEmpty());
  ASSERT_EQ(bot().Parameter(Id(44)), Value(20.0));
  fs::create_directory(folder_ / "out");

  const auto make = [this](bool keeps) {
    prompts_.confirmations = {true};
    ChooseAndAnswer<frmOpen>("mnuMake", [&](frmOpen& dialog) {
      auto* const keep =
          dialog.findChild<QCheckBox*>(QStringLiteral("chkKeepFiles"));
      ASSERT_NE(keep, nullptr);
      EXPECT_TRUE(keep->isChecked());
      keep->setChecked(keeps);
      // No game is there with macros of its own.
      EXPECT_EQ(dialog.findChild<QCheckBox*>(QStringLiteral("chkGameMacros")),
                nullptr);
      dialog.findChild<DirView*>()->SetFolder(folder_ / "out");
      dialog.accept();
    });
  };
  Press(Qt::Key_End);
  make(true);
  EXPECT_EQ(folder_.Read("out/rook_w.c"),
            "#include \"inv.h\"\n// seldom\n#define W_GAUNTLET\t\t\t\t400\n"
            "#include \"fw_weap.c\"\n");
  EXPECT_EQ(folder_.Read("out/rook_t.c"), "// mine\n");
  EXPECT_FALSE(is_changed());
}

}  // namespace
}  // namespace fragsmith
