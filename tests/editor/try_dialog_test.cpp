#include "editor/dialogs/try_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <memory>

#include "checks/bot_checks.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "support/files.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;

/// Says that it runs, shows what it was called with and what package there is,
/// and stays until it is ended, as an engine does.
constexpr const char* kEngine =
    "#!/bin/sh\n"
    "echo $$ >\"$0.pid\"; echo \"$@\" >\"$0.arguments\"\n"
    "home=$(echo \"$@\" | sed 's/.*fs_homepath \\([^ ]*\\) .*/\\1/')\n"
    "echo \"$home\" >\"$0.home\"; ls \"$home/fragsmith\" >\"$0.package\"\n"
    "echo 'loaded skill 4 from bots/rookie_c.c'\n"
    "echo '^3Warning: couldn'\"'\"'t find skill 4 in bots/rookie_c.c' >&2\n"
    "echo 'loaded rookie from bots/rookie_t.c'\n"
    "echo 'broadcast: print \"Rookie^7 entered the game\\n\"'\n"
    "exec sleep 60\n";

class TryDialog : public testing::Test {
 protected:
  TryDialog()
      : bot_(CreateZeroBot()),
        state_(ProgramFolders{folder_.path(), folder_.path()}, prompts_,
               SeededRandom(1)) {
    EXPECT_TRUE(bot_.SetParameter(kNameIndex, std::string("Rookie")));
    Open();
  }

  void Open() {
    dialog_ = std::make_unique<frmTry>(bot_, CheckBot(bot_, nullptr), state_);
    dialog_->show();
    QCoreApplication::processEvents();
  }

  template <typename Widget>
  Widget& Find(const char* name) {
    auto* const found = dialog_->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::out_of_range(name);
    return *found;
  }

  void Enter(const char* box, const char* text) {
    Find<QLineEdit>(box).setText(QString::fromUtf8(text));
  }

  void UseEngine(const fs::path& engine) {
    Find<QComboBox>("cmbEngine")
        .setCurrentText(QString::fromStdString(BytesFromPath(engine)));
  }

  void Press(const char* button) {
    QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
  }

  std::string Verdict() { return Find<QLabel>("lblHint").text().toStdString(); }

  std::string Button() {
    return Find<QPushButton>("cmdStart").text().remove(u'&').toStdString();
  }

  bool IsRunning() const {
    return !fs::exists("/proc/self") ||
           fs::exists("/proc/" + PidOf(folder_.Read("ioq3ded.pid")));
  }

  static std::string PidOf(std::string line) {
    line.resize(std::min(line.find('\n'), line.size()));
    return line;
  }

  TestFolder folder_;
  ScriptedPrompts prompts_;
  Bot bot_;
  ProgramState state_;
  std::unique_ptr<frmTry> dialog_;
};

