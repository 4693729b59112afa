#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "checks/bot_location.h"
#include "checks/location_checks.h"
#include "editor/controls/caption_mark.h"
#include "editor/controls/skill_plot.h"
#include "editor/controls/weapon_bars.h"
#include "editor/dialogs/open_dialog.h"
#include "editor/dialogs/options_dialog.h"
#include "editor/panels/findings_dock.h"
#include "editor/state/bot_checker.h"
#include "install/packages/package_writer.h"
#include "session/bot_origin.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "tests/editor/window_fixture.h"
#include "tests/support/ids.h"
#include "tests/support/package_maker.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;

class Findings : public WindowFixture {
 protected:
  Findings() {
    // Values that the game takes as they are.
    Bot good = CreateZeroBot();
    for (const Level level : kLevels) {
      Set(good, ParameterId(level, 6), 360.0);
      Set(good, ParameterId(level, 7), 0.5);
    }
    Set(good, Id(46), 50.0);
    Set(good, Id(0), std::string("Tester"));
    window_->current().Replace(good, false, QStringLiteral("Load"));
    Wait();
    Choose("mnuFindings");
  }

  /// Until the list has followed an edit, which it may have by now, and then
  /// the last one.
  void Wait() {
    EXPECT_TRUE(!checked_.isEmpty() || checked_.wait());
    checker_.CheckNow();
    checked_.clear();
  }

  BotChecker& checker_ = *window_->findChild<BotChecker*>();
  QSignalSpy checked_{&checker_, &BotChecker::Checked};

  FindingsView& list() { return *Find<FindingsView>("lstFindings"); }

  int Count() { return list().model()->rowCount(); }
  QString TextAt(int row) {
    return list().model()->index(row, 0).data().toString();
  }
  void Select(int row) {
    list().setCurrentIndex(list().model()->index(row, 0));
  }

  /// The row of the finding that has this in its text; -1 for none.
  int RowOf(const char* words) {
    for (int row = 0; row < Count(); ++row) {
      if (TextAt(row).contains(QLatin1String(words))) return row;
    }
    return -1;
  }

  bool IsMarked(const char* control) {
    const auto* const mark = Find<QWidget>(control)->findChild<CaptionMark*>();
    return mark != nullptr && mark->isVisibleTo(window_.get());
  }

  void Move(const IdNumber& parameter, double value) {
    window_->current().SetParameter(Id(parameter), value);
  }
};

TEST_F(Findings, FollowEachEditWithListCountAndMark) {
  EXPECT_EQ(RowOf("\"Reaction time\" at level 4"), -1);
  EXPECT_FALSE(IsMarked("tsBotPara_7"));
  const QString before = Find<QToolButton>("cmdFindings")->text();
  Move(407, 3.0);
  Wait();
  EXPECT_GE(RowOf("\"Reaction time\" at level 4"), 0);
  EXPECT_TRUE(IsMarked("tsBotPara_7"));
  EXPECT_NE(Find<QToolButton>("cmdFindings")->text(), before);
  Choose("mnuUndo");
  Wait();
  EXPECT_EQ(RowOf("\"Reaction time\" at level 4"), -1);
  EXPECT_FALSE(IsMarked("tsBotPara_7"));
  EXPECT_EQ(Find<QToolButton>("cmdFindings")->text(), before);
}

TEST_F(Findings, LeadToTheControlAndMendIt) {
  Move(507, 2.0);
  Wait();
  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(5);
  const int row = RowOf("\"Reaction time\" at level 5");
  ASSERT_GE(row, 0);
  Select(row);
  emit list().clicked(list().currentIndex());
  EXPECT_EQ(Find<QTabWidget>("tbsBotPara")->currentIndex(), 0);
  EXPECT_EQ(window_->focusWidget()->accessibleName(), "Reaction time, level 5");

  QTest::keyClick(&list(), Qt::Key_Space);
  Wait();
  EXPECT_EQ(bot().Parameter(Id(507)), Value(1.0));
  EXPECT_EQ(RowOf("\"Reaction time\" at level 5"), -1);
  Choose("mnuUndo");
  EXPECT_EQ(bot().Parameter(Id(507)), Value(2.0));

  // Beside the list for those who cannot reach what is drawn in it.
  Wait();
  Select(RowOf("\"Reaction time\" at level 5"));
  Find<QAbstractButton>("cmdMend")->click();
  EXPECT_EQ(bot().Parameter(Id(507)), Value(1.0));
  Wait();
  list().setCurrentIndex({});
  EXPECT_FALSE(Find<QAbstractButton>("cmdMend")->isEnabled());
}

