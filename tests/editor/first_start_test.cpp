#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <algorithm>

#include "editor/dialogs/open_dialog.h"
#include "editor/dialogs/options_dialog.h"
#include "install/program/bot_list_file.h"
#include "install/program/model_list_file.h"
#include "install/program/settings_file.h"
#include "support/files.h"
#include "tests/editor/window_fixture.h"

namespace fragsmith {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

/// What the program finds at its start, and what it remembers of earlier ones.
class FirstStart : public WindowFixture {
 protected:
  /// A game with two packages, and an unzip tool that writes down its calls.
  void MakeGame() {
    window_.reset();
    folder_.WriteProgram("game/quake3.exe", "");
    folder_.Write("game/baseq3/pak0.pk3", "");
    folder_.Write("game/baseq3/pak2.pk3", "");
    folder_.WriteProgram("tools/wzunzip",
                         "#!/bin/sh\necho \"$3\" >>'" +
                             (folder_ / "calls").string() + "'\ncp '" +
                             (folder_ / "icon.tga").string() +
                             "' \"$4/$(basename \"$(echo \"$3\" | tr '\\\\' "
                             "/)\")\"\n");
    // A picture of one point.
    std::string icon(18, '\0');
    icon[2] = 2;
    icon[12] = icon[14] = 1;
    icon[16] = 24;
    folder_.Write("icon.tga", icon + "abc");
    ProgramSettings settings;
    settings.Q3Baseq3 = (folder_ / "game").string();
    settings.WinZipDir = (folder_ / "tools").string();
    ASSERT_TRUE(SaveSettings(folder_.path(), settings));
  }

  std::ptrdiff_t Calls() {
    if (!IsFile(folder_ / "calls")) return 0;
    const std::string calls = folder_.Read("calls");
    return std::count(calls.begin(), calls.end(), '\n');
  }

