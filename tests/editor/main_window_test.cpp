#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMenuBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <chrono>
#include <filesystem>
#include <map>
#include <memory>

#include "editor/dialogs/open_dialog.h"
#include "editor/dialogs/options_dialog.h"
#include "editor/frm_main.h"
#include "session/bot_document.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "tests/editor/font_scale.h"
#include "tests/editor/window_fixture.h"
#include "tests/support/ids.h"
#include "tests/support/package_maker.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using MainWindow = WindowFixture;

TEST_F(MainWindow, StartsWithABotOfZerosAndNothingUnsaved) {
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_EQ(bot(), CreateZeroBot());
  EXPECT_FALSE(is_changed());
  EXPECT_EQ(window_->windowTitle(),
            QStringLiteral("Fragsmith 0.97b BETA - Bot[*]"));
  EXPECT_EQ(Find<QTabWidget>("tbsBotPara")->count(), 8);
  EXPECT_EQ(Find<QLabel>("fraModel")->text(),
            QStringLiteral("Model name (23 models)"));
  EXPECT_EQ(Find<QLabel>("fraSkin")->text(),
            QStringLiteral("Skin name (5 skins)"));
}

TEST_F(MainWindow, StoresTheIdentity) {
  Type("txtBotPara_0", "Rookie");
  Type("txtBotPara_2", "^1Red One");
  Type("txtBotPara_7", "1.5");
  QTest::mouseClick(Find<QRadioButton>("opGender_1"), Qt::LeftButton);
  Find<QCheckBox>("chkArenalord")->click();
  auto* const rail = Find<QComboBox>("cmbRail");
  QTest::keyClick(rail, Qt::Key_End);
  EXPECT_EQ(bot().Name(), "Rookie");
  EXPECT_EQ(bot().FunName(), "\"^1Red One\"");
  EXPECT_EQ(bot().Parameter(kVersionMajorField), Value(1.5));
  EXPECT_EQ(bot().Text(Id(1)), "female");
  EXPECT_EQ(bot().Parameter(kArenaLordField), Value(1.0));
  EXPECT_EQ(bot().Parameter(kRailColorField), Value(7.0));
  EXPECT_TRUE(is_changed());
}

TEST_F(MainWindow, RefusesABadNameWhereItIsTypedAndBeforeSaving) {
  Type("txtBotPara_0", "my bot");
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("Space error!")));
  EXPECT_EQ(bot().Name(), "Bot");
  Choose("mnuMake");
  EXPECT_THAT(prompts_.log.back(),
              "Error-or-or!: Errors in bot! Correct before saving!");
}

TEST_F(MainWindow, PutsColourCodesIntoTheFunNameButNotFirst) {
  auto* const box = Find<QLineEdit>("txtBotPara_2");
  Find<QToolButton>("cmdColor_3")->click();
  EXPECT_EQ(box->text(), QString());
  box->setText(QStringLiteral("ab"));
  box->setCursorPosition(1);
  Find<QToolButton>("cmdColor_3")->click();
  EXPECT_EQ(box->text(), QStringLiteral("a^3b"));
  EXPECT_EQ(box->cursorPosition(), 3);
}