TEST_F(Findings, AreMendedByTheButtonInTheirRowOnceForADoubleClick) {
  Move(507, 2.0);
  window_->current().EditChats({}, [](Bot& bot) {
    for (const int type : {3, 4, 5})
      bot.SetChatLine(TypeAt(type), ChatLineIndex(0), "a; b");
  });
  Wait();
  // Below the text of the row.
  const auto button = [this](int row) {
    const QRect rect = list().visualRect(list().model()->index(row, 0));
    return QPoint(rect.left() + 40, rect.bottom() - 15);
  };
  const auto click = [this](const QPoint& point) {
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, point);
  };
  const int row = RowOf("\"Reaction time\" at level 5");
  ASSERT_GE(row, 0);
  list().scrollTo(list().model()->index(row, 0));
  const QPoint place = button(row);
  const int height = list().height();
  click(place);
  EXPECT_EQ(bot().Parameter(Id(507)), Value(1.0));
  Wait();
  EXPECT_EQ(list().height(), height);
  EXPECT_EQ(RowOf("\"Reaction time\" at level 5"), -1);
  const Bot mended = bot();
  QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(bot(), mended);

  const int kind = RowOf("(And 2 more of this kind.)");
  ASSERT_GE(kind, 0);
  list().scrollTo(list().model()->index(kind, 0));
  click(button(kind));
  for (const int type : {3, 4, 5}) {
    EXPECT_EQ(bot().ChatLine(TypeAt(type), ChatLineIndex(0)), "a, b");
  }
  Choose("mnuUndo");
  EXPECT_EQ(bot(), mended);
}

TEST_F(Findings, AreMendedTogetherInOneStep) {
  Move(507, 2.0);
  window_->current().EditChats({}, [](Bot& bot) {
    bot.SetChatLine(TypeAt(3), ChatLineIndex(0), "100% {NONSENSE}");
  });
  Wait();
  const Bot before = bot();
  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(0);
  Find<QPushButton>("cmdMendSafeOnPage")->click();
  EXPECT_EQ(bot().Parameter(Id(507)), Value(1.0));
  EXPECT_EQ(bot().ChatLine(TypeAt(3), ChatLineIndex(0)), "100% {NONSENSE}");
  EXPECT_FALSE(Find<QPushButton>("cmdMendSafeOnPage")->isEnabled());
  Find<QPushButton>("cmdMendSafe")->click();
  // What the author wrote in braces is left to him.
  EXPECT_EQ(bot().ChatLine(TypeAt(3), ChatLineIndex(0)),
            "100 percent {NONSENSE}");
  Choose("mnuUndo");
  Choose("mnuUndo");
  EXPECT_EQ(bot(), before);
}

TEST_F(Findings, LeaveWhatTheGameHasInTheFiles) {
  const fs::path made =
      SaveBot(bot(), folder_.path(), {.uses_layout = true}, {}, prompts_)
          .written.front();
  folder_.Write("botfiles/bots/tester_w.c",
                "#define W_GAUNTLET 10 // mine\n#define W_RAILGUN 190 // my "
                "railgun\n#include \"fw_weap.c\"\n");
  prompts_.confirmations = {true};
  window_->OpenPath(made);
  Wait();
  ASSERT_EQ(bot().Parameter(Id(49)), Value(std::string("0 // my railgun")));
  EXPECT_GE(RowOf("The load read \"0 // my railgun\" for \"Railgun usage\""),
            0);
  const Bot before = bot();
  Find<QPushButton>("cmdMendSafe")->click();
  EXPECT_EQ(bot().Parameter(Id(44)), Value(10.0));
  EXPECT_EQ(bot().Parameter(Id(49)), Value(190.0));
  EXPECT_EQ(RowOf("Railgun"), -1);
  Choose("mnuUndo");
  EXPECT_EQ(bot(), before);
}

