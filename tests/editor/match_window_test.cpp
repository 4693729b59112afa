#include "editor/dialogs/match_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QTranslator>
#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>

#include "chat/chat_catalogue.h"
#include "editor/toolkit/page_table.h"
#include "game/weapon_order.h"
#include "model/characteristic_catalogue.h"
#include "support/files.h"
#include "tests/editor/font_scale.h"
#include "tests/editor/window_fixture.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr int kPatience = 20'000;

class MatchWindow : public WindowFixture {
 protected:
  void SetUp() override {
    if (!kIsUnix) GTEST_SKIP() << "The server is a shell script.";
    window_->current().EditChats({}, [](Bot& bot) {
      bot.Put(kNameField, std::string("Rookie"));
      for (const ChatTypeId type : kAllChatTypes) {
        if (ChatTypeAt(type).Key != "kill_insult") continue;
        bot.SetChatLine(type, ChatLineIndex(0), "Too slow, {TARGET}.");
        bot.SetChatLine(type, ChatLineIndex(1), "Never said");
      }
    });
    OpenMatches();
  }

  void OpenMatches() {
    QApplication::setActiveWindow(window_.get());
    QTest::keyClick(window_.get(), Qt::Key_F6);
    matches_ = Find<frmMatch>("frmMatch");
    ASSERT_NE(matches_, nullptr);
    EXPECT_TRUE(matches_->isVisible());
    EXPECT_FALSE(matches_->isModal());
  }

  template <typename Widget>
  Widget& In(const char* name) {
    auto* const found = matches_->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::out_of_range(name);
    return *found;
  }

  /// The script finds its own folder in $home, and writes $log.
  void UseServer(const std::string& script) {
    const fs::path server = folder_.WriteProgram(
        "fake-ded",
        "#!/bin/sh\nfor word; do [ \"$last\" = fs_homepath ] && home=$word/"
        "fragsmith; last=$word; done; log=$home/games.log\n"
        "echo \"$home\" >>" +
            BytesFromPath(folder_ / "homes") + "\necho $$ >>" +
            BytesFromPath(folder_ / "pids") + "\n" + script);
    In<QComboBox>("cmbEngine")
        .setCurrentText(QString::fromStdString(BytesFromPath(server)));
    In<QLineEdit>("txtMap").setText(QStringLiteral("q3dm1, q3dm6"));
  }

  static std::string Log(const std::string& other) {
    return "printf '%s\\n' ' 0:00 InitGame: x'"
           " ' 0:00 ClientUserinfoChanged: 0 n\\Rookie\\t'"
           " ' 0:00 ClientUserinfoChanged: 1 n\\" +
           other +
           "\\t' ' 0:09 Kill: 0 1 7: A killed B by MOD_ROCKET'"
           " ' 0:10 say: Rookie: Too slow, somebody.'"
           " ' 0:10 say: Rookie: Of the game.'"
           " ' 0:20 Item: 0 weapon_rocketlauncher' >$log\n";
  }
  static std::string End() {
    return "printf '%s\\n' ' 3:00 Exit: Timelimit hit.'"
           " ' 3:00 score: 20  ping: 0  client: 0 Rookie'"
           " ' 3:00 score: 2  ping: 0  client: 1 other' >>$log\n";
  }

  std::vector<std::string> LinesOf(const char* file) {
    std::istringstream text(folder_.Read(file));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
  }

  void ExpectNothingLeft() {
    for (const std::string& home : LinesOf("homes")) {
      EXPECT_FALSE(fs::exists(home)) << "left behind";
    }
    for (const std::string& pid : LinesOf("pids")) {
      EXPECT_FALSE(fs::exists("/proc/" + pid)) << "still runs";
    }
  }

