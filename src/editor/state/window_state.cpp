#include "editor/state/window_state.h"

#include <QSettings>
#include <algorithm>

#include "support/files.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

/// The version of the file. Keys of a newer one stay in it.
constexpr const char* kFormat = "format";
constexpr int kPresentFormat = 1;

constexpr const char* kGeometry = "geometry";
constexpr const char* kPage = "page";
constexpr const char* kUnfolded = "more";
constexpr const char* kRecent = "recent";

}  // namespace

QString WindowStateFile(const std::filesystem::path& program_folder) {
  return QString::fromStdString(BytesFromPath(program_folder / "fgs.window"));
}

WindowState LoadWindowState(const std::filesystem::path& program_folder) {
  const QSettings file(WindowStateFile(program_folder), QSettings::IniFormat);
  return {.geometry = file.value(QLatin1String(kGeometry)).toByteArray(),
          .page = file.value(QLatin1String(kPage), 0).toInt(),
          .is_unfolded = file.value(QLatin1String(kUnfolded), false).toBool(),
          .recent = file.value(QLatin1String(kRecent)).toStringList()};
}

Result<void> SaveWindowState(const std::filesystem::path& program_folder,
                             const WindowState& state) {
  QSettings file(WindowStateFile(program_folder), QSettings::IniFormat);
  const int format = file.value(QLatin1String(kFormat), 0).toInt();
  file.setValue(QLatin1String(kFormat), std::max(format, kPresentFormat));
  file.setValue(QLatin1String(kGeometry), state.geometry);
  file.setValue(QLatin1String(kPage), state.page);
  file.setValue(QLatin1String(kUnfolded), state.is_unfolded);
  file.setValue(QLatin1String(kRecent), state.recent);
  file.sync();
  if (file.status() == QSettings::NoError) return {};
  return Failure({.what = Localized("What the window looked like could not be "
                                    "written"),
                  .file = WindowStateFile(program_folder).toStdString(),
                  .line = 0,
                  .advice = {}});
}

}  // namespace fragsmith
