#ifndef FRAGSMITH_EDITOR_TOOLKIT_SEVERITY_COLOR_H_
#define FRAGSMITH_EDITOR_TOOLKIT_SEVERITY_COLOR_H_

#include <QColor>
#include <QPalette>

#include "game/complaints.h"

namespace fragsmith {

/// The ground of a count of findings, dark enough in light themes and light
/// enough in dark ones that the window's own ground is readable on it.
inline QColor SeverityColor(Severity severity, const QPalette& palette) {
  // The colour of the window is that of the outlines in some controls.
  const bool is_dark = palette.color(QPalette::WindowText).lightness() > 127;
  switch (severity) {
    case Severity::kError:
      return is_dark ? QColor(0xff, 0x7b, 0x6e) : QColor(0xb3, 0x26, 0x1e);
    case Severity::kWarning:
      return is_dark ? QColor(0xf0, 0xa8, 0x3c) : QColor(0x96, 0x5a, 0x00);
    case Severity::kHint:
      break;
  }
  return is_dark ? QColor(0xa4, 0xab, 0xb1) : QColor(0x5c, 0x63, 0x69);
}

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_SEVERITY_COLOR_H_
