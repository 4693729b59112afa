#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QLabel>
#include <QPalette>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QWheelEvent>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "editor/controls/fun_name_preview.h"
#include "editor/controls/icon_box.h"
#include "editor/controls/max_select.h"
#include "editor/controls/one_slider.h"
#include "editor/controls/three_slider.h"
#include "editor/controls/value_label.h"

namespace fragsmith {
namespace {

QSlider& Slider(QWidget& control, const QString& suffix = {}) {
  return *control.findChild<QSlider*>(QStringLiteral("sliValue") + suffix);
}

std::string Text(QWidget& control, const QString& suffix = {}) {
  return control.findChild<QLabel*>(QStringLiteral("lblValue") + suffix)
      ->text()
      .toStdString();
}

/// Of a signal Changed.
ParameterId ParameterOf(const QList<QVariant>& change) {
  return *static_cast<const ParameterId*>(change.first().constData());
}

/// What the signal Changed of a control has reported, and forgets it.
std::vector<double> Values(QSignalSpy& changes) {
  std::vector<double> values;
  for (const QList<QVariant>& change : changes) {
    values.push_back(change.last().toDouble());
  }
  changes.clear();
  return values;
}

using Levels = std::vector<std::tuple<int, double>>;

Levels LevelValues(QSignalSpy& changes) {
  Levels values;
  for (const QList<QVariant>& change : changes) {
    values.emplace_back(NumberOf(ParameterOf(change).level().value()),
                        change[1].toDouble());
  }
  changes.clear();
  return values;
}

bool SendWheel(QWidget& widget, int angle) {
  QWheelEvent event(widget.rect().center(),
                    widget.mapToGlobal(widget.rect().center()), {}, {0, angle},
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&widget, &event);
  return event.isAccepted();
}

/// Moves by the small change, to 0, by the large change and to the top.
template <typename Control>
std::vector<double> MoveByKeys(Control& control, QSlider& slider) {
  QSignalSpy changes(&control, &Control::Changed);
  for (const Qt::Key key :
       {Qt::Key_Right, Qt::Key_Home, Qt::Key_PageUp, Qt::Key_End}) {
    QTest::keyClick(&slider, key);
  }
  return Values(changes);
}

TEST(ValueControl, MovesInTheStepsOfItsScale) {
  struct Case {
    int max;
    double small, large;
    std::string zero, top;
  };
  const auto moves = [](const Case& c) {
    return std::vector<double>{c.small, 0, c.large, static_cast<double>(c.max)};
  };
  for (const Case& c : std::vector<Case>{{1, 0.05, 0.1, "0.0", "1.0"},
                                         {5, 0.25, 0.25, "0.0", "5.0"},
                                         {4, 1, 1, "0", "4"},
                                         {400, 5, 10, "0", "400"},
                                         {600, 5, 10, "0", "600"},
                                         {1000, 5, 25, "0", "1000"},
                                         {360, 5, 10, "0", "360"}}) {
    OneSlider control;
    control.SetMax(c.max);
    EXPECT_EQ(Text(control), c.zero);
    EXPECT_EQ(MoveByKeys(control, Slider(control)), moves(c));
    EXPECT_EQ(Text(control), c.top);
  }
  for (const Case& c : std::vector<Case>{{1, 0.05, 0.1, "0.0", "1.0"},
                                         {5, 0.25, 0.25, "0.0", "5.0"},
                                         {360, 5, 20, "0", "360"},
                                         {400, 5, 10, "0", "400"},
                                         {1000, 10, 50, "0", "1000"}}) {
    ThreeSlider control;
    control.SetMax(c.max);
    EXPECT_EQ(Text(control, "_5"), c.zero);
    EXPECT_EQ(MoveByKeys(control, Slider(control, "_5")), moves(c));
    EXPECT_EQ(Text(control, "_5"), c.top);
  }
}

TEST(OneSlider, TakesMouseAndWheelFromTheUser) {
  OneSlider control;
  control.SetIndex(32);
  control.resize(400, 60);
  control.show();
  control.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&control));
  QSlider& slider = Slider(control);
  QSignalSpy changes(&control, &OneSlider::Changed);

