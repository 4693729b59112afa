#ifndef FRAGSMITH_EDITOR_WINDOW_STATE_H_
#define FRAGSMITH_EDITOR_WINDOW_STATE_H_

#include <QByteArray>
#include <QStringList>
#include <filesystem>

namespace fragsmith {

/// What the window looked like when it was last closed, in the file
/// fgs.window beside the settings.
struct WindowState {
  QByteArray geometry;  ///< As QWidget::saveGeometry gives it; may be empty.
  int page = 0;         ///< The parameter page that was shown.
  QStringList recent;   ///< As RecentBots gives them.
};

WindowState LoadWindowState(const std::filesystem::path& program_folder);
void SaveWindowState(const std::filesystem::path& program_folder,
                     const WindowState& state);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_WINDOW_STATE_H_
