#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "editor/controls/caption_mark.h"
#include "editor/controls/value_slider.h"
#include "editor/pages/parameter_page.h"
#include "game/skill_mix.h"
#include "session/presets.h"
#include "tests/editor/font_scale.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using testing::HasSubstr;
using testing::Not;

QString TextOf(const QWidget& control, const char* label) {
  return control.findChild<QLabel*>(QLatin1String(label))->text();
}

/// The seven pages with value controls, over one bot.
class ParameterPages : public testing::Test {
 protected:
  ParameterPages() {
    for (const PageRow& row : kPages) {
      if (row.frames.front().controls.empty()) continue;
      pages_.push_back(std::make_unique<ParameterPage>(row, current_));
      pages_.back()->Complete();
    }
    Show(CreateZeroBot());
  }

  void Show(Bot bot) {
    current_.Replace(std::move(bot), false, QStringLiteral("Load"));
    for (const auto& page : pages_) page->ShowBot();
  }

  template <typename Widget = QWidget>
  Widget* Find(const QString& name) {
    for (const auto& page : pages_) {
      if (auto* const found = page->findChild<Widget*>(name)) return found;
    }
    ADD_FAILURE() << "no " << name.toStdString();
    return nullptr;
  }

  OneSlider* One(int index) {
    return Find<OneSlider>(QStringLiteral("osBotPara_%1").arg(index));
  }
  QSlider* Slider(int index) {
    return One(index)->findChild<QSlider*>(QStringLiteral("sliValue"));
  }
  QSlider* Slider(int index, int level) {
    return Find(QStringLiteral("tsBotPara_%1").arg(index))
        ->findChild<QSlider*>(QStringLiteral("sliValue_%1").arg(level));
  }

  /// Moves a slider as the keyboard does.
  static void MoveTo(QSlider* slider, int position) {
    QTest::keyClick(slider, Qt::Key_Home);
    for (int step = 0; step < position; ++step) {
      QTest::keyClick(slider, Qt::Key_Right);
    }
  }

  void ChooseScale(int selector, int button) {
    Find(QStringLiteral("mseSelect_%1").arg(selector))
        ->findChild<QRadioButton*>(QStringLiteral("opScale_%1").arg(button))
        ->click();
  }

  std::string Stored(int index) { return current_.bot().Text(Id(index)); }

  CurrentBot current_;
  std::vector<std::unique_ptr<ParameterPage>> pages_;
};

TEST_F(ParameterPages, HoldEveryParameterOnceUnderItsCaption) {
  std::map<int, int> seen;
  for (const auto& page : pages_) {
    for (const ValueControl* control : page->findChildren<ValueControl*>()) {
      ++seen[control->Index()];
      const char* const family = control->Index() <= kPerLevelRange.last
                                     ? "tsBotPara_%1"
                                     : "osBotPara_%1";
      EXPECT_EQ(control->objectName(),
                QString(QLatin1String(family)).arg(control->Index()));
    }
  }
  ASSERT_EQ(seen.size(), 79U);
  EXPECT_EQ(seen.begin()->first, 2);
  EXPECT_EQ(seen.rbegin()->first, 80);
  for (const auto& [index, times] : seen) EXPECT_EQ(times, 1) << index;

  const std::map<QString, const char*> captions = {
      {"tsBotPara_6", "Max view change angle °/s (0-360)"},
      {"tsBotPara_7", "Reaction time s (0-5)"},
      {"tsBotPara_30", "Firing speed (0-1)"},
      {"osBotPara_31", "Typing speed cpm (0-1000)"},
      {"osBotPara_55", "Armor (0-4)"},
      {"osBotPara_63", "Plasma gun (0-400)"},
      {"osBotPara_71", ""},
      {"osBotPara_80", "CTF Flag (0-400)"}};
  for (const auto& [name, caption] : captions) {
    EXPECT_EQ(TextOf(*Find(name), "lblCaption"), QString(caption));
  }
}

TEST_F(ParameterPages, StoreWhatTheUserMoves) {
  MoveTo(Slider(7, 5), 3);
  EXPECT_EQ(Stored(507), "0.75");
  EXPECT_TRUE(current_.is_changed());

  current_.SetChanged(false);
  MoveTo(Slider(54), 2);
  EXPECT_EQ(Stored(54), "2");
  EXPECT_TRUE(current_.is_changed());

  MoveTo(Slider(31), 3);
  EXPECT_EQ(Stored(31), "15");
}

TEST_F(ParameterPages, StoreTheLevelsThatHadToFollow) {
  MoveTo(Slider(2, 1), 15);
  EXPECT_EQ(Stored(402), "0.75");
  EXPECT_EQ(Stored(502), "0.75");
  // In the reaction time the better level is the lower one.
  MoveTo(Slider(7, 5), 8);
  EXPECT_EQ(Stored(107), "2");
  EXPECT_EQ(Stored(407), "2");
  // The behaviour of a level is its own.
  MoveTo(Slider(8, 1), 4);
  EXPECT_EQ(Stored(408), "0");
}