  // A click beside the handle moves by the large change; the handle at 0
  // lies at the left end.
  const QPoint right(slider.width() - 4, slider.height() / 3);
  for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton}) {
    QTest::mouseClick(&slider, other, {}, right);
  }
  EXPECT_EQ(changes.count(), 0);
  QTest::mouseClick(&slider, Qt::LeftButton, {}, right);
  EXPECT_EQ(ParameterOf(changes.first()), ParameterId(32));
  EXPECT_EQ(Values(changes), std::vector<double>{0.1});

  QTest::keyClick(&slider, Qt::Key_Home);
  changes.clear();
  const QPoint handle(5, slider.height() / 3);
  QTest::mousePress(&slider, Qt::LeftButton, {}, handle);
  QTest::mouseMove(&slider, QPoint(slider.width() + 20, handle.y()));
  QTest::mouseRelease(&slider, Qt::LeftButton, {},
                      QPoint(slider.width() + 20, handle.y()));
  EXPECT_EQ(Values(changes), std::vector<double>{1});

  slider.setFocus();
  EXPECT_TRUE(SendWheel(slider, -120));
  EXPECT_TRUE(SendWheel(slider, -60));
  EXPECT_TRUE(SendWheel(slider, -60));
  EXPECT_EQ(Values(changes), (std::vector<double>{0.95, 0.9}));
  slider.clearFocus();
  EXPECT_FALSE(SendWheel(slider, -120)) << "the page has to scroll";
  EXPECT_EQ(changes.count(), 0);
}

TEST(OneSlider, KeepsWhatTheProgramShowsUntilTheUserMoves) {
  OneSlider control;
  control.SetMax(400);
  QSignalSpy changes(&control, &OneSlider::Changed);
  QSlider& slider = Slider(control);
  struct Case {
    Value value;
    int position;
    std::string text;
  };
  for (const Case& c : std::vector<Case>{{Value(50.0), 10, "50"},
                                         {Value(52.4F), 10, "52.4"},
                                         {Value(53.0), 11, "53"},
                                         {Value(-1.0), 0, "-1"},
                                         {Value(), 0, "0"},
                                         {Value("R&B \xE9"), 0, "R&B é"},
                                         {Value(900.0), 80, "900"}}) {
    control.ShowValue(c.value);
    EXPECT_EQ(slider.value(), c.position) << c.text;
    EXPECT_EQ(Text(control), c.text);
  }
  // A wider scale has room for the value, a narrower one still shows it.
  control.SetMax(1000);
  EXPECT_EQ(slider.value(), 180);
  control.SetMax(600);
  EXPECT_EQ(slider.value(), 120);
  EXPECT_EQ(slider.maximum(), 120);
  EXPECT_EQ(Text(control), "900");
  control.SetMax(7);
  EXPECT_EQ(slider.maximum(), 120);
  EXPECT_EQ(changes.count(), 0);
  QTest::keyClick(&slider, Qt::Key_Left);
  EXPECT_EQ(Values(changes), std::vector<double>{595});
  EXPECT_EQ(Text(control), "595");
}

TEST(ThreeSlider, ReadsNoOnlyWhereTheValueIsLeftOut) {
  ThreeSlider control;
  control.ShowValue(Level::k1, Value(0.0));
  EXPECT_EQ(Text(control, "_1"), "0.0");
  control.SetOptional(true);
  control.ShowValue(Level::k4, Value(0.01));
  EXPECT_EQ(Text(control, "_1"), "No");
  EXPECT_EQ(Text(control, "_4"), "0.01") << "at position 0, but not left out";
  QTest::keyClick(&Slider(control, "_5"), Qt::Key_Right);
  EXPECT_EQ(Text(control, "_5"), "0.05");
  QTest::keyClick(&Slider(control, "_5"), Qt::Key_Left);
  EXPECT_EQ(Text(control, "_5"), "No");
}

TEST(ThreeSlider, KeepsTheLevelsInOrderWhenTheUserMovesOne) {
  struct Case {
    LevelLinking mode;
    std::vector<double> before;  // levels 1, 4 and 5
    QString moved;
    Qt::Key key;
    Levels reported;
  };
  for (const Case& c : std::vector<Case>{
           {LevelLinking::kNone, {0.5, 0, 0}, "_1", Qt::Key_End, {{1, 1}}},
           {LevelLinking::kRising,
            {0.5, 0.5, 0.6},
            "_1",
            Qt::Key_Right,
            {{1, 0.55}, {4, 0.55}}},
           {LevelLinking::kRising,
            {0.1, 0.2, 0.3},
            "_1",
            Qt::Key_End,
            {{1, 1}, {4, 1}, {5, 1}}},
           {LevelLinking::kRising,
            {0.1, 0.2, 0.3},
            "_4",
            Qt::Key_End,
            {{4, 1}, {5, 1}}},
           {LevelLinking::kRising,
            {0.1, 0.2, 0.3},
            "_4",
            Qt::Key_Home,
            {{4, 0}, {1, 0}}},
           {LevelLinking::kRising,
            {0.1, 0.2, 0.3},
            "_5",
            Qt::Key_Home,
            {{5, 0}, {4, 0}, {1, 0}}},
           {LevelLinking::kFalling,
            {0.5, 0.4, 0.3},
            "_1",
            Qt::Key_End,
            {{1, 1}}},
           {LevelLinking::kFalling,
            {0.5, 0.4, 0.3},
            "_5",
            Qt::Key_End,
            {{5, 1}, {4, 1}, {1, 1}}},
           {LevelLinking::kFalling,
            {0.5, 0.4, 0.3},
            "_4",
            Qt::Key_Home,
            {{4, 0}, {5, 0}}},
       }) {
    ThreeSlider control;
    control.SetMode(c.mode);
    QSignalSpy changes(&control, &ThreeSlider::Changed);
    control.ShowValue(Level::k1, c.before[0]);
    control.ShowValue(Level::k4, c.before[1]);
    control.ShowValue(Level::k5, c.before[2]);
    ASSERT_EQ(changes.count(), 0);
    QTest::keyClick(&Slider(control, c.moved), c.key);
    EXPECT_EQ(LevelValues(changes), c.reported)
        << static_cast<int>(c.mode) << c.moved.toStdString();
    for (const auto& [level, value] : c.reported) {
      EXPECT_EQ(Slider(control, QString("_%1").arg(level)).value(),
                PositionOf(value, *ThreeSliderScale(1)));
    }
  }
}