  std::string IconText() {
    return Find<QLabel>("lblIcon")->text().toStdString();
  }
};

TEST_F(FirstStart, LoadsOneIconAndNoneThatIsShown) {
  if (!kIsUnix) GTEST_SKIP() << "The unzip tool is a shell script.";
  MakeGame();
  Open();
  EXPECT_EQ(Calls(), 1) << folder_.Read("calls");
  EXPECT_EQ(IconText(), "");
  Find<QAbstractButton>("chkArenalord")->click();
  Choose("mnuUndo");
  Choose("mnuRedo");
  EXPECT_EQ(Calls(), 1);
  auto* const skins = Find<QComboBox>("cmbSkin");
  QTest::keyClick(skins, Qt::Key_Down);
  EXPECT_EQ(Calls(), 2);
  // One that was not found is looked for again when it is chosen again.
  std::filesystem::remove(folder_ / "icon.tga");
  QTest::keyClick(skins, Qt::Key_Down);
  EXPECT_EQ(Calls(), 3);
  EXPECT_THAT(IconText(), HasSubstr("was not found"));
  Choose("mnuUndo");
  Choose("mnuRedo");
  const std::ptrdiff_t before = Calls();
  emit skins->activated(skins->currentIndex());
  EXPECT_EQ(Calls(), before + 1);
}

TEST_F(FirstStart, SaysThatIconsAreOffUntilASkinIsChosen) {
  if (!kIsUnix) GTEST_SKIP() << "The unzip tool is a shell script.";
  MakeGame();
  std::filesystem::remove(folder_ / "tools/wzunzip");
  Open();
  EXPECT_THAT(IconText(), HasSubstr("Icons are off"));
  Find<QAbstractButton>("chkArenalord")->click();
  Choose("mnuUndo");
  OnDialog<frmOptions>([](frmOptions& dialog) { dialog.accept(); });
  Choose("mnuOptions");
  EXPECT_THAT(IconText(), HasSubstr("Icons are off"));
  QTest::keyClick(Find<QComboBox>("cmbSkin"), Qt::Key_Down);
  EXPECT_THAT(IconText(), HasSubstr("was not found"));
}

TEST_F(FirstStart, BeginsInTheDocumentsAndNotInAHiddenFolder) {
  if (!kIsUnix) GTEST_SKIP() << "HOME is where the documents are.";
  const QByteArray home = qgetenv("HOME");
  const QByteArray settings = qgetenv("XDG_CONFIG_HOME");
  qputenv("HOME", QByteArray::fromStdString((folder_ / "home").string()));
  qunsetenv("XDG_CONFIG_HOME");
  folder_.Write("home/.config/fragsmith/fgs.ini", "");
  const auto begins_in = [this](const char* item) {
    std::string folder;
    ChooseAndAnswer<frmOpen>(item, [&folder](frmOpen& dialog) {
      folder = BytesFromPath(dialog.Choice().folder);
      dialog.reject();
    });
    return folder;
  };
  const auto open = [this](bool is_hidden) {
    window_.reset();
    const auto program = folder_ / "home/.config/fragsmith";
    std::filesystem::remove(program / "fgs.ini");
    state_ = std::make_unique<ProgramState>(
        ProgramFolders{program, program, {}, is_hidden}, prompts_,
        SeededRandom(1));
    window_ = std::make_unique<frmMain>(*state_);
    window_->show();
    window_->FinishStart();
  };
  for (const char* const item :
       {"mnuLoad", "mnuMake", "mnuCharFile", "mnuCompareOther"}) {
    open(true);
    // Without a folder for documents it is the one above.
    std::filesystem::remove(folder_ / "home/Documents");
    EXPECT_EQ(begins_in(item), (folder_ / "home").string()) << item;
    open(true);
    std::filesystem::create_directory(folder_ / "home/Documents");
    EXPECT_EQ(begins_in(item), (folder_ / "home/Documents").string()) << item;
  }
  // The folder is in the options as it is; to look for another begins there.
  std::string searched;
  OnDialog<frmOptions>([&searched](frmOptions& dialog) {
    EXPECT_THAT(dialog.GetOptionValue(1), HasSubstr(".config/fragsmith"));
    dialog.findChild<QPushButton*>(QStringLiteral("cmdSearch_1"))->click();
    auto* const browser = dialog.findChild<frmOpen*>();
    searched = BytesFromPath(browser->Choice().folder);
    browser->reject();
    dialog.SetOptionValue(1, "/usr");
    dialog.accept();
  });
  Choose("mnuOptions");
  EXPECT_EQ(searched, (folder_ / "home/Documents").string());
  // One that the user names is where the next box begins.
  EXPECT_EQ(begins_in("mnuLoad"), "/usr");
  open(false);
  EXPECT_THAT(begins_in("mnuLoad"), HasSubstr(".config/fragsmith"));
  qputenv("HOME", home);
  if (!settings.isNull()) qputenv("XDG_CONFIG_HOME", settings);
}

TEST_F(FirstStart, DropsTheEntriesOfAPackageThatALoadFoundGone) {
  if (!kIsUnix) GTEST_SKIP() << "The unzip tool is a shell script.";
  MakeGame();
  folder_.WriteProgram("tools/wzunzip", "#!/bin/sh\n");
  folder_.Write("fgs_bots", "[]\r\n\"Aaa\",\"gone.pk3\",#TRUE#\r\n");
  folder_.Write("fgs_models",
                "[]\r\n\"Aaa\",\"Default\",\"gone.pk3\",\"icon_default.tga\""
                "\r\n");
  Open();
  const std::string model = bot().Text(kModelField);
  const auto load = [this] {
    OnDialog<frmOpen>([](frmOpen& dialog) {
      auto* const bots =
          dialog.findChild<QListWidget*>(QStringLiteral("lstBots"));
      ASSERT_NE(bots, nullptr);
      ASSERT_THAT(bots->item(0)->text().toStdString(), HasSubstr("Aaa"));
      bots->setCurrentRow(0);
      dialog.accept();
    });
    Choose("mnuLoad");
  };
  // A game that is not there says nothing about its packages.
  std::filesystem::rename(folder_ / "game/baseq3", folder_ / "game/away");
  load();
  EXPECT_THAT(folder_.Read("fgs_bots"), HasSubstr("Aaa"));
  std::filesystem::rename(folder_ / "game/away", folder_ / "game/baseq3");

  load();
  EXPECT_THAT(prompts_.log.back(), HasSubstr("Bot Aaa not loaded."));
  EXPECT_EQ(Find<QComboBox>("cmbModel")->findText(QStringLiteral("Aaa")), -1);
  EXPECT_EQ(Find<QComboBox>("cmbModel")->currentText().toStdString(), model);
  EXPECT_EQ(bot().Text(kModelField), model);
  EXPECT_FALSE(is_changed());
  EXPECT_THAT(folder_.Read("fgs_bots"), Not(HasSubstr("Aaa")));
  EXPECT_THAT(folder_.Read("fgs_models"), Not(HasSubstr("Aaa")));
  Open();
  EXPECT_EQ(Find<QComboBox>("cmbModel")->findText(QStringLiteral("Aaa")), -1);
}

TEST_F(FirstStart, OffersTheGameOfBeforeWhenAnotherIsNone) {
  folder_.WriteProgram("game/quake3.exe", "");
  folder_.Write("game/baseq3/pak0.pk3", "");
  folder_.Write("other/readme.txt", "");
  folder_.Write("oa/baseoa/pak0.pk3", "");
  const std::string game = (folder_ / "game").string();
  const auto set = [this](const std::string& folder) {
    prompts_.log.clear();
    OnDialog<frmOptions>([&folder](frmOptions& dialog) {
      dialog.SetOptionValue(0, folder);
      dialog.accept();
    });
    Choose("mnuOptions");
    return state_->settings.Q3Baseq3;
  };
  EXPECT_EQ(set(game), game);
  enum : std::size_t { kKeep, kNone, kCorrect };
  // Esc keeps it, too.
  EXPECT_EQ(set((folder_ / "other").string()), game);
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("Quake3.exe not found"),
                                        HasSubstr("'" + game + "'")));
  EXPECT_THAT(folder_.Read("fgs.ini"), HasSubstr(game));
  prompts_.choices = {kNone};
  EXPECT_EQ(set((folder_ / "other").string()), "");
  set(game);
  // What was typed can be corrected.
  prompts_.choices = {kCorrect};
  const std::string typed = (folder_ / "gmae").string();
  OnDialog<frmOptions>([&](frmOptions& dialog) {
    OnDialog<frmOptions>([&](frmOptions& again) {
      const auto* const box =
          qobject_cast<QLineEdit*>(QApplication::focusWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->objectName(), QStringLiteral("txtOption_0"));
      EXPECT_EQ(box->selectedText().toStdString(), typed);
      again.SetOptionValue(0, game);
      again.accept();
    });
    dialog.SetOptionValue(0, typed);
    dialog.accept();
  });
  Choose("mnuOptions");
  EXPECT_EQ(state_->settings.Q3Baseq3, game);
  set(game);
  EXPECT_EQ(set(""), "");
  EXPECT_THAT(prompts_.log, SizeIs(0));
  if (kIsUnix) {
    const std::string copied = (folder_ / "oa").string();
    EXPECT_EQ(set(copied), copied);
  }
}

}  // namespace
}  // namespace fragsmith