  void Press(const char* button) {
    QTest::mouseClick(&In<QPushButton>(button), Qt::LeftButton);
  }
  std::string Button() {
    return In<QPushButton>("cmdStart").text().remove(u'&').toStdString();
  }
  bool WaitForEnd() {
    return QTest::qWaitFor([this] { return Button() == "Start"; }, kPatience);
  }
  bool WaitForServers(std::size_t count) {
    return QTest::qWaitFor(
        [&] {
          return fs::exists(folder_ / "pids") &&
                 LinesOf("pids").size() >= count;
        },
        kPatience);
  }
  std::string Verdict() {
    return In<QLabel>("lblVerdict").text().toStdString();
  }
  std::string Hint() { return In<QLabel>("lblHint").text().toStdString(); }
  QTreeWidgetItem* Said(const char* line) {
    auto& said = In<QTreeWidget>("lstSaid");
    const auto found = said.findItems(QLatin1String(line), Qt::MatchExactly, 1);
    return found.size() == 1 ? found.front() : nullptr;
  }
  static std::string Cells(const QTreeWidgetItem* item) {
    if (item == nullptr) return "none";
    QStringList cells;
    for (int cell = 0; cell < item->columnCount(); ++cell) {
      cells << item->text(cell);
    }
    return cells.join(u'|').toStdString();
  }

  std::string Exported(const char* item, const char* file) {
    const fs::path path = folder_ / file;
    OnDialog<QFileDialog>([&path](QFileDialog& dialog) {
      dialog.selectFile(QString::fromStdString(BytesFromPath(path)));
      static_cast<QDialog&>(dialog).accept();
    });
    In<QAction>(item).trigger();
    return folder_.Read(file);
  }

  frmMatch* matches_ = nullptr;
};

TEST_F(MatchWindow, FitsOnASmallScreen) {
  // With the frame that a desktop puts around it.
  EXPECT_LE(matches_->minimumSizeHint().width(), WithThisFont(790));
  EXPECT_LE(matches_->minimumSizeHint().height(), WithThisFont(570));
}

TEST_F(MatchWindow, PlaysAgainstHowTheBotWasAndShowsWhatCameOfIt) {
  UseServer(Log("Bot") + End());
  In<QSpinBox>("spnGames").setValue(3);
  In<QSpinBox>("spnMinutes").setValue(3);
  EXPECT_FALSE(In<QPushButton>("cmdExport").isEnabled());
  Press("cmdStart");
  EXPECT_EQ(Button(), "Stop");
  EXPECT_FALSE(In<QLineEdit>("txtMap").isEnabled());
  ASSERT_TRUE(WaitForEnd());
  ExpectNothingLeft();
  EXPECT_THAT(
      Verdict(),
      HasSubstr("between Rookie and Bot as it was loaded: Rookie took 91 %"));
  EXPECT_THAT(In<SharePlot>("picShare").accessibleDescription().toStdString(),
              HasSubstr("After 3 matches: 91 % ("));
  EXPECT_THAT(In<KillBars>("picKills").accessibleDescription().toStdString(),
              HasSubstr("Rocket launcher: 3 of Rookie, 0 of Bot as it was"));
  const auto& bots = In<QTableWidget>("tblBots");
  EXPECT_EQ(bots.item(0, 0)->text(), QStringLiteral("60"));
  EXPECT_EQ(bots.item(1, 3)->text(), QStringLiteral("3"));
  EXPECT_THAT(Cells(In<QTreeWidget>("lstRuns").topLevelItem(0)),
              AllOf(HasSubstr("Rookie|Bot as it was loaded|91 % ("),
                    HasSubstr("|3|4, q3dm1,q3dm6")));
  EXPECT_EQ(Cells(In<QTreeWidget>("lstTook").topLevelItem(0)),
            "3|weapon_rocketlauncher|180");

  EXPECT_EQ(Cells(Said("Too slow, {TARGET}.")),
            "3|Too slow, {TARGET}.|Bot kills (negative)");
  EXPECT_EQ(Cells(Said("Never said")),
            "0|Never said|never heard: Bot kills (negative)");
  EXPECT_EQ(Cells(Said("Of the game.")), "3|Of the game.|none of its lines");
  auto& said = In<QTreeWidget>("lstSaid");
  said.setCurrentItem(Said("Never said"));
  QTest::keyClick(&said, Qt::Key_Return);
  EXPECT_EQ(Button(), "Start");
  EXPECT_EQ(Find<QTabWidget>("tbsBotPara")->currentIndex(), kChatPage);
  EXPECT_EQ(Find<QLineEdit>("txtChatLine")->text(),
            QStringLiteral("Never said"));

  EXPECT_THAT(Exported("mnuCsv", "run.csv"),
              HasSubstr("\n3,q3dm1,180,Rookie,Rookie,4,20,1,0,0,0\n"));
  Notes notes;
  const Result<std::vector<MatchReport>> read =
      ReadMatchJson(Exported("mnuJson", "run.json"), "run.json", notes);
  ASSERT_TRUE(read);
  EXPECT_TRUE(notes.empty()) << notes.list().front().text;
  EXPECT_EQ(read->at(0).played.size(), 3U);
  Exported("mnuPng", "run.png");
  const QImage picture(
      QString::fromStdString(BytesFromPath(folder_ / "run.png")));
  EXPECT_GT(picture.width(), 200);
}