TEST(ValueSlider, IsReadAndSetInValuesByAssistiveTools) {
  ThreeSlider control;
  control.SetCaption(QString::fromUtf8("Max view change angle °/s (0-360)"));
  control.SetSpokenName(QStringLiteral("Max view change angle"));
  control.SetMax(360);
  control.SetIndex(6);
  control.SetMode(LevelLinking::kRising);
  control.ShowValue(Level::k4, Value(33.0));
  QSignalSpy changes(&control, &ThreeSlider::Changed);

  QAccessibleInterface* const accessible =
      QAccessible::queryAccessibleInterface(&Slider(control, "_4"));
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->role(), QAccessible::Slider);
  EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(),
            "Max view change angle, level 4");
  QAccessibleValueInterface* const value = accessible->valueInterface();
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(value->currentValue().toDouble(), 33);
  EXPECT_EQ(value->minimumValue().toDouble(), 0);
  EXPECT_EQ(value->maximumValue().toDouble(), 360);
  EXPECT_EQ(value->minimumStepSize().toDouble(), 5);

  // The nearest position is where the slider stands already.
  value->setCurrentValue(35);
  EXPECT_EQ(LevelValues(changes), (Levels{{4, 35}, {5, 35}}));
  value->setCurrentValue(35);
  EXPECT_EQ(changes.count(), 0);
  value->setCurrentValue(9999);
  EXPECT_EQ(LevelValues(changes), (Levels{{4, 360}, {5, 360}}));

  control.SetOptional(true);
  control.ShowValue(Level::k4, Value());
  EXPECT_EQ(accessible->text(QAccessible::Value), QStringLiteral("No"));
  EXPECT_EQ(accessible->text(QAccessible::Description), QStringLiteral("No"));

  control.SetSpokenName("Turning");
  EXPECT_EQ(accessible->text(QAccessible::Name), QString("Turning, level 4"));
}

TEST(MaxSelect, TellsWhatTheUserChooses) {
  MaxSelect select;
  select.show();
  QSignalSpy choices(&select, &MaxSelect::AdjustScale);
  EXPECT_EQ(select.Selected(), 400);
  const std::vector<int> maxima = {400, 600, 1000};
  for (const int place : {2, 0, 1}) {
    auto* const button =
        select.findChild<QRadioButton*>(QString("opScale_%1").arg(place));
    const int maximum = maxima[static_cast<std::size_t>(place)];
    EXPECT_EQ(button->text(), QString::number(maximum));
    QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
    ASSERT_EQ(choices.count(), 1);
    EXPECT_EQ(choices.takeFirst().first().toInt(), maximum);
  }
  select.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&select));
  auto* const middle = select.findChild<QRadioButton*>("opScale_1");
  middle->setFocus();
  QTest::keyClick(middle, Qt::Key_Left);
  EXPECT_EQ(select.Selected(), 400);
  EXPECT_EQ(choices.count(), 1);
  choices.clear();
  select.Select(1000);
  EXPECT_EQ(select.Selected(), 1000);
  select.Select(500);
  EXPECT_EQ(select.Selected(), 1000);
  EXPECT_EQ(choices.count(), 0);
}

int CountPixels(QWidget& widget, const QColor& color) {
  const QImage image = widget.grab().toImage();
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      count += image.pixelColor(x, y) == color ? 1 : 0;
    }
  }
  return count;
}

