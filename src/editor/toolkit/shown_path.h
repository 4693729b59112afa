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

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_SHOWN_PATH_H_