TEST_F(MatchWindow, PlaysUntilItIsSureAndKeepsTheRuns) {
  UseServer(Log("sarge") + End());
  In<QComboBox>("cmbOpponent").setCurrentText(QStringLiteral("sarge"));
  In<QCheckBox>("chkUntilSure").setChecked(true);
  EXPECT_FALSE(In<QSpinBox>("spnGames").isEnabled());
  Press("cmdStart");
  ASSERT_TRUE(WaitForEnd());
  EXPECT_THAT(Verdict(), HasSubstr("Rookie is better than sarge, which was "
                                   "clear after 8 matches: 91 %"));
  // The next one stands beside it, and is shown.
  UseServer(Log("Bot") + End());
  In<QComboBox>("cmbOpponent").setCurrentIndex(0);
  In<QCheckBox>("chkUntilSure").setChecked(false);
  In<QSpinBox>("spnGames").setValue(1);
  Press("cmdStart");
  ASSERT_TRUE(WaitForEnd());
  auto& runs = In<QTreeWidget>("lstRuns");
  ASSERT_EQ(runs.topLevelItemCount(), 2);
  EXPECT_EQ(runs.indexOfTopLevelItem(runs.currentItem()), 1);
  EXPECT_THAT(Verdict(), HasSubstr("No difference is shown"));
  EXPECT_LE(matches_->minimumSizeHint().width(), WithThisFont(1016));
  EXPECT_LE(matches_->minimumSizeHint().height(), 670);
  EXPECT_LE(matches_->width(), std::max(matches_->screen()->size().width(),
                                        matches_->minimumSizeHint().width()));
  runs.setCurrentItem(runs.topLevelItem(0));
  EXPECT_THAT(Verdict(), HasSubstr("Rookie is better than sarge"));
  EXPECT_EQ(Cells(Said("Too slow, {TARGET}.")).substr(0, 2), "8|");

  // What was chosen is there the next time.
  QTest::keyClick(matches_, Qt::Key_Escape);
  EXPECT_FALSE(matches_->isVisible());
  OpenMatches();
  EXPECT_EQ(runs.topLevelItemCount(), 2);
  Open();
  OpenMatches();
  EXPECT_EQ(In<QSpinBox>("spnGames").value(), 1);
  EXPECT_EQ(In<QLineEdit>("txtMap").text(), QStringLiteral("q3dm1, q3dm6"));
}

TEST_F(MatchWindow, ShowsRunsInOnePictureAndFindingsBesideTheMatches) {
  window_->current().Edit({}, [](Bot& bot) { bot.Put(kGauntletUsage, 500.0); });
  UseServer(Log("Bot") + End());
  In<QSpinBox>("spnGames").setValue(1);
  Press("cmdStart");
  ASSERT_TRUE(WaitForEnd());
  // It killed with rockets.
  const auto& evidence = In<MatchFindings>("lstEvidence");
  ASSERT_EQ(evidence.topLevelItemCount(), 2);
  EXPECT_THAT(Cells(evidence.topLevelItem(1)),
              HasSubstr("contradict|The 2 lines were heard 1 time in 1 match.|"
                        "There are lines for"));
  EXPECT_THAT(Cells(evidence.topLevelItem(0)),
              HasSubstr("contradict|1 of its 1 kills were with other weapons.|"
                        "No weapon has a larger weight"));
  auto& lists = In<QTabWidget>("tabLists");
  EXPECT_TRUE(lists.isTabVisible(2));
  EXPECT_FALSE(lists.isTabVisible(3)) << "no strength was looked for";
  emit In<MatchFindings>("lstEvidence")
      .itemActivated(evidence.topLevelItem(0), 0);
  EXPECT_EQ(Find<QTabWidget>("tbsBotPara")->currentIndex(),
            PageOfParameter(kGauntletUsage.index()));

  window_->current().Edit({}, [](Bot& bot) {
    bot.Put(kMachinegunUsage, 600.0);
    for (int index : kChanceRange) bot.Put(ParameterId(index), 0.5);
  });
  UseServer(Log("sarge") + End());
  In<QComboBox>("cmbOpponent").setCurrentText(QStringLiteral("sarge"));
  Press("cmdStart");
  ASSERT_TRUE(WaitForEnd());
  // The lines come as the other type now, and are taken to be never spoken.
  ASSERT_EQ(evidence.topLevelItemCount(), 1);
  EXPECT_THAT(Cells(evidence.topLevelItem(0)),
              HasSubstr("by the chat characteristics \"Insult\" and"));
  const auto said = [this] {
    return In<SharePlot>("picShare").accessibleDescription().toStdString();
  };
  EXPECT_THAT(said(), Not(HasSubstr("as it was loaded")));
  In<QTreeWidget>("lstRuns").selectAll();
  EXPECT_THAT(said(), AllOf(HasSubstr("Rookie - sarge. After 1 match: 91 %"),
                            HasSubstr("Rookie - Bot as it was loaded. After")));
}