TEST_F(Findings, MakeANewBotReadyButForWhatWasEdited) {
  window_->current().SetChanged(false);
  Choose("mnuNewAverage");
  Wait();
  Type("txtBotPara_0", "NameOfSeventeen17");
  Wait();
  const Bot before = bot();
  ASSERT_TRUE(Find<QPushButton>("cmdMakeReady")->isVisibleTo(window_.get()));
  Find<QPushButton>("cmdMakeReady")->click();
  for (const Finding& finding : window_->findChild<BotChecker*>()->findings()) {
    EXPECT_TRUE(finding.severity == Severity::kHint ||
                finding.place == BotPlace(kNameField))
        << finding.text;
  }
  EXPECT_EQ(bot().Name(), "NameOfSeventeen17");
  EXPECT_TRUE(bot().ChatLine(TypeAt(23), ChatLineIndex(0)).empty());
  Choose("mnuUndo");
  EXPECT_EQ(bot(), before);

  // One of a kind is ready from the start.
  for (const char* const kind : {"mnuNew_camper", "mnuNew_surprise"}) {
    window_->current().SetChanged(false);
    Choose(kind);
    checker_.CheckNow();
    for (const Finding& finding :
         window_->findChild<BotChecker*>()->findings()) {
      EXPECT_EQ(finding.severity, Severity::kHint) << finding.text;
    }
  }
  EXPECT_THAT(window_->statusBar()->currentMessage().toStdString(),
              testing::HasSubstr("with the seed "));

  // A bot of files is somebody's.
  BotOrigin origin;
  origin.home->files[BotFile::kChat] = {.path = "x_t.c"};
  window_->current().Replace(before, false, QStringLiteral("Load"), origin);
  Wait();
  EXPECT_FALSE(Find<QPushButton>("cmdMakeReady")->isVisibleTo(window_.get()));
}

TEST_F(Findings, StandInOneRowWhenManyAreOfOneKind) {
  window_->current().EditChats({}, [](Bot& bot) {
    for (const int type : {3, 4, 5})
      bot.SetChatLine(TypeAt(type), ChatLineIndex(0), "{%1}");
  });
  Wait();
  const int folded = Count();
  const int row = RowOf("(And 2 more of this kind.)");
  ASSERT_GE(row, 0);
  EXPECT_TRUE(TextAt(row).startsWith("\"Level ends\", line 1:"));
  Select(row);
  QTest::keyClick(&list(), Qt::Key_Right);
  EXPECT_EQ(Count(), folded + 2);
  EXPECT_EQ(list().currentIndex().row(), row);
  EXPECT_FALSE(TextAt(row).contains("more of this kind"));

  // Another edit leaves it unfolded.
  window_->current().EditChats({}, [](Bot& bot) {
    bot.SetChatLine(TypeAt(5), ChatLineIndex(1), "{%1}");
  });
  Wait();
  EXPECT_EQ(Count(), folded + 3);
  EXPECT_EQ(list().currentIndex().row(), row);
  Find<QPushButton>("cmdFold")->setFocus();
  Find<QPushButton>("cmdFold")->click();
  QCoreApplication::processEvents();
  EXPECT_TRUE(list().hasFocus());
  EXPECT_EQ(Count(), folded);
  EXPECT_EQ(RowOf("(And 3 more of this kind.)"), row);
}

