#include "editor/dialogs/try_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QTest>
#include <memory>

#include "checks/bot_checks.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "session/save_bot.h"
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
    EXPECT_TRUE(bot_.SetParameter(kNameField, std::string("Rookie")));
    Open();
  }

  void Open() {
    dialog_ = std::make_unique<frmTry>(bot_, CheckBot(bot_, nullptr), on_disk_,
                                       nullptr, state_);
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
  std::optional<BotLocation> on_disk_;
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
  EXPECT_GT(Find<QListView>("lstFound").model()->rowCount(), 0);
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
    EXPECT_THAT(Verdict(), HasSubstr("The program cannot be started:"));
  }
  UseEngine(folder_.WriteProgram("short", "#!/bin/sh\necho no pak0.pk3\n"));
  Press("cmdStart");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Button() == "Start"; }, 20000));
  EXPECT_THAT(Verdict(), HasSubstr("The engine ended before"));
  const auto& lines = Find<QListWidget>("lstLines");
  ASSERT_EQ(lines.count(), 2);
  EXPECT_EQ(lines.item(1)->text(), "no pak0.pk3");

  ASSERT_TRUE(bot_.SetParameter(kNameField, std::string("../x")));
  Open();
  Press("cmdStart");
  EXPECT_EQ(Button(), "Start");
  EXPECT_FALSE(Verdict().empty());
}

TEST_F(TryDialog, EndsAnEngineThatPrintsWithoutEnd) {
  if (!kIsUnix) GTEST_SKIP() << "The engine is a shell script.";
  UseEngine(folder_.WriteProgram("ioq3ded",
                                 "#!/bin/sh\ntrap '' TERM\necho $$ "
                                 ">\"$0.pid\"\nexec yes 'Warning: no'\n"));
  Enter("txtMap", "q3dm1");
  Press("cmdStart");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Button() == "Start"; }, 60000));
  EXPECT_THAT(Verdict(), HasSubstr("The engine prints without end."));
  EXPECT_EQ(Find<QListWidget>("lstLines").count(), 1);
  EXPECT_FALSE(IsRunning());
}

// All of them can be where somebody has the game.
TEST_F(TryDialog, TakesPathsWithBlanksQuotesSlashesAndLetters) {
  if (!kIsUnix) GTEST_SKIP() << "The engine is a shell script.";
  const QByteArray temporary = qgetenv("TMPDIR");
  const fs::path scratch = folder_ / "t m\u00F6p";
  fs::create_directory(scratch);
  const fs::path data = folder_ / "my \"d\u00E4ta\"";
  fs::create_directory(data);
  qputenv("TMPDIR", QByteArray::fromStdString(BytesFromPath(scratch) + "//"));
  UseEngine(folder_.WriteProgram(
      "the \"g\u00E4me\"/ioq3ded",
      "#!/bin/sh\ncd \"$(dirname \"$0\")\"\nprintf '%s\\n' \"$@\" >arguments\n"
      "readlink \"$3\" >link\nls \"$6/fragsmith\" >package\n"
      "echo done >done\nexec sleep 60\n"));
  Enter("txtData", (BytesFromPath(data) + "//").c_str());
  Enter("txtMap", "q3dm1");
  Press("cmdStart");
  const std::string engine = "the \"g\u00E4me\"/";
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return fs::exists(folder_ / (engine + "done")); }, 20000));
  EXPECT_THAT(folder_.Read(engine + "arguments"),
              AllOf(HasSubstr("+set\nfs_basepath\n" + BytesFromPath(scratch)),
                    HasSubstr("+set\nfs_homepath\n" + BytesFromPath(scratch)),
                    testing::Not(HasSubstr("//"))));
  EXPECT_THAT(folder_.Read(engine + "link"), HasSubstr(BytesFromPath(data)));
  EXPECT_EQ(folder_.Read(engine + "package"), "bot-Rookie.pk3\n");
  dialog_->close();
  EXPECT_TRUE(fs::is_empty(scratch));
  if (temporary.isNull()) {
    qunsetenv("TMPDIR");
  } else {
    qputenv("TMPDIR", temporary);
  }
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

TEST_F(TryDialog, TriesTheFilesWhenTheySayAnythingElse) {
  if (!kIsUnix) GTEST_SKIP() << "The engine is a shell script.";
  EXPECT_FALSE(SaveBot(bot_, folder_.path(), {}, {}, prompts_).error);
  on_disk_ = BotLocation{.name = "rookie", .folder = folder_.path()};
  Open();
  EXPECT_FALSE(Find<QComboBox>("cmbWhat").isVisible());

  // The game knows the bot of the files by another name, and stumbles there.
  folder_.Write("rookie.bot", "{\nname Old\naifile bots/rookie_c.c\n}\n");
  folder_.Write("rookie_t.c", "chat \"Rookie\"\n{\n type \"a\" { \"b\n}\n");
  Open();
  auto& what = Find<QComboBox>("cmbWhat");
  EXPECT_TRUE(what.isVisible());
  EXPECT_EQ(what.currentIndex(), 0);
  const auto& found = Find<FindingsView>("lstFound");
  const auto is_of_files = [](const Finding& finding) {
    return std::holds_alternative<FilePlace>(finding.place);
  };
  EXPECT_TRUE(std::none_of(found.findings().begin(), found.findings().end(),
                           is_of_files));
  what.setCurrentIndex(1);
  EXPECT_TRUE(std::any_of(found.findings().begin(), found.findings().end(),
                          is_of_files));

  const fs::path engine = folder_.Write("ioq3ded", kEngine);
  fs::permissions(engine, fs::perms::owner_all);
  UseEngine(engine);
  Enter("txtMap", "here");
  Press("cmdStart");
  EXPECT_TRUE(QTest::qWaitFor(
      [this] { return fs::exists(folder_ / "ioq3ded.package"); }));
  EXPECT_TRUE(QTest::qWaitFor(
      [this] { return !folder_.Read("ioq3ded.package").empty(); }));
  EXPECT_THAT(folder_.Read("ioq3ded.arguments"), HasSubstr("addbot Old"));
  EXPECT_THAT(folder_.Read("ioq3ded.package"), HasSubstr("botfiles\nscripts"));
  Press("cmdStart");
}

}  // namespace
}  // namespace fragsmith