TEST_F(ParameterPages, ShowABotWithoutTouchingIt) {
  Bot bot = CreateZeroBot();
  bot.Put(Id(102), 0.333);
  bot.Put(Id(44), 123.4);
  bot.Put(Id(45), std::string("often"));
  bot.Put(Id(46), 1234.0);
  const Bot before = bot;
  Show(bot);
  EXPECT_EQ(TextOf(*Find("tsBotPara_2"), "lblValue_1"), "0.333");
  EXPECT_EQ(Slider(2, 1)->value(), 7);
  EXPECT_EQ(TextOf(*One(44), "lblValue"), "123.4");
  EXPECT_EQ(TextOf(*One(45), "lblValue"), "often");
  EXPECT_EQ(TextOf(*One(46), "lblValue"), "1234");
  EXPECT_EQ(TextOf(*Find("tsBotPara_18"), "lblValue_4"), "No");
  EXPECT_EQ(TextOf(*Find("tsBotPara_17"), "lblValue_4"), "0.0");
  ChooseScale(0, 1);
  EXPECT_TRUE(current_.bot() == before);
  EXPECT_FALSE(current_.is_changed());
}

TEST_F(ParameterPages, FollowTheScaleSelectorOfTheirPageAlone) {
  Bot bot = CreateZeroBot();
  bot.Put(Id(44), 300.0);
  Show(bot);
  EXPECT_EQ(Slider(44)->maximum(), 80);

  ChooseScale(0, 2);
  EXPECT_EQ(TextOf(*One(44), "lblCaption"), "Gauntlet (0-1000)");
  EXPECT_EQ(TextOf(*One(53), "lblCaption"), "Grapple (0-1000)");
  EXPECT_EQ(Slider(53)->maximum(), 200);
  EXPECT_EQ(Slider(44)->value(), 60);
  EXPECT_EQ(TextOf(*One(56), "lblCaption"), "Shotgun (0-400)");
  EXPECT_EQ(Slider(72)->maximum(), 80);

  ChooseScale(1, 1);
  EXPECT_EQ(TextOf(*One(56), "lblCaption"), "Shotgun (0-600)");
  EXPECT_EQ(TextOf(*One(64), "lblCaption"), "");
  EXPECT_EQ(Slider(71)->maximum(), 120);

  ChooseScale(2, 1);
  EXPECT_EQ(TextOf(*One(80), "lblCaption"), "CTF Flag (0-600)");
  EXPECT_EQ(TextOf(*One(54), "lblCaption"), "Health (0-4)");
  EXPECT_EQ(Slider(55)->maximum(), 4);
}

TEST_F(ParameterPages, ChooseTheSmallestScaleThatHoldsAllValues) {
  struct Case {
    double value;
    int max;
  };
  for (const auto& [value, max] : std::vector<Case>{
           {400, 400}, {401, 600}, {600, 600}, {605, 1000}, {5000, 1000}}) {
    Bot bot = CreateZeroBot();
    bot.Put(Id(70), value);
    Show(bot);
    EXPECT_EQ(Find<MaxSelect>("mseSelect_1")->Selected(), max) << value;
    EXPECT_EQ(Slider(64)->maximum(), max / 5) << value;
    EXPECT_EQ(TextOf(*One(62), "lblCaption"),
              QStringLiteral("Lightning gun (0-%1)").arg(max));
    EXPECT_EQ(Slider(44)->maximum(), 80) << value;
  }
  // It is not the factor for health that asks for more room.
  Bot bot = CreateZeroBot();
  bot.Put(Id(54), 700.0);
  Show(bot);
  EXPECT_EQ(Slider(72)->maximum(), 80);
  EXPECT_EQ(Slider(54)->maximum(), 4);
}