TEST_F(MatchWindow, LooksForAStrengthAndGivesItAsAStep) {
  const ParameterId attack(Level::k4, kAttackSkillIndex);
  window_->current().Edit({}, [&](Bot& bot) { bot.Put(attack, 0.5); });
  UseServer(Log("sarge") + End());
  In<QComboBox>("cmbOpponent").setCurrentText(QStringLiteral("sarge"));
  In<QSpinBox>("spnShare").setValue(50);
  Press("cmdTune");
  EXPECT_FALSE(In<QPushButton>("cmdTune").isEnabled());
  EXPECT_FALSE(In<QPushButton>("cmdTakeStrength").isEnabled());
  ASSERT_TRUE(WaitForEnd());
  ExpectNothingLeft();
  // This server lets it win, however weak it is.
  EXPECT_THAT(Verdict(), AllOf(HasSubstr("Between the two ends, the bot does "
                                         "not come to 50 %."),
                               HasSubstr("Now strength -1.000: 91 %")));
  auto& strength = In<QTreeWidget>("lstStrength");
  const auto rows = strength.findItems(QStringLiteral("Attack skill, level 4"),
                                       Qt::MatchExactly);
  ASSERT_EQ(rows.size(), 1);
  EXPECT_EQ(Cells(rows.front()), "Attack skill, level 4|0.01|0.5|0.01|1.00");
  EXPECT_EQ(window_->current().bot().Text(attack), "0.5");
  Press("cmdTakeStrength");
  EXPECT_EQ(window_->current().bot().Text(attack), "0.01");
  EXPECT_EQ(window_->current().bot().Name(), "Rookie");
  window_->current().steps().undo();
  EXPECT_EQ(window_->current().bot().Text(attack), "0.5");
  // What was edited since the run began is newer.
  window_->current().Edit({}, [&](Bot& bot) { bot.Put(attack, 0.9); });
  Press("cmdTakeStrength");
  EXPECT_EQ(window_->current().bot().Text(attack), "0.9");
  EXPECT_THAT(Hint(), HasSubstr("What you changed since the run began stays: "
                                "\"Attack skill\" at level 4."));
  window_->current().steps().undo();
  window_->current().steps().undo();

  // With what it takes as it is, it stays as it is.
  In<QSpinBox>("spnShare").setValue(90);
  Press("cmdTune");
  ASSERT_TRUE(WaitForEnd());
  EXPECT_THAT(Verdict(), HasSubstr("The bot takes 90 %, within the margin."));
  EXPECT_FALSE(In<QPushButton>("cmdTakeStrength").isEnabled());

  window_->current().SetChanged(false);
  auto& runs = In<QTreeWidget>("lstRuns");
  runs.setCurrentItem(runs.topLevelItem(0));
  Choose("mnuNewAverage");
  const std::string other = window_->current().bot().Text(attack);
  Press("cmdTakeStrength");
  EXPECT_THAT(Hint(), HasSubstr("Another bot is in the window now."));
  EXPECT_EQ(window_->current().bot().Text(attack), other);
}