TEST_F(Findings, MarkChatLinesAndSayThem) {
  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(7);
  window_->current().EditChats({}, [](Bot& bot) {
    bot.SetChatLine(TypeAt(0), ChatLineIndex(0), "say \"no\"");
    bot.SetChatLine(TypeAt(3), ChatLineIndex(0), "100% {LEVELTITLE}");
  });
  Wait();
  const auto* const types = Find<QListWidget>("lstChatGroups");
  EXPECT_FALSE(types->item(0)->icon().isNull());
  EXPECT_FALSE(types->item(3)->icon().isNull());
  EXPECT_TRUE(types->item(4)->icon().isNull());
  // A percent sign becomes a dot, and the map stands for the variable.
  Find<QListWidget>("lstChatGroups")->setCurrentRow(3);
  EXPECT_EQ(Find<QWidget>("picSpoken")->accessibleDescription(), "100. q3dm1");
  EXPECT_THAT(Find<QLabel>("lblLengths")->text().toStdString(),
              testing::HasSubstr("of 255"));
  EXPECT_FALSE(Find<QLabel>("lblWhen")->text().isEmpty());
}

TEST_F(Findings, ReadTheGameAfterTheOptionsAndAScan) {
  const auto install = [this](const std::string& name,
                              const std::string& word) {
    folder_.Write(
        "game/baseq3/pak0.pk3",
        MakeZip({{"scripts/bots.txt", "{ name " + name + " }"},
                 {"botfiles/rnd.c", "food = { \"" + word + "\"; }"}}));
  };
  folder_.Write("game/quake3.exe", "");
  install("Tester", "stew");
  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(7);
  QTest::keyClicks(Find<QLineEdit>("txtChatLine"), QStringLiteral("{FOOD}"));
  Wait();
  const auto spoken = [this] {
    return Find<QWidget>("picSpoken")->accessibleDescription().toStdString();
  };
  constexpr const char* kTaken = "of its own and keeps that one";
  EXPECT_EQ(RowOf(kTaken), -1);
  EXPECT_NE(spoken(), "stew");

  ChooseAndAnswer<frmOptions>("mnuOptions", [this](frmOptions& dialog) {
    dialog.SetOptionValue(0, BytesFromPath(folder_ / "game"));
    dialog.accept();
  });
  EXPECT_THAT(prompts_.log, testing::IsEmpty());
  EXPECT_GE(RowOf(kTaken), 0);
  EXPECT_EQ(spoken(), "stew");

  install("Other", "pie");
  Choose("mnuCheck");
  EXPECT_EQ(RowOf(kTaken), -1);
  EXPECT_EQ(spoken(), "pie");

  // A wrong folder leaves no game, until the one before is kept.
  for (const std::size_t choice : {1, 0}) {
    prompts_.choices = {choice};
    ChooseAndAnswer<frmOptions>("mnuOptions", [this](frmOptions& dialog) {
      dialog.SetOptionValue(0, BytesFromPath(folder_ / "none"));
      dialog.accept();
    });
    EXPECT_EQ(spoken() == "pie", choice == 0);
    state_->SetGameFolder(BytesFromPath(folder_ / "game"));
  }
}

TEST_F(Findings, ShowThePictureOfTheParameterInUse) {
  const auto* const pages = Find<QTabWidget>("tbsBotPara");
  Move(102, 0.25);
  Move(402, 1.0);
  Find<QWidget>("tsBotPara_2")
      ->findChild<QSlider*>(QStringLiteral("sliValue_4"))
      ->setFocus();
  // Two thirds of level 1 and a third of level 4.
  EXPECT_THAT(pages->widget(0)
                  ->findChild<SkillPlot*>()
                  ->accessibleDescription()
                  .toStdString(),
              testing::AllOf(testing::HasSubstr("Skill 1: 0.25;"),
                             testing::HasSubstr("Skill 2: 0.5;"),
                             testing::HasSubstr("Skill 4: 1;")));

  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(3);
  Move(49, 100.0);
  Find<QWidget>("osBotPara_49")->findChild<QSlider*>()->setFocus();
  const auto words = [pages] {
    return pages->widget(3)
        ->findChild<WeaponBars*>()
        ->accessibleDescription()
        .toStdString();
  };
  EXPECT_THAT(words(), testing::StartsWith("Railgun: 100; Machinegun: 50;"));
  Move(51, 200.0);
  Wait();
  EXPECT_THAT(words(), testing::StartsWith("Lightning gun: 200;"));
  auto* const distance = Find<QComboBox>("cmbDistance");
  distance->setCurrentIndex(distance->count() - 1);
  emit distance->activated(distance->count() - 1);
  EXPECT_THAT(words(), testing::StartsWith("Railgun: 100;"));
}

