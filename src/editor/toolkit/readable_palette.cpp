#include "editor/toolkit/readable_palette.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

#include "editor/toolkit/contrast.h"

namespace fragsmith {
namespace {

constexpr QPalette::ColorGroup kGroups[] = {
    QPalette::Active, QPalette::Inactive, QPalette::Disabled};

/// Some dark themes leave the colour of hints at black. On a light window hints
/// need this much of the text's colour to be read.
void MakeHintsReadable() {
  QPalette palette = QApplication::palette();
  for (const QPalette::ColorGroup group : kGroups) {
    QColor hint = palette.color(group, QPalette::Text);
    hint.setAlphaF(0.75F);
    palette.setColor(group, QPalette::PlaceholderText, hint);
  }
  QApplication::setPalette(palette);
}

/// Many themes have white on a light blue for what is selected.
void MakeSelectionReadable() {
  // Strokes are thin: few of their points have the whole colour.
  constexpr double kReadable = 5;
  constexpr int kPercent = 104;
  QPalette palette = QApplication::palette();
  for (const QPalette::ColorGroup group : kGroups) {
    const QColor text = palette.color(group, QPalette::HighlightedText);
    QColor ground = palette.color(group, QPalette::Highlight);
    const bool is_text_light = text.lightness() > ground.lightness();
    // The number of steps is bounded for what gets no better.
    constexpr int kMaxSteps = 50;
    for (int step = 0; step < kMaxSteps && Contrast(text, ground) < kReadable;
         ++step) {
      ground =
          is_text_light ? ground.darker(kPercent) : ground.lighter(kPercent);
    }
    palette.setColor(group, QPalette::Highlight, ground);
  }
  QApplication::setPalette(palette);
}

/// Fusion draws the outlines of these darker than the window. On a dark one
/// nothing is then to be seen of an empty check box, and on any little of where
/// a text box or a list ends. None of them shows the window's colour otherwise;
/// menus do, and the lists of combo boxes, which stay as they are.
void MakeOutlinesVisible() {
  const QPalette base = QApplication::palette();
  const QColor ground = base.color(QPalette::Window);
  if (QApplication::style()->name() != QLatin1String("fusion")) return;
  const bool is_dark =
      ground.lightness() < base.color(QPalette::WindowText).lightness();
  // What is darkened again by the style.
  const float share = is_dark ? 0.85F : 0.4F;
  for (const char* const widget :
       {"QCheckBox", "QRadioButton", "QLineEdit", "QComboBox",
        "QAbstractSpinBox", "QListView", "QTreeView", "QPlainTextEdit",
        "QProgressBar", "QPushButton", "QSlider"}) {
    QPalette palette = QApplication::palette(widget);
    for (const QPalette::ColorGroup group : kGroups) {
      const QColor window = palette.color(group, QPalette::Window);
      const QColor text = palette.color(group, QPalette::WindowText);
      const auto mix = [share](float one, float other) {
        return one + (other - one) * share;
      };
      palette.setColor(group, QPalette::Window,
                       QColor::fromRgbF(mix(window.redF(), text.redF()),
                                        mix(window.greenF(), text.greenF()),
                                        mix(window.blueF(), text.blueF())));
    }
    QApplication::setPalette(palette, widget);
  }
  // What is inside of views of these kinds.
  for (const char* const widget : {"QComboBoxListView", "QHeaderView"}) {
    QPalette palette = QApplication::palette("QAbstractItemView");
    palette.setColor(QPalette::Window, ground);
    QApplication::setPalette(palette, widget);
  }
}

}  // namespace

void MakePaletteReadable() {
  MakeHintsReadable();
  MakeSelectionReadable();
  MakeOutlinesVisible();
}

}  // namespace fragsmith