TEST_F(ParameterPages, StandInPairsOnThePickupPage) {
  ParameterPage& page = *pages_[4];
  page.resize(1000, 430);
  page.show();
  const auto place = [&](int index) {
    return One(index)->mapTo(&page, QPoint(0, 0));
  };
  for (int index = 56; index <= 63; ++index) {
    EXPECT_EQ(place(index).x(), place(index + 8).x()) << index;
    EXPECT_LT(place(index).y(), place(index + 8).y()) << index;
  }
  const std::vector<std::vector<int>> rows = {
      {57, 56, 58}, {59, 63, 62}, {60, 61}};
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t column = 0; column < rows[row].size(); ++column) {
      const QPoint corner = place(rows[row][column]);
      EXPECT_EQ(corner.x(), place(rows[0][column]).x());
      EXPECT_EQ(corner.y(), place(rows[row][0]).y());
      if (row > 0) {
        EXPECT_GT(corner.y(), place(rows[row - 1][0] + 8).y());
      }
    }
  }
  const auto centre = [&page](const QWidget* widget) {
    return widget->mapTo(&page, widget->rect().center()).y();
  };
  std::map<QString, std::vector<int>> headings;
  for (const QLabel* label : page.findChildren<QLabel*>()) {
    headings[label->text()].push_back(centre(label));
  }
  ASSERT_EQ(headings["Without"].size(), 3U);
  ASSERT_EQ(headings["With"].size(), 3U);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const int index = rows[row][0];
    EXPECT_NEAR(headings["Without"][row], centre(Slider(index)), 2);
    EXPECT_NEAR(headings["With"][row], centre(Slider(index + 8)), 2);
  }
}

TEST_F(ParameterPages, FitIntoASmallWindowAndScrollInASmallerOne) {
  for (const auto& page : pages_) {
    page->resize(WithThisFont(1000), 420);
    page->show();
    EXPECT_EQ(page->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0);
    page->resize(WithThisFont(1000), 150);
    EXPECT_GT(page->verticalScrollBar()->maximum(), 0);
  }
}

TEST_F(ParameterPages, KeepTheHeightOfTheFootFromOneParameterToTheNext) {
  for (const auto& page : pages_) {
    page->resize(WithThisFont(1000), 800);
    page->show();
    auto* const foot = page->findChild<GamePicture*>();
    const bool has_picture = foot->findChild<SkillPlot*>() != nullptr ||
                             foot->findChild<WeaponBars*>() != nullptr;
    const int height = foot->height();
    EXPECT_EQ(height < 150, !has_picture) << height;
    for (int index = 2; index <= 80; ++index) {
      foot->Show(index < 32 ? Id(100 + index) : Id(index));
      EXPECT_EQ(foot->height(), height);
      for (const auto* const text : foot->findChildren<QLabel*>()) {
        if (has_picture || !text->wordWrap()) continue;
        EXPECT_LE(text->heightForWidth(text->width()), text->height()) << index;
      }
    }
  }
}

TEST_F(ParameterPages, TellAssistiveToolsWhatEachSliderIs) {
  std::set<QString> names;
  int sliders = 0;
  for (const auto& page : pages_) {
    for (const ValueSlider* slider : page->findChildren<ValueSlider*>()) {
      ++sliders;
      names.insert(slider->accessibleName());
      EXPECT_THAT(slider->accessibleDescription().toStdString(),
                  HasSubstr("From 0 to "));
    }
  }
  EXPECT_EQ(names.size(), static_cast<std::size_t>(sliders));
  EXPECT_TRUE(names.contains("Attack skill, level 1"));
  EXPECT_TRUE(names.contains("Plasma gun aim skill, level 4"));
  EXPECT_TRUE(names.contains("Shotgun pickup with it"));
}

TEST_F(ParameterPages, TellTheValuesFromWhichTheBotActsOtherwise) {
  int told = 0;
  for (const auto& page : pages_) {
    for (const ValueControl* control : page->findChildren<ValueControl*>()) {
      for (const Threshold& threshold :
           ThresholdsOf(ParameterAt(control->Index()))) {
        EXPECT_THAT(control->toolTip().toStdString(),
                    HasSubstr(QString::number(threshold.value).toStdString()))
            << control->Index() << ": " << threshold.text;
        ++told;
      }
    }
  }
  EXPECT_GT(told, 40);
}

TEST_F(ParameterPages, SayWhatTheGameNeverReads) {
  int unread = 0;
  for (const auto& page : pages_) {
    for (const ValueControl* control : page->findChildren<ValueControl*>()) {
      const std::string tip = control->toolTip().toStdString();
      const std::string mark = control->mark() == nullptr
                                   ? std::string()
                                   : control->mark()->toolTip().toStdString();
      const int index = control->Index();
      if (IsReadByGame(ParameterAt(index))) {
        EXPECT_THAT(tip, Not(HasSubstr("never reads"))) << index;
        EXPECT_THAT(mark, Not(HasSubstr("never reads"))) << index;
      } else {
        ++unread;
        EXPECT_THAT(tip, HasSubstr("never reads")) << index;
        EXPECT_THAT(mark, HasSubstr("never reads")) << index;
      }
    }
  }
  EXPECT_EQ(unread, 5);
  EXPECT_THAT(Find("tsBotPara_7")->toolTip().toStdString(),
              HasSubstr("From 0 to 5 seconds in steps of 0.25."));
  EXPECT_THAT(Find("tsBotPara_20")->toolTip().toStdString(),
              HasSubstr("&quot;No&quot;"));
}

}  // namespace
}  // namespace fragsmith