TEST_F(Findings, TellOfTheFilesUntilTheyAreSavedAgain) {
  Bot made = bot();
  made.Put(kNameField, "Rookie");
  EXPECT_FALSE(SaveBot(made, folder_.path(), {}, {}, prompts_).error);
  // A comment that is never closed is lost when the bot is saved anew.
  const std::string character = folder_.Read("rookie_c.c");
  folder_.Write("rookie_c.c", "/* mine\n" + character);
  const auto of_files = [this] {
    int count = 0;
    for (int row = 0; row < Count(); ++row) {
      count += TextAt(row).startsWith("In the files, ") ? 1 : 0;
    }
    return count;
  };
  window_->OpenPath(folder_ / "rookie_c.c");
  EXPECT_EQ(of_files(), 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return of_files() > 0; }));
  const int row = RowOf("In the files, rookie_c.c, line 1: ");
  ASSERT_GE(row, 0);
  EXPECT_GE(RowOf("type /addbot Rookie 3"), 0);
  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(3);
  Select(RowOf("In the files, rookie.bot"));
  emit list().clicked(list().currentIndex());
  EXPECT_EQ(window_->focusWidget(), Find<QWidget>("txtBotPara_0"));

  // What the bot shows by itself is told once.
  Move(407, 3.0);
  Wait();
  EXPECT_GE(RowOf("\"Reaction time\" at level 4"), 0);
  EXPECT_GT(of_files(), 0);

  fs::remove(folder_ / "rookie_c.c");
  folder_.Write("rookie_c.c", character);
  prompts_.confirmations = {true, true};
  Choose("mnuSaveAgain");
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return RowOf("In the files, rookie_c.c, line 1: ") < 0; }));
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return RowOf("type /addbot Rookie 3") >= 0; }));
  EXPECT_LT(RowOf("In the files, rookie_c.c, line 1: "), 0);

  prompts_.confirmations = {true};
  Choose("mnuNewZero");
  EXPECT_TRUE(QTest::qWaitFor([&] { return of_files() == 0; }));
}

TEST_F(Findings, TellOfNoDescriptionThatWasNotLoaded) {
  Bot made = bot();
  made.Put(kNameField, "Rookie");
  EXPECT_FALSE(SaveBot(made, folder_.path(), {}, {}, prompts_).error);
  folder_.Write("rookie_c.c", "/* mine\n" + folder_.Read("rookie_c.c"));
  folder_.Write("rookie.bot", "{ name Rookie");
  for (const bool loads_description : {false, true}) {
    window_->OpenPath(folder_ / "rookie_c.c");
    ChooseAndAnswer<frmOpen>("mnuLoad", [=](frmOpen& dialog) {
      const auto check = [&dialog](const char* name, bool is_on) {
        dialog.findChild<QCheckBox*>(QLatin1String(name))->setChecked(is_on);
      };
      check("chkLoadStructure", false);
      check("chkLoadBotFile", loads_description);
      auto* const files =
          dialog.findChild<QListWidget*>(QStringLiteral("filFile"));
      files->setCurrentRow(0);
      dialog.accept();
    });
    constexpr const char* kDescription = "In the files, rookie.bot";
    EXPECT_TRUE(QTest::qWaitFor([&] {
      return RowOf(loads_description ? kDescription
                                     : "In the files, rookie_c.c") >= 0;
    }));
    EXPECT_EQ(RowOf(kDescription) >= 0, loads_description);
  }
}

