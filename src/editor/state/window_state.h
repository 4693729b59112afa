#ifndef FRAGSMITH_EDITOR_STATE_WINDOW_STATE_H_
#define FRAGSMITH_EDITOR_STATE_WINDOW_STATE_H_

#include <QByteArray>
#include <QStringList>
#include <filesystem>

#include "support/result.h"

namespace fragsmith {

/// What the window looked like when it was last closed, in the file
/// fgs.window beside the settings.
struct WindowState {
  QByteArray geometry;  ///< As QWidget::saveGeometry gives it; may be empty.
  int page = 0;         ///< The parameter page that was shown.
  bool is_unfolded = false;  ///< The lesser fields of the identity show.
  QStringList recent;        ///< As RecentBots gives them.
};

WindowState LoadWindowState(const std::filesystem::path& program_folder);
/// An error where the file cannot be written.
[[nodiscard]] Result<void> SaveWindowState(
    const std::filesystem::path& program_folder, const WindowState& state);

/// The file itself, for what dialogs remember in groups of their own.
QString WindowStateFile(const std::filesystem::path& program_folder);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_STATE_WINDOW_STATE_H_
