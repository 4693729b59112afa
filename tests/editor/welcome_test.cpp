#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "editor/dialogs/options_dialog.h"
#include "editor/dialogs/search_progress.h"
#include "editor/panels/welcome_page.h"
#include "editor/state/bot_checker.h"
#include "install/program/settings_file.h"
#include "tests/editor/window_fixture.h"
#include "tests/support/package_maker.h"

namespace fragsmith {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Welcome : public WindowFixture {
 protected:
  WelcomePage* Page() { return Find<WelcomePage>("pagWelcome"); }
  bool IsOpen() { return Page()->isVisible(); }

  /// As a new start leaves it.
  void Start() {
    Open();
    if (!IsOpen()) Choose("mnuWelcome");
  }

  std::vector<std::string> Bots() {
    std::vector<std::string> bots;
    const auto* const list = Find<QListWidget>("lstWelcomeBots");
    for (int row = 0; row < list->count(); ++row) {
      if (!list->item(row)->isHidden()) {
        bots.push_back(list->item(row)->text().toStdString());
      }
    }
    return bots;
  }
};

TEST_F(Welcome, GreetsAtTheStartAndCoversTheBot) {
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Page()->size(), Page()->parentWidget()->size());
  EXPECT_TRUE(Page()->isAncestorOf(QApplication::focusWidget()));
  // What nobody has made is not complained of, but all of it is there.
  EXPECT_FALSE(Find<QToolButton>("cmdFindings")->isVisible());
  EXPECT_TRUE(Find<QLineEdit>("txtBotPara_0")->isVisible());
  Page()->parentWidget()->resize(700, 500);
  EXPECT_EQ(Page()->size(), QSize(700, 500));
  EXPECT_FALSE(is_changed());
}

TEST_F(Welcome, GoesWithWhateverIsBegunAndComesBack) {
  const std::vector<std::function<void()>> ways = {
      [this] { Find<QLineEdit>("txtBotPara_0")->setFocus(); },
      [this] { Choose("mnuNewAverage"); },
      [this] { Find<QAbstractButton>("cmdKind_sniper")->click(); },
      [this] { window_->current().SetParameter(kCommentField, Value("Mine")); },
      [this] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); },
      [this] { Find<QAbstractButton>("cmdWelcomeClose")->click(); },
      [this] {
        QTest::keyClick(window_.get(), Qt::Key_Tab, Qt::ControlModifier);
      },
  };
  for (std::size_t way = 0; way < ways.size(); ++way) {
    Start();
    ways[way]();
    EXPECT_FALSE(IsOpen()) << way;
    EXPECT_TRUE(Find<QToolButton>("cmdFindings")->isVisible()) << way;
  }
  EXPECT_FALSE(is_changed());
  Choose("mnuWelcome");
  EXPECT_TRUE(IsOpen());
  EXPECT_TRUE(Page()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(Welcome, LeavesTheOfferOfADraftInSight) {
  Find<QLineEdit>("txtBotPara_0")->setFocus();
  Type("txtBotPara_0", "Kept");
  window_->KeepDraft();
  Open();
  EXPECT_FALSE(IsOpen());
}

TEST_F(Welcome, OffersTheBotsThatTheGameHas) {
  if (!kIsUnix) GTEST_SKIP() << "The unzip tool is a shell script.";
  window_.reset();
  folder_.WriteProgram("game/quake3.exe", "");
  folder_.Write("game/baseq3/pak0.pk3", MakeZipOfNames({"botfiles/a.h"}));
  folder_.Write(
      "game/baseq3/bots.pk3",
      MakeZipOfNames({"botfiles/bots/anvil_c.c", "botfiles/bots/tongs_c.c"}));
  folder_.WriteProgram("tools/wzunzip", "#!/bin/sh\n");
  ProgramSettings settings;
  settings.Q3Baseq3 = (folder_ / "game").string();
  settings.WinZipDir = (folder_ / "tools").string();
  ASSERT_TRUE(SaveSettings(folder_.path(), settings));
  Open();
  EXPECT_THAT(Bots(), testing::IsEmpty());
  Choose("mnuWelcome");
  Find<QAbstractButton>("cmdWelcomeScan")->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  // No desktop is there to do it behind the window of the scan.
  QApplication::setActiveWindow(window_.get());
  EXPECT_EQ(window_->focusWidget()->objectName(),
            QStringLiteral("cmdWelcomeScan"));
  EXPECT_THAT(Bots(), ElementsAre("Anvil\nbots.pk3", "Tongs\nbots.pk3"));
  Find<QLineEdit>("txtWelcomeFilter")->setText(QStringLiteral("TON"));
  EXPECT_THAT(Bots(), ElementsAre("Tongs\nbots.pk3"));
  EXPECT_TRUE(IsOpen());
  auto* const list = Find<QListWidget>("lstWelcomeBots");
  list->setCurrentRow(1);
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Return);
  // The tool gives nothing out, but it is this very bot.
  ASSERT_FALSE(prompts_.log.empty());
  EXPECT_THAT(prompts_.log.back(), HasSubstr("Bot Tongs not loaded."));
  EXPECT_TRUE(IsOpen());
}

