#include "editor/window_state.h"

#include <QSettings>

#include "support/files.h"

namespace fragsmith {
namespace {

constexpr const char* kGeometry = "geometry";
constexpr const char* kPage = "page";
constexpr const char* kRecent = "recent";

QString FileIn(const std::filesystem::path& program_folder) {
  return QString::fromStdString(BytesFromPath(program_folder / "fgs.window"));
}

}  // namespace

WindowState LoadWindowState(const std::filesystem::path& program_folder) {
  const QSettings file(FileIn(program_folder), QSettings::IniFormat);
  return {.geometry = file.value(QLatin1String(kGeometry)).toByteArray(),
          .page = file.value(QLatin1String(kPage), 0).toInt(),
          .recent = file.value(QLatin1String(kRecent)).toStringList()};
}

void SaveWindowState(const std::filesystem::path& program_folder,
                     const WindowState& state) {
  QSettings file(FileIn(program_folder), QSettings::IniFormat);
  file.setValue(QLatin1String(kGeometry), state.geometry);
  file.setValue(QLatin1String(kPage), state.page);
  file.setValue(QLatin1String(kRecent), state.recent);
}

}  // namespace fragsmith