TEST(FunNamePreview, DrawsEachColorReadablyOnAnyGround) {
  const std::vector<QColor> colors = {
      QColor(0, 0, 0),     QColor(255, 0, 0),    QColor(0, 255, 0),
      QColor(255, 255, 0), QColor(0, 0, 255),    QColor(0, 255, 255),
      QColor(255, 0, 255), QColor(255, 255, 255)};
  // Grounds, texts and the codes that need an outline there.
  const QColor light(239, 239, 239);
  const QColor dark(50, 50, 50);
  const QColor brown(80, 40, 20);
  const QColor beige(220, 210, 190);
  for (const auto& [ground, text, outlined] :
       {std::tuple{light, brown, std::string("2357")},
        std::tuple{dark, beige, std::string("04")}}) {
    FunNamePreview preview;
    QPalette palette;
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, text);
    preview.setPalette(palette);
    preview.resize(400, 40);
    for (std::size_t code = 0; code < colors.size(); ++code) {
      SCOPED_TRACE(code);
      preview.DrawFunName(QString("^%1MMMM").arg(code));
      EXPECT_GT(CountPixels(preview, colors[code]), 20);
      const bool has_outline =
          outlined.find(std::to_string(code)) != std::string::npos;
      EXPECT_EQ(CountPixels(preview, text) > 20, has_outline);
    }
    preview.DrawFunName("MMMM^1");
    EXPECT_GT(CountPixels(preview, text), 20);
    EXPECT_EQ(CountPixels(preview, colors[1]), 0);
  }
}

TEST(FunNamePreview, TakesOnlyRealCodesAway) {
  FunNamePreview preview;
  for (const auto& [text, plain] :
       std::vector<std::pair<QString, QString>>{{"^1Red^7White", "RedWhite"},
                                                {"a^8b^^1c^", "a^8b^c^"},
                                                {"^1^2", ""},
                                                {"", ""}}) {
    preview.DrawFunName(text);
    EXPECT_EQ(preview.accessibleDescription(), plain);
  }
  // A name beyond the width ends before it, in the color of its end.
  preview.resize(200, 40);
  preview.DrawFunName("^1" + QString(100, 'W') + "^2M");
  EXPECT_GT(CountPixels(preview, QColor(255, 0, 0)), 100);
  EXPECT_EQ(CountPixels(preview, QColor(0, 255, 0)), 0);
  EXPECT_EQ(preview.grab().toImage().copy(199, 0, 1, 40).pixelColor(0, 20),
            preview.palette().color(QPalette::Window));
}

TEST(FunNamePreview, GoesOnInAnotherLineWhereItMay) {
  FunNamePreview preview;
  const QColor green(0, 255, 0);
  preview.resize(200, 60);
  const QString text =
      "^1Some words " + QString("and more ").repeated(2) + "^2M";
  preview.DrawFunName(text);
  EXPECT_EQ(CountPixels(preview, green), 0);
  preview.LetWrap(2);
  preview.resize(200, preview.sizeHint().height());
  EXPECT_GT(CountPixels(preview, green), 10);
  // It stands below the words.
  EXPECT_EQ(preview.grab().toImage().copy(0, 0, 200, 10), [&preview] {
    preview.DrawFunName("^1Some words " + QString("and more ").repeated(2) +
                        "^1M");
    return preview.grab().toImage().copy(0, 0, 200, 10);
  }());
}

TEST(ValueLabel, HasRoomForThreePlacesBesideTheArrow) {
  for (int size = 6; size < 25; ++size) {
    ValueLabel label;
    QFont font = label.font();
    font.setPointSize(size);
    label.setFont(font);
    const QString text = QStringLiteral("0.777");
    EXPECT_EQ(label.fontMetrics().elidedText(
                  text, Qt::ElideRight,
                  label.sizeHint().width() - label.RoomAtLeft()),
              text)
        << size;
  }
}

TEST(IconBox, ShowsAPictureAndNothingAfterClear) {
  IconBox box;
  Picture picture{.width = 2, .height = 4, .pixels = {}};
  for (int pixel = 0; pixel < 8; ++pixel) {
    picture.pixels.insert(picture.pixels.end(), {200, 100, 50, 255});
  }
  box.ShowPicture(picture, "Sarge <b>");
  picture.pixels.assign(picture.pixels.size(), 0);
  const int side = box.contentsRect().width();
  box.resize(box.sizeHint());
  EXPECT_GE(CountPixels(box, QColor(200, 100, 50)), side);
  EXPECT_EQ(box.accessibleDescription(), QString("Sarge <b>"));
  box.Clear();
  EXPECT_EQ(CountPixels(box, QColor(200, 100, 50)), 0);
  EXPECT_EQ(box.accessibleDescription(), QString());
}

}  // namespace
}  // namespace fragsmith
