#ifndef FRAGSMITH_TESTS_EDITOR_FONT_SCALE_H_
#define FRAGSMITH_TESTS_EDITOR_FONT_SCALE_H_

#include <QApplication>
#include <QFontMetricsF>
#include <algorithm>

namespace fragsmith {

/// A width that holds as much text as these pixels do in a usual font. Only a
/// wider one makes a difference, such as the boxes that are drawn where there
/// is no font at all.
inline int WithThisFont(int pixels) {
  constexpr double kUsualWidth = 7;
  const double width = QFontMetricsF(QApplication::font()).averageCharWidth();
  return static_cast<int>(pixels * std::max(1.0, width / kUsualWidth));
}

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_EDITOR_FONT_SCALE_H_
