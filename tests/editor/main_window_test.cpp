#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <map>
#include <memory>

#include "editor/dialogs/open_dialog.h"
#include "editor/dialogs/options_dialog.h"
#include "editor/frm_main.h"
#include "session/bot_document.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "tests/editor/window_fixture.h"
#include "tests/support/package_maker.h"

namespace fragsmith {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using MainWindow = WindowFixture;

TEST_F(MainWindow, StartsWithABotOfZerosAndNothingUnsaved) {
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_EQ(bot(), CreateZeroBot());
  EXPECT_FALSE(is_changed());
  EXPECT_EQ(window_->windowTitle(), QStringLiteral("Fragsmith 0.97b BETA[*]"));
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
  EXPECT_EQ(bot().Text(1), "female");
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

TEST_F(MainWindow, AsksBeforeUnsavedWorkIsLost) {
  Choose("mnuNewAverage");
  EXPECT_FALSE(is_changed());
  EXPECT_EQ(bot().Parameter(402), Value(0.5));
  Find<QCheckBox>("chkArenalord")->click();
  prompts_.confirmations = {false};
  Choose("mnuNewZero");
  EXPECT_EQ(bot().Parameter(402), Value(0.5));
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
  EXPECT_EQ(window_->findChild<DraftKeeper*>()->LeftBehind()->Name(), "Lost");
  Find<QPushButton>("cmdDiscardDraft")->click();
  Open();
  EXPECT_FALSE(window_->findChild<DraftKeeper*>()->LeftBehind());

  // What is being typed is kept before the box is left.
  auto* const box = Find<QLineEdit>("txtBotPara_2");
  box->setFocus();
  QTest::keyClicks(box, "^2Ton");
  save_draft();
  Open();
  EXPECT_EQ(window_->findChild<DraftKeeper*>()->LeftBehind()->FunName(),
            "^2Ton");
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
  EXPECT_EQ(bot().Parameter(49), Value(0.0));
  EXPECT_TRUE(Find<QPushButton>("cmdAsGame")->isVisible());
  Find<QPushButton>("cmdAsGame")->click();
  EXPECT_EQ(bot().Parameter(49), Value(250.0));
  EXPECT_TRUE(is_changed());
}

TEST_F(MainWindow, AsksAboutAModelThatNoListHas) {
  Bot stranger = CreateZeroBot();
  (void)stranger.SetParameter(kModelField, std::string("Penguin"));
  (void)stranger.SetParameter(kSkinField, std::string("Ice"));
  prompts_.confirmations = {true};
  window_->current().Replace(stranger, false, QStringLiteral("Load"));
  EXPECT_EQ(prompts_.log.front(),
            "Model not found!: Model Penguin doesn't exist in Fragsmith's "
            "model/skin list. Do you want to add it there?");
  EXPECT_EQ(bot().Text(kModelField), "Penguin");
  EXPECT_EQ(bot().Text(kSkinField), "Ice");
  EXPECT_FALSE(is_changed());

  (void)stranger.SetParameter(kModelField, std::string("Nobody"));
  window_->current().Replace(stranger, false, QStringLiteral("Load"));
  EXPECT_EQ(bot().Text(kModelField), "Anarki");
  EXPECT_EQ(bot().Text(kSkinField), "Default");
}

TEST_F(MainWindow, TakesNoNameForMarkupWhileItLoads) {
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
                          "found in '/no/such/folder'"));
  EXPECT_EQ(state_->settings.Q3Baseq3, "");
  EXPECT_EQ(state_->settings.UserName, "Maker");
  Choose("mnuCheck");
  EXPECT_THAT(prompts_.log.back(), HasSubstr("Can't check folder"));
}

}  // namespace
}  // namespace fragsmith
