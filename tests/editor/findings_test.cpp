#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include "editor/bot_checker.h"
#include "editor/controls/caption_mark.h"
#include "editor/findings_dock.h"
#include "editor/game_picture.h"
#include "session/presets.h"
#include "tests/editor/window_fixture.h"

namespace fragsmith {
namespace {

class Findings : public WindowFixture {
 protected:
  Findings() {
    // Values that the game takes as they are.
    Bot good = CreateZeroBot();
    for (const int level : kSkillLevels) {
      (void)good.SetParameter(LevelIndex(level, 6), 360.0);
      (void)good.SetParameter(LevelIndex(level, 7), 0.5);
    }
    (void)good.SetParameter(46, 50.0);
    (void)good.SetParameter(0, std::string("Tester"));
    window_->current().Replace(good, false, QStringLiteral("Load"));
    Wait();
    Choose("mnuFindings");
  }

  /// Until the list has followed the last edit.
  void Wait() {
    QSignalSpy checked(window_->findChild<BotChecker*>(), &BotChecker::Checked);
    EXPECT_TRUE(checked.wait());
  }

  /// The row of the finding that has this in its text; -1 for none.
  int RowOf(const char* words) {
    const auto* const list = Find<QListWidget>("lstFindings");
    for (int row = 0; row < list->count(); ++row) {
      if (list->item(row)->text().contains(QLatin1String(words))) return row;
    }
    return -1;
  }

  bool IsMarked(const char* control) {
    const auto* const mark = Find<QWidget>(control)->findChild<CaptionMark*>();
    return mark != nullptr && mark->isVisibleTo(window_.get());
  }

  void Move(int parameter, double value) {
    window_->current().SetParameter(parameter, value);
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
  auto* const list = Find<QListWidget>("lstFindings");
  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(5);
  const int row = RowOf("\"Reaction time\" at level 5");
  ASSERT_GE(row, 0);
  list->setCurrentRow(row);
  emit list->itemClicked(list->item(row));
  EXPECT_EQ(Find<QTabWidget>("tbsBotPara")->currentIndex(), 0);
  EXPECT_EQ(window_->focusWidget()->accessibleName(),
            "Reaction time s, level 5");

  QPushButton* mend = nullptr;
  for (auto* const button :
       Find<FindingsDock>("dockFindings")->findChildren<QPushButton*>()) {
    if (button->text().contains(QStringLiteral("Reaction time"))) mend = button;
  }
  ASSERT_NE(mend, nullptr);
  mend->click();
  Wait();
  EXPECT_EQ(bot().Parameter(507), Value(1.0));
  EXPECT_EQ(RowOf("\"Reaction time\" at level 5"), -1);
  Choose("mnuUndo");
  EXPECT_EQ(bot().Parameter(507), Value(2.0));
}

TEST_F(Findings, StandInOneRowWhenManyAreOfOneKind) {
  window_->current().EditChats({}, [](Bot& bot) {
    for (const int type : {3, 4, 5}) bot.SetChatLine(type, 0, "{%1}");
  });
  Wait();
  auto* const list = Find<QListWidget>("lstFindings");
  const int folded = list->count();
  const int row = RowOf("(And 2 more of this kind.)");
  ASSERT_GE(row, 0);
  EXPECT_TRUE(list->item(row)->text().startsWith("\"Level ends\", line 1:"));
  list->setCurrentRow(row);
  QTest::keyClick(list, Qt::Key_Right);
  EXPECT_EQ(list->count(), folded + 2);
  EXPECT_EQ(list->currentRow(), row);
  EXPECT_FALSE(list->item(row)->text().contains("more of this kind"));

  // Another edit leaves it unfolded.
  window_->current().EditChats({},
                               [](Bot& bot) { bot.SetChatLine(5, 1, "{%1}"); });
  Wait();
  EXPECT_EQ(list->count(), folded + 3);
  EXPECT_EQ(list->currentRow(), row);
  Find<QPushButton>("cmdFold")->setFocus();
  Find<QPushButton>("cmdFold")->click();
  QCoreApplication::processEvents();
  EXPECT_TRUE(list->hasFocus());
  EXPECT_EQ(list->count(), folded);
  EXPECT_EQ(RowOf("(And 3 more of this kind.)"), row);
}

TEST_F(Findings, MarkChatLinesAndSayThem) {
  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(7);
  window_->current().EditChats({}, [](Bot& bot) {
    bot.SetChatLine(0, 0, "say \"no\"");
    bot.SetChatLine(3, 0, "100% {LEVELTITLE}");
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

TEST_F(Findings, ShowThePictureOfTheParameterInUse) {
  auto* const picture = window_->findChild<GamePicture*>();
  ASSERT_NE(picture, nullptr);
  Move(102, 0.25);
  Move(402, 1.0);
  Find<QWidget>("tsBotPara_2")
      ->findChild<QSlider*>(QStringLiteral("sliValue_4"))
      ->setFocus();
  // Two thirds of level 1 and a third of level 4.
  EXPECT_THAT(picture->currentWidget()->accessibleDescription().toStdString(),
              testing::AllOf(testing::HasSubstr("Skill 1: 0.25;"),
                             testing::HasSubstr("Skill 2: 0.5;"),
                             testing::HasSubstr("Skill 4: 1;")));

  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(3);
  Move(49, 100.0);
  Find<QWidget>("osBotPara_49")->findChild<QSlider*>()->setFocus();
  const auto words = [picture] {
    return picture->currentWidget()->accessibleDescription().toStdString();
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

}  // namespace
}  // namespace fragsmith