TEST_F(Welcome, CountsNothingOfAGameThatWasNotScanned) {
  folder_.WriteProgram("game/quake3.exe", "");
  folder_.Write("game/baseq3/pak0.pk3", "");
  state_->settings.BaseQ3Check = true;
  OnDialog<frmOptions>([this](frmOptions& dialog) {
    dialog.SetOptionValue(0, (folder_ / "game").string());
    dialog.accept();
  });
  Choose("mnuOptions");
  const auto labels = Page()->findChildren<QLabel*>();
  EXPECT_TRUE(std::ranges::any_of(labels, [](const QLabel* label) {
    return label->text().contains(QStringLiteral("Not scanned yet"));
  }));
  EXPECT_EQ(Find<QAbstractButton>("cmdWelcomeScan")->text(), "Scan");
}

TEST_F(Welcome, SetsAndScansAGameByOneClick) {
  folder_.WriteProgram("game/quake3.exe", "");
  folder_.Write("game/baseq3/pak0.pk3", "");
  folder_.Write("game/baseq3/more.pk3",
                MakeZipOfNames({"models/players/Penguin/icon_default.tga"}));
  Page()->ShowGames({{.name = QStringLiteral("Quake III Arena"),
                      .folder = folder_ / "game",
                      .about = {},
                      .is_set = false}});
  Find<QPushButton>("cmdUseGame")->click();
  EXPECT_EQ(state_->settings.Q3Baseq3, (folder_ / "game").string());
  EXPECT_NE(Find<QComboBox>("cmbModel")->findText(QStringLiteral("Penguin")),
            -1);
  EXPECT_THAT(folder_.Read("fgs.ini"), HasSubstr("game"));
  EXPECT_TRUE(IsOpen());
  EXPECT_TRUE(Page()->isAncestorOf(window_->focusWidget()));
}

TEST_F(Welcome, ReadsAGameWhoseScanWasCancelled) {
  folder_.WriteProgram("game/quake3.exe", "");
  folder_.Write("game/baseq3/pak0.pk3",
                MakeZip({{"botfiles/rnd.c", "food = { \"stew\"; }"}}));
  QTimer canceller;
  QObject::connect(&canceller, &QTimer::timeout, [this] {
    auto* const scan = window_->findChild<frmSearchBaseQ3*>();
    if (scan != nullptr) scan->reject();
  });
  canceller.start(0);
  Page()->ShowGames({{.name = QStringLiteral("Quake III Arena"),
                      .folder = folder_ / "game",
                      .about = {},
                      .is_set = false}});
  Find<QPushButton>("cmdUseGame")->click();
  EXPECT_FALSE(state_->settings.BaseQ3Check);
  EXPECT_NE(window_->findChild<BotChecker*>()->game(), nullptr);
}

}  // namespace
}  // namespace fragsmith