TEST_F(Findings, AreThoseOfTheFilesWhereTheBotLies) {
  if (!kIsUnix) GTEST_SKIP() << "The unzip tool is a shell script.";
  // A bot of the game's own list, which gives its weights in the game's way.
  const std::map<std::string, std::string> files = {
      {"botfiles/bots/grunt_c.c",
       "#include \"chars.h\"\nskill 1 {\n\tCHARACTERISTIC_NAME"
       "\t\t\t\t\t\t\t\"Grunt\"\n}\n"},
      {"botfiles/bots/grunt_w.c",
       "#define SGW 50\n#define OTHER 7\n#include \"fw_weap.c\"\n"},
      {"botfiles/bots/grunt_i.c", "#include \"fw_items.c\"\n"},
      {"botfiles/bots/grunt_t.c",
       "chat \"grunt\"\n{\n\ttype \"kill_insult\"\n\t{\n\t\tTAUNT0;\n"
       "\t}\n}\n"}};
  std::vector<PackageEntry> entries = {
      {"scripts/bots.txt",
       "{\nname Grunt\nmodel grunt\naifile bots/grunt_c.c\n}\n"},
      {"botfiles/inv.h", "#define INVENTORY_SHOTGUN 5\n"},
      {"botfiles/fw_weap.c", "weight \"Shotgun\" { return SGW; }"},
      {"botfiles/rnd.c", "TAUNT0 = {\"ha\";}\n"}};
  for (const auto& [name, bytes] : files) {
    entries.push_back({name, bytes});
    folder_.Write("files/" + name.substr(name.rfind('/') + 1), bytes);
  }
  folder_.WriteProgram("game/quake3.exe", "");
  folder_.Write("game/baseq3/pak0.pk3", "");
  ASSERT_TRUE(WritePackage(folder_ / "game/baseq3/pak0.pk3", entries));
  folder_.WriteProgram("tools/wzunzip",
                       "#!/bin/sh\nname=${3##*[\\\\/]}\ncp '" +
                           (folder_ / "files").string() +
                           "'/$(echo \"$name\" | tr G g) \"$4/$name\"\n");
  OnDialog<frmOptions>([this](frmOptions& dialog) {
    dialog.SetOptionValue(0, (folder_ / "game").string());
    dialog.SetOptionValue(2, (folder_ / "tools").string());
    dialog.accept();
  });
  Choose("mnuOptions");
  window_->OpenPath(folder_ / "game/baseq3/pak0.pk3");
  ASSERT_EQ(bot().Text(kNameField), "Grunt");
  QCoreApplication::processEvents();
  checker_.CheckNow();
  const auto tells = [this](std::string_view id) {
    return std::ranges::count(window_->findChild<BotChecker*>()->findings(), id,
                              &Finding::id) > 0;
  };
  const auto location = BotsAt(folder_ / "game/baseq3/pak0.pk3");
  ASSERT_TRUE(location);
  const LocationCheck check(location->front(), false,
                            window_->findChild<BotChecker*>()->installed());
  std::set<std::string_view> of_files;
  for (const Finding& finding : check.OfAll(check.Read())) {
    of_files.insert(finding.id);
  }
  for (const std::string_view id :
       {"name-taken", "files-shadowed", "chat-list-missing",
        "weights-of-other-macros"}) {
    EXPECT_EQ(tells(id), of_files.contains(id)) << id;
  }
  EXPECT_FALSE(tells("name-taken"));
  EXPECT_FALSE(tells("chat-list-missing"));
  // A weight that the file sets for nobody is marked at its control, where
  // alone a 0 is shown for it.
  EXPECT_FALSE(of_files.contains("weight-set-elsewhere"));
  EXPECT_EQ(bot().Parameter(Id(45)), Value(50.0));
  EXPECT_TRUE(tells("weight-set-elsewhere"));
  const auto* const mark =
      Find<QWidget>("osBotPara_44")->findChild<CaptionMark*>();
  ASSERT_NE(mark, nullptr);
  EXPECT_FALSE(mark->isHidden());
  EXPECT_FALSE(IsMarked("osBotPara_45"));
  // Installed, it would be a second one.
  prompts_.log.clear();
  Choose("mnuInstall");
  ASSERT_FALSE(prompts_.log.empty());
  EXPECT_THAT(prompts_.log.back(),
              testing::HasSubstr("will not take the bot as it is"));
  // What is made of it now goes into another package, where the name is taken.
  Move(45, 60.0);
  checker_.CheckNow();
  EXPECT_TRUE(tells("name-taken"));
}

}  // namespace
}  // namespace fragsmith