TEST_F(MainWindow, MovesOnToTheNextPageByKeyAndRoundTheEnd) {
  auto* const strip = Find<QTabWidget>("tbsBotPara");
  strip->setCurrentIndex(7);
  QTest::keyClick(window_.get(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(strip->currentIndex(), 0);
  QTest::keyClick(window_.get(), Qt::Key_Backtab,
                  Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(strip->currentIndex(), 0);
}

TEST_F(MainWindow, ScrollsTheChatPageDownwardsOnlyInASmallWindow) {
  window_->resize(WithThisFont(800), 600);
  auto* const strip = Find<QTabWidget>("tbsBotPara");
  strip->setCurrentIndex(7);
  auto* const page = qobject_cast<QScrollArea*>(strip->widget(7));
  auto* const types = Find<QListWidget>("lstChatGroups");
  for (int type = 0; type < types->count(); ++type) {
    types->setCurrentRow(type);
    QCoreApplication::processEvents();
    EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0) << type;
  }
}

TEST_F(MainWindow, AsksBeforeUnsavedWorkIsLost) {
  Choose("mnuNewAverage");
  EXPECT_FALSE(is_changed());
  EXPECT_EQ(bot().Parameter(Id(402)), Value(0.5));
  Find<QCheckBox>("chkArenalord")->click();
  prompts_.confirmations = {false};
  Choose("mnuNewZero");
  EXPECT_EQ(bot().Parameter(Id(402)), Value(0.5));
  Choose("mnuNewRandom");
  EXPECT_EQ(prompts_.log.size(), 1U);
  EXPECT_FALSE(window_->close());
  EXPECT_THAT(prompts_.log.back(),
              HasSubstr("The current bot has changed. Do you still want to "
                        "exit without saving?"));
  EXPECT_FALSE(IsFile(folder_ / "fgs.ini"));
  prompts_.confirmations = {true};
  EXPECT_TRUE(window_->close());
  EXPECT_TRUE(IsFile(folder_ / "fgs.ini"));
  EXPECT_FALSE(IsFile(folder_ / "fgs.draft"));
}

TEST_F(MainWindow, OffersTheDraftOfARunThatDidNotEnd) {
  Type("txtBotPara_0", "Lost");
  const auto save_draft = [this] {
    window_->findChild<DraftKeeper*>()->SaveNow();
  };
  save_draft();
  // A crash: nothing is closed.
  Open();
  EXPECT_EQ(bot().Name(), "Bot");
  EXPECT_TRUE(Find<QPushButton>("cmdTakeDraft")->isVisible());
  // Neither time nor other work takes the offer away, nor does an end of the
  // program without an answer.
  save_draft();
  Type("txtBotPara_0", "Other");
  save_draft();
  prompts_.confirmations = {true};
  EXPECT_TRUE(window_->close());
  Open();
  Type("txtBotPara_0", "Third");
  prompts_.confirmations = {false};
  Find<QPushButton>("cmdTakeDraft")->click();
  EXPECT_EQ(bot().Name(), "Third");
  prompts_.confirmations = {true};
  Find<QPushButton>("cmdTakeDraft")->click();
  EXPECT_EQ(bot().Name(), "Lost");
  EXPECT_TRUE(is_changed());
  EXPECT_FALSE(Find<QPushButton>("cmdTakeDraft")->isVisible());

  // The bot that was taken is safe again, and no other editor is offered what
  // this one still holds.
  ProgramState other(state_->folders, prompts_, SeededRandom(1));
  EXPECT_FALSE(frmMain(other).findChild<DraftKeeper*>()->LeftBehind());
  Open();
  EXPECT_EQ(window_->findChild<DraftKeeper*>()->LeftBehind()->draft.bot.Name(),
            "Lost");
  Find<QPushButton>("cmdDiscardDraft")->click();
  Open();
  EXPECT_FALSE(window_->findChild<DraftKeeper*>()->LeftBehind());

  // What is being typed is kept before the box is left.
  auto* const box = Find<QLineEdit>("txtBotPara_2");
  box->setFocus();
  QTest::keyClicks(box, "^2Ton");
  save_draft();
  Open();
  EXPECT_EQ(
      window_->findChild<DraftKeeper*>()->LeftBehind()->draft.bot.FunName(),
      "^2Ton");
}

TEST_F(MainWindow, SaysOnceThatItCannotKeepADraft) {
  std::filesystem::create_directories(folder_ / "fgs.draft/in the way");
  const auto keep = [this](const char* name) {
    window_->statusBar()->clearMessage();
    Type("txtBotPara_0", name);
    window_->findChild<DraftKeeper*>()->SaveNow();
    return window_->statusBar()->currentMessage().toStdString();
  };
  EXPECT_THAT(keep("One"), HasSubstr("No draft of this bot can be kept"));
  EXPECT_EQ(keep("Two"), "");
  std::filesystem::remove_all(folder_ / "fgs.draft");
  EXPECT_EQ(keep("Three"), "");
  EXPECT_TRUE(IsFile(folder_ / "fgs.draft"));
}

TEST_F(MainWindow, TellsWhatIsNotThereFromWhatIsNoBot) {
  const auto open = [this](const std::filesystem::path& path) {
    window_->OpenPath(path);
    return window_->statusBar()->currentMessage().toStdString();
  };
  EXPECT_THAT(open(folder_ / "missing.pk3"),
              EndsWith("missing.pk3 does not exist."));
  EXPECT_THAT(open(folder_.Write("odd.txt", "")),
              HasSubstr("odd.txt is no bot: "));
}

TEST_F(MainWindow, OffersADraftUntilItIsAnswered) {
  const std::filesystem::path file = folder_.Write("b/rook_c.c", "skill 1 {");
  window_->OpenPath(file);
  Type("txtBotPara_0", "First");
  window_->KeepDraft();
  // Drafts of one name are told apart by when and where.
  const QDateTime kept(QDate(2025, 3, 2), QTime(1, 23));
  std::filesystem::last_write_time(
      folder_ / "fgs.draft",
      std::filesystem::file_time_type::clock::now() -
          std::chrono::seconds(kept.secsTo(QDateTime::currentDateTime())));
  Open();
  Type("txtBotPara_0", "Second");
  window_->KeepDraft();
  Open();
  const auto offered = [this] {
    return Find<QWidget>("barDraft")->isVisible()
               ? Find<QLabel>("lblDraft")->text().toStdString()
               : std::string();
  };
  // A bot that is loaded has notes of its own, in a bar of its own.
  const auto load = [this] {
    prompts_.confirmations = {true};
    window_->OpenPath(folder_.Write("odd/rook_c.c", "skill 1 {"));
    EXPECT_TRUE(Find<QWidget>("barNotes")->isVisible());
  };
  load();
  EXPECT_THAT(
      offered(),
      AllOf(HasSubstr("The bot First was not saved"),
            HasSubstr(
                QLocale().toString(kept, QLocale::ShortFormat).toStdString()),
            HasSubstr(BytesFromPath(file))));
  Find<QPushButton>("cmdDiscardDraft")->click();
  EXPECT_THAT(offered(), AllOf(HasSubstr("The bot Second was not saved"),
                               HasSubstr("it has no files yet")));
  load();
  Choose("mnuUndo");
  EXPECT_THAT(offered(), HasSubstr("Second"));
  Find<QPushButton>("cmdTakeDraft")->click();
  EXPECT_EQ(bot().Name(), "Second");
  EXPECT_EQ(offered(), "");
}

TEST_F(MainWindow, KeepsADraftThatItCannotRead) {
  Type("txtBotPara_0", "Mine");
  window_->findChild<DraftKeeper*>()->SaveNow();
  // One of a second program that still runs is its own matter, broken or not.
  ProgramState other(state_->folders, prompts_, SeededRandom(1));
  const auto second = std::make_unique<frmMain>(other);
  folder_.Write("fgs.draft2", "broken");
  folder_.Write("fgs.draft3", "{\"name\": ");
  folder_.Write("fgs.draft3.bak", "an older one");
  Open();
  ASSERT_EQ(prompts_.log.size(), 1U);
  EXPECT_THAT(prompts_.log[0], HasSubstr("fgs.draft3: This is no valid JSON"));
  EXPECT_THAT(prompts_.log[0], HasSubstr("fgs.draft3.bak2'."));
  EXPECT_EQ(folder_.Read("fgs.draft3.bak2"), "{\"name\": ");
  EXPECT_EQ(folder_.Read("fgs.draft3.bak"), "an older one");
  EXPECT_FALSE(IsFile(folder_ / "fgs.draft3"));
  EXPECT_EQ(folder_.Read("fgs.draft2"), "broken");
  // The readable one beside them is offered all the same, and told once.
  EXPECT_EQ(window_->findChild<DraftKeeper*>()->LeftBehind()->draft.bot.Name(),
            "Mine");
  Open();
  EXPECT_EQ(prompts_.log.size(), 1U);
}

TEST_F(MainWindow, TakesTheDraftOfANewerVersionAsFarAsItIsKnown) {
  const std::string newer =
      R"({"format": 7, "bot": {"format": 8, "name": "Newt"}, "more": 1})";
  window_.reset();
  folder_.Write("fgs.draft", newer);
  Open();
  EXPECT_TRUE(Find<QPushButton>("cmdDraftList")->isVisible());
  // Two versions, what is left out, and what becomes of the file.
  EXPECT_EQ(Find<QListWidget>("lstDraft")->count(), 4);
  Find<QPushButton>("cmdTakeDraft")->click();
  EXPECT_EQ(bot().Name(), "Newt");
  EXPECT_EQ(folder_.Read("fgs.draft.bak"), newer);
  EXPECT_FALSE(IsFile(folder_ / "fgs.draft"));
  EXPECT_TRUE(IsFile(folder_ / "fgs.draft2"));
  EXPECT_THAT(prompts_.log, IsEmpty());
}

TEST_F(MainWindow, LeavesWhatANewerVersionRememberedOfTheWindow) {
  window_.reset();
  folder_.Write("fgs.window", "[General]\nformat=5\npage=2\nother=x\n");
  Open();
  EXPECT_EQ(Find<QTabWidget>("tbsBotPara")->currentIndex(), 2);
  window_->close();
  const std::string written = folder_.Read("fgs.window");
  EXPECT_THAT(written, HasSubstr("format=5"));
  EXPECT_THAT(written, HasSubstr("other=x"));
  std::filesystem::remove(folder_ / "fgs.window");
  Open();
  window_->close();
  EXPECT_THAT(folder_.Read("fgs.window"), HasSubstr("format=1"));
}

TEST_F(MainWindow, KeepsNoDraftOfWhatIsNotChanged) {
  const auto has_draft = [this] {
    window_->findChild<DraftKeeper*>()->SaveNow();
    return IsFile(folder_ / "fgs.draft");
  };
  EXPECT_FALSE(has_draft());
  Find<QCheckBox>("chkArenalord")->click();
  EXPECT_TRUE(has_draft());
  Choose("mnuUndo");
  EXPECT_FALSE(has_draft());
  Choose("mnuRedo");
  EXPECT_TRUE(has_draft());
  ChooseAndAnswer<frmOpen>("mnuMake", [](frmOpen& dialog) { dialog.accept(); });
  EXPECT_FALSE(has_draft());
}

TEST_F(MainWindow, PutsQuotesOnAFunNameWithoutCallingThatAChange) {
  Bot unquoted = CreateZeroBot();
  Set(unquoted, kFunNameField, std::string("Red One"));
  window_->current().Replace(unquoted, false, QStringLiteral("Load"));
  const auto ask = [this] {
    ChooseAndAnswer<frmOpen>("mnuMake",
                             [](frmOpen& dialog) { dialog.reject(); });
  };
  ask();
  EXPECT_EQ(bot().FunName(), "\"Red One\"");
  EXPECT_FALSE(is_changed());
  Find<QCheckBox>("chkArenalord")->click();
  Set(unquoted, kCommentField, std::string("mine"));
  window_->current().Replace(unquoted, true, QStringLiteral("Load"));
  ask();
  EXPECT_EQ(bot().FunName(), "\"Red One\"");
  EXPECT_TRUE(is_changed());
}

TEST_F(MainWindow, FitsTheScreenAtItsFirstStart) {
  const QRect screen = window_->screen()->availableGeometry();
  EXPECT_LE(window_->frameGeometry().height(), WithThisFont(screen.height()));
  EXPECT_GE(window_->frameGeometry().top(), screen.top());
  EXPECT_LE(window_->frameGeometry().width(), WithThisFont(screen.width()));
}

TEST_F(MainWindow, GivesEachMnemonicOnce) {
  auto* const strip = Find<QTabWidget>("tbsBotPara");
  for (int page = 0; page < strip->count(); ++page) {
    strip->setCurrentIndex(page);
    std::map<QChar, QStringList> owners;
    const auto add = [&owners](const QString& text) {
      const QKeySequence key = QKeySequence::mnemonic(text);
      if (!key.isEmpty()) owners[key.toString().back()] << text;
    };
    for (const QAction* const action : window_->menuBar()->actions()) {
      add(action->text());
    }
    for (const auto* const label : window_->findChildren<QLabel*>()) {
      if (label->isVisible() && label->buddy()) add(label->text());
    }
    for (const auto* const button : window_->findChildren<QAbstractButton*>()) {
      if (button->isVisible()) add(button->text());
    }
    EXPECT_GE(owners.size(), 10U);
    EXPECT_THAT(owners[u'H'], testing::Contains(QStringLiteral("&Help")));
    for (const auto& [letter, texts] : owners) {
      EXPECT_EQ(texts.size(), 1) << texts.join(u'/').toStdString();
    }
  }
}

TEST_F(MainWindow, LeadsTheTabKeyFromTheStripThroughThePage) {
  auto* const strip = Find<QTabWidget>("tbsBotPara");
  for (int page = 0; page < strip->count(); ++page) {
    strip->setCurrentIndex(page);
    strip->tabBar()->setFocus();
    QTest::keyClick(strip->tabBar(), Qt::Key_Tab);
    int stops = 0;
    while (strip->currentWidget()->isAncestorOf(QApplication::focusWidget()) &&
           ++stops < 100) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_GE(stops, 7) << page;
    EXPECT_EQ(QApplication::focusWidget(), Find<QWidget>("cmdFindings"))
        << page;
  }
}

TEST_F(MainWindow, SavesAndLoadsThroughTheDialog) {
  Type("txtBotPara_0", "Rookie");
  Choose("mnuExtraChat");
  const Bot made = bot();
  OnDialog<frmOpen>([](frmOpen& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Make botfiles for Rookie"));
    dialog.accept();
  });
  Choose("mnuMake");
  EXPECT_TRUE(IsFile(folder_ / "rookie_t.c"));
  EXPECT_FALSE(is_changed());

  Choose("mnuNewZero");
  OnDialog<frmOpen>([](frmOpen& dialog) {
    auto* const files =
        dialog.findChild<QListWidget*>(QStringLiteral("filFile"));
    ASSERT_NE(files, nullptr);
    files->setCurrentRow(0);
    dialog.accept();
  });
  Choose("mnuLoad");
  EXPECT_EQ(WriteBotDocument(bot()), WriteBotDocument(made));
  EXPECT_FALSE(is_changed());
}

TEST_F(MainWindow, TakesTheValuesAsTheGameReadsThem) {
  Bot odd = CreateZeroBot();
  const SavedBot saved = SaveBot(odd, folder_.path(), {}, {}, prompts_);
  ASSERT_FALSE(saved.error);
  folder_.Write("bot_w.c", "#define W_RAILGUN 250\r\n");
  window_->OpenPath(folder_ / "bot_c.c");
  EXPECT_EQ(bot().Parameter(Id(49)), Value(0.0));
  EXPECT_TRUE(Find<QPushButton>("cmdAsGame")->isVisible());
  Find<QPushButton>("cmdAsGame")->click();
  EXPECT_EQ(bot().Parameter(Id(49)), Value(250.0));
  EXPECT_TRUE(is_changed());
}

TEST_F(MainWindow, AsksAboutAModelThatNoListHas) {
  Bot stranger = CreateZeroBot();
  Set(stranger, kModelField, std::string("Penguin"));
  Set(stranger, kSkinField, std::string("Ice"));
  // Who presses Enter or Escape keeps the bot as it is.
  window_->current().Replace(stranger, false, QStringLiteral("Load"));
  EXPECT_EQ(prompts_.log.front(),
            "Model not found!: Model Penguin doesn't exist in Fragsmith's "
            "model/skin list. Do you want to add it there?");
  EXPECT_EQ(bot().Text(kModelField), "Penguin");
  EXPECT_EQ(bot().Text(kSkinField), "Ice");
  EXPECT_FALSE(is_changed());
  // The list has a spelling of its own.
  Set(stranger, kModelField, std::string("kingPenguin"));
  prompts_.choices = {0};
  window_->current().Replace(stranger, false, QStringLiteral("Load"));
  EXPECT_EQ(bot().Text(kModelField), "kingPenguin");
  EXPECT_FALSE(is_changed());

  Set(stranger, kModelField, std::string("Nobody"));
  prompts_.choices = {1};
  window_->current().Replace(stranger, false, QStringLiteral("Load"));
  EXPECT_EQ(bot().Text(kModelField), "Anarki");
  EXPECT_EQ(bot().Text(kSkinField), "Default");
}

TEST_F(MainWindow, TakesNoNameForMarkupWhileItLoads) {
  if (!kIsUnix) GTEST_SKIP() << "The unzip tool is a shell script.";
  folder_.WriteProgram("wzunzip", "#!/bin/sh\nsleep 0.1\n");
  state_->settings.WinZipDir = BytesFromPath(folder_.path());
  state_->InitByValues();
  QString shown;
  QTimer::singleShot(0, window_.get(), [this, &shown] {
    const auto* const progress = window_->findChild<QProgressDialog*>();
    ASSERT_NE(progress, nullptr);
    const auto* const label = progress->findChild<QLabel*>();
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    shown = label->text();
  });
  window_->OpenPath(folder_.Write(
      "a.pk3", MakeZipOfNames({"botfiles/bots/<s>Struck & out_c.c"})));
  EXPECT_EQ(shown, "Loading <s>Struck & out...");
}

TEST_F(MainWindow, ChecksTheFoldersAfterTheOptions) {
  OnDialog<frmOptions>([](frmOptions& dialog) {
    dialog.SetOptionValue(0, "/no/such/folder");
    dialog.SetOptionValue(3, "Maker");
    dialog.accept();
  });
  Choose("mnuOptions");
  EXPECT_THAT(prompts_.log,
              ElementsAre("Fragsmith: Quake3.exe missing: Quake3.exe not "
                          "found in '/no/such/folder'",
                          HasSubstr("There is no game folder now.")));
  EXPECT_EQ(state_->settings.Q3Baseq3, "");
  EXPECT_EQ(state_->settings.UserName, "Maker");
  Choose("mnuCheck");
  EXPECT_THAT(prompts_.log.back(), HasSubstr("Can't check folder"));
  // What a command has changed is kept at once.
  EXPECT_THAT(folder_.Read("fgs.ini"), HasSubstr("UserName = Maker\r\n"));
  prompts_.answers = {"hi"};
  Choose("mnuSyn");
  EXPECT_THAT(folder_.Read("fgs_synonyms"), HasSubstr("\"hi\""));
  std::filesystem::remove(folder_ / "fgs.ini");
  Choose("mnuUndo");
  EXPECT_FALSE(std::filesystem::exists(folder_ / "fgs.ini"));
  folder_.Write("fgs_bots", "[]\r\n\"Old\",\"gone.pk3\",#TRUE#\r\n");
  std::filesystem::create_directory(folder_ / "baseq3");
  state_->settings.Q3Baseq3 = folder_.path().string();
  Choose("mnuCheck");
  EXPECT_THAT(folder_.Read("fgs_bots"), Not(HasSubstr("Old")));
}

}  // namespace
}  // namespace fragsmith
