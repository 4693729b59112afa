#ifndef FRAGSMITH_EDITOR_TOOLKIT_SHOWN_PATH_H_
#define FRAGSMITH_EDITOR_TOOLKIT_SHOWN_PATH_H_

#include <QDir>
#include <QString>
#include <filesystem>

#include "support/files.h"

namespace fragsmith {

/// A path as the system writes it.
inline QString ShownPath(const std::filesystem::path& path) {
  return QDir::toNativeSeparators(QString::fromStdString(Utf8FromPath(path)));
}

/// The same for a line that is to fit a window: of a long one the beginning and
/// the end.
inline QString ShortPath(const std::filesystem::path& path) {
  constexpr qsizetype kMax = 80;
  constexpr qsizetype kBegin = 20;
  QString whole = ShownPath(path);
  if (whole.size() <= kMax) return whole;
  return whole.first(kBegin) + u'\u2026' + whole.last(kMax - kBegin);
}

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_SHOWN_PATH_H_
