#include "install/program/program_folder.h"

#include <system_error>
#include <utility>

#include "install/program/game_folder.h"
#include "install/program/settings_file.h"
#include "install/program/skin_icon.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/system/program_location_system.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

tl::unexpected<Error> NoProgramFolder(std::string what, const fs::path& path) {
  return Failure({.what = std::move(what),
                  .file = Utf8FromPath(path),
                  .line = 0,
                  .advice = Localized("Name another with --program-folder.")});
}

fs::path FindDataFolder(const ProgramLocation& location) {
  const std::string_view picture = FixedPictureName(IconKind::kNotInUse);
  if (IsFile(location.executable_folder / picture)) {
    return location.executable_folder;
  }
  return (location.executable_folder / ".." / "share" / "fragsmith")
      .lexically_normal();
}

fs::path FindOwnUnzipFolder(const ProgramLocation& location) {
  fs::path beside = location.executable_folder;
  if (FindUnzipTool(beside)) return beside;
  fs::path library = (beside / ".." / "lib" / "fragsmith").lexically_normal();
  return FindUnzipTool(library) ? library : fs::path();
}

/// The settings of a new user: the starter's, with the unzip tool where it is
/// in this installation.
ProgramSettings StarterSettings(const ProgramFolders& folders) {
  ProgramSettings settings;
  const Result<std::string> starter = ReadFile(folders.data / kSettingsFile);
  if (starter) settings = ParseSettings(*starter).settings;
  if (!FindUnzipTool(PathFromBytes(settings.WinZipDir))) {
    settings.WinZipDir.clear();
  }
  UseOwnUnzipTool(folders.unzip_tool, settings);
  return settings;
}

}  // namespace

ProgramLocation FindProgramLocation() {
  ProgramLocation location;
  location.executable_folder = system::ExecutablePath().parent_path();
  const fs::path configuration = system::ConfigurationFolder();
  if (!configuration.empty())
    location.user_folder = configuration / "fragsmith";
  return location;
}

std::string_view SuperUserWarning() {
  if (!system::IsSuperUser()) return {};
  return Localizable(
      "This runs as root: what it writes belongs to root, and no one else can "
      "change it. Run it as yourself.");
}

Result<ProgramFolders> FindProgramFolders(const std::optional<fs::path>& given,
                                          const ProgramLocation& location) {
  ProgramFolders folders = {.program = {},
                            .data = FindDataFolder(location),
                            .unzip_tool = FindOwnUnzipFolder(location)};
  if (given) {
    if (!IsFolder(*given)) {
      return NoProgramFolder(Localized("There is no such folder."), *given);
    }
    folders.program = *given;
    std::error_code ignored;
    folders.is_hidden = fs::equivalent(*given, location.user_folder, ignored);
    return folders;
  }
  const fs::path& own = location.executable_folder;
  if (!own.empty() && !system::IsSystemFolder(own) &&
      system::IsWritableFolder(own)) {
    folders.program = own;
    return folders;
  }
  folders.program = location.user_folder;
  folders.is_hidden = true;
  if (folders.program.empty()) {
    return NoProgramFolder(Localized("There is no folder for the settings."),
                           {});
  }
  if (IsFolder(folders.program)) return folders;
  std::error_code reason;
  fs::create_directories(folders.program, reason);
  if (reason) {
    return NoProgramFolder(
        Localized("The folder cannot be made: %1.", {reason.message()}),
        folders.program);
  }
  const Result<void> saved =
      SaveSettings(folders.program, StarterSettings(folders));
  if (!saved) return Failure(saved.error());
  return folders;
}

}  // namespace fragsmith