TEST_F(MatchWindow, EndsAllServersHoweverItEnds) {
  UseServer(Log("Bot") + "exec sleep 60\n");
  In<QSpinBox>("spnJobs").setValue(2);
  Press("cmdStart");
  ASSERT_TRUE(WaitForServers(2));
  EXPECT_TRUE(QTest::qWaitFor(
      [this] { return Hint().find("2 running") != std::string::npos; },
      kPatience));
  EXPECT_THAT(Verdict(), HasSubstr("The first matches are being played."));
  // The window stays usable meanwhile; what is edited takes no part.
  Choose("mnuNewAverage");
  Press("cmdStart");
  EXPECT_EQ(Button(), "Start");
  EXPECT_THAT(Verdict(), HasSubstr("No match was played to its end."));
  ExpectNothingLeft();

  UseServer("mkdir $0.first 2>/dev/null || exec sleep 60\n" + Log("Bot") +
            End());
  Press("cmdStart");
  ASSERT_TRUE(WaitForServers(4));
  QTest::keyClick(matches_, Qt::Key_Escape);
  EXPECT_FALSE(matches_->isVisible());
  ExpectNothingLeft();

  OpenMatches();
  UseServer("exec sleep 60\n");
  Press("cmdStart");
  ASSERT_TRUE(WaitForServers(6));
  window_.reset();
  ExpectNothingLeft();
}

TEST_F(MatchWindow, SaysWhyNothingIsPlayed) {
  UseServer("echo no pak0.pk3; exit 1\n");
  In<QLineEdit>("txtMap").clear();
  Press("cmdStart");
  EXPECT_THAT(Hint(), HasSubstr("There is no map to play on."));
  In<QLineEdit>("txtMap").setText(QStringLiteral("q3dm1"));
  In<QComboBox>("cmbOpponent").setCurrentText(QString());
  Press("cmdStart");
  EXPECT_THAT(Hint(), HasSubstr("There is nobody to play against."));
  In<QComboBox>("cmbOpponent").setCurrentIndex(0);
  const QString server = In<QComboBox>("cmbEngine").currentText();
  In<QComboBox>("cmbEngine").setCurrentText(QString());
  Press("cmdStart");
  EXPECT_THAT(Hint(), HasSubstr("There is no dedicated server to play on."));
  EXPECT_EQ(In<QTreeWidget>("lstRuns").topLevelItemCount(), 0);
  In<QComboBox>("cmbEngine").setCurrentText(server);
  Press("cmdStart");
  ASSERT_TRUE(WaitForEnd());
  EXPECT_THAT(Verdict(), AllOf(HasSubstr("No match was played to its end."),
                               HasSubstr("no pak0.pk3")));
  UseServer("echo \"Can't find map maps/q3dm1.bsp\"; exec sleep 60\n");
  Press("cmdStart");
  ASSERT_TRUE(WaitForEnd());
  EXPECT_THAT(Verdict(), AllOf(HasSubstr("Can't find map maps/q3dm1.bsp."),
                               HasSubstr("Choose another one.")));
  EXPECT_FALSE(In<QPushButton>("cmdExport").isEnabled());
  ExpectNothingLeft();
}

class Translator : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* /*context*/, const char* source,
                    const char* /*disambiguation*/,
                    int /*count*/) const override {
    return QLatin1String(source) == QLatin1String("The bot as it was loaded")
               ? QStringLiteral("Wie geladen")
               : QString();
  }
};

TEST_F(MatchWindow, KnowsTheOpponentAgainInAnotherLanguage) {
  using Kind = MatchChoices::OpponentKind;
  const auto take_up = [this](const char* shown) {
    MatchChoices choices(*state_, nullptr);
    choices.FillOpponents(false, nullptr);
    choices.Load();
    EXPECT_EQ(choices.Opponent(), Kind::kAsLoaded);
    EXPECT_EQ(choices.OpponentName(), shown);
    choices.Save();
  };
  In<QComboBox>("cmbOpponent").setCurrentIndex(0);
  matches_->reject();
  {
    Translator translator;
    QCoreApplication::installTranslator(&translator);
    take_up("Wie geladen");
  }
  take_up("The bot as it was loaded");
}

}  // namespace
}  // namespace fragsmith