TEST_F(TryDialog, ShowsWhatTheEngineSaysAndEndsIt) {
  if (!kIsUnix) GTEST_SKIP() << "The engine is a shell script.";
  UseEngine(folder_.WriteProgram("ioq3ded", kEngine));
  Enter("txtData", "/data");
  Enter("txtGame", "baseoa");
  Enter("txtMap", "oa_dm1");
  Enter("txtOpponents", " sarge  grunt ");
  Find<QComboBox>("cmbSkill").setCurrentIndex(4);
  EXPECT_GT(Find<QListWidget>("lstFound").count(), 0);
  Press("cmdStart");
  auto& lines = Find<QListWidget>("lstLines");
  ASSERT_TRUE(QTest::qWaitFor([&] { return lines.count() == 4; }, 20000));
  EXPECT_EQ(Button(), "Stop");
  EXPECT_FALSE(Find<QLineEdit>("txtMap").isEnabled());
  EXPECT_EQ(Verdict(), "Rookie entered the game.");
  EXPECT_THAT(lines.item(1)->text().toStdString(),
              AllOf(HasSubstr("Warning: couldn't find skill 4"),
                    HasSubstr("\nThe character file has no block")));
  EXPECT_THAT(
      folder_.Read("ioq3ded.arguments"),
      AllOf(HasSubstr("fs_basepath /data "), HasSubstr("com_basegame baseoa "),
            HasSubstr("+set dedicated 1 +map oa_dm1 +addbot Rookie 5 "
                      "+addbot sarge 5 +addbot grunt 5")));
  EXPECT_EQ(folder_.Read("ioq3ded.package"), "bot-Rookie.pk3\n");
  const std::string home = PidOf(folder_.Read("ioq3ded.home"));
  EXPECT_TRUE(fs::exists(home));
  EXPECT_TRUE(IsRunning());

  Press("cmdStart");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Button() == "Start"; }, 20000));
  EXPECT_EQ(Verdict(), "Rookie entered the game.");
  EXPECT_FALSE(fs::exists(home));
  EXPECT_TRUE(Find<QLineEdit>("txtMap").isEnabled());

  // Once more, and out by the window's own way.
  Press("cmdStart");
  ASSERT_TRUE(QTest::qWaitFor([&] { return lines.count() == 4; }, 20000));
  EXPECT_TRUE(IsRunning());
  QTest::keyClick(dialog_.get(), Qt::Key_Escape);
  EXPECT_FALSE(dialog_->isVisible());
  EXPECT_FALSE(IsRunning());
  EXPECT_FALSE(fs::exists(PidOf(folder_.Read("ioq3ded.home"))));
  EXPECT_TRUE(prompts_.log.empty());

  Open();
  EXPECT_EQ(Find<QComboBox>("cmbEngine").currentText().toStdString(),
            (folder_ / "ioq3ded").string());
  EXPECT_EQ(Find<QLineEdit>("txtData").text(), QStringLiteral("/data"));
  EXPECT_EQ(Find<QLineEdit>("txtGame").text(), QStringLiteral("baseoa"));
  EXPECT_EQ(Find<QLineEdit>("txtMap").text(), QStringLiteral("oa_dm1"));
  EXPECT_EQ(Find<QComboBox>("cmbSkill").currentIndex(), 4);
  EXPECT_EQ(Find<QLineEdit>("txtOpponents").text().simplified(),
            QStringLiteral("sarge grunt"));
}

TEST_F(TryDialog, SaysWhyNothingCanBeTried) {
  if (!kIsUnix) GTEST_SKIP() << "The engine is a shell script.";
  Enter("txtMap", "");
  Press("cmdStart");
  EXPECT_THAT(Verdict(), HasSubstr("There is no map to play on."));
  Enter("txtMap", "q3dm1");
  for (const fs::path& engine : {folder_ / "missing", fs::path()}) {
    UseEngine(engine);
    Press("cmdStart");
    ASSERT_TRUE(QTest::qWaitFor([&] { return Button() == "Start"; }, 20000));
    EXPECT_THAT(Verdict(), HasSubstr("The engine cannot be started:"));
  }
  UseEngine(folder_.WriteProgram("short", "#!/bin/sh\necho no pak0.pk3\n"));
  Press("cmdStart");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Button() == "Start"; }, 20000));
  EXPECT_THAT(Verdict(), HasSubstr("The engine ended before"));
  const auto& lines = Find<QListWidget>("lstLines");
  ASSERT_EQ(lines.count(), 2);
  EXPECT_EQ(lines.item(1)->text(), "no pak0.pk3");

  ASSERT_TRUE(bot_.SetParameter(kNameIndex, std::string("../x")));
  Open();
  Press("cmdStart");
  EXPECT_EQ(Button(), "Start");
  EXPECT_FALSE(Verdict().empty());
}

// A game that has a window is played in, so there is a player besides.
TEST_F(TryDialog, KnowsAServerByItsNameAndSuggestsAMap) {
  if (!kIsUnix) GTEST_SKIP() << "The engine is a shell script.";
  folder_.WriteProgram("game/openarena", kEngine);
  state_.settings.Q3Baseq3 = (folder_ / "game").string();
  Open();
  auto& engines = Find<QComboBox>("cmbEngine");
  const int place = engines.findText(
      QString::fromStdString((folder_ / "game/openarena").string()));
  ASSERT_GE(place, 0);
  engines.setCurrentIndex(place);
  Enter("txtData", "");
  emit engines.textActivated(engines.currentText());
  EXPECT_EQ(Find<QLineEdit>("txtMap").text(), QStringLiteral("oa_dm1"));
  Press("cmdStart");
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return Verdict() == "Rookie entered the game."; }, 20000));
  EXPECT_THAT(folder_.Read("game/openarena.arguments"),
              AllOf(HasSubstr("+devmap oa_dm1 +addbot Rookie 4"),
                    testing::Not(HasSubstr("dedicated"))));
}

}  // namespace
}  // namespace fragsmith
