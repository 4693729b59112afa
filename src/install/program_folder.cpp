#include "install/program_folder.h"

#include <system_error>
#include <utility>

#include "install/game_folder.h"
#include "install/program_place_system.h"
#include "install/settings_file.h"
#include "install/skin_icon.h"
#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

tl::unexpected<Error> NoProgramFolder(std::string what, const fs::path& path) {
  return Failure({.what = std::move(what),
                  .file = Utf8FromPath(path),
                  .line = 0,
                  .advice = "Name another with --program-folder."});
}

fs::path FindDataFolder(const ProgramPlace& place) {
  const std::string_view picture = FixedPictureName(IconKind::kNotInUse);
  if (IsFile(place.executable_folder / picture)) {
    return place.executable_folder;
  }
  return (place.executable_folder / ".." / "share" / "fragsmith")
      .lexically_normal();
}

/// The settings of a new user: the starter's, with the unzip tool where it is
/// in this installation.
ProgramSettings StarterSettings(const fs::path& data_folder,
                                const ProgramPlace& place) {
  ProgramSettings settings;
  const Result<std::string> starter = ReadFile(data_folder / kSettingsFile);
  if (starter) settings = ParseSettings(*starter).settings;
  const fs::path named = PathFromBytes(settings.WinZipDir);
  if (named.empty() || !FindUnzipTool(named)) {
    if (const auto own = FindOwnUnzipFolder(place)) {
      settings.WinZipDir = BytesFromPath(*own);
    }
  }
  return settings;
}

}  // namespace

ProgramPlace FindProgramPlace() {
  ProgramPlace place;
  place.executable_folder = system::ExecutablePath().parent_path();
  const fs::path configuration = system::ConfigurationFolder();
  if (!configuration.empty()) place.user_folder = configuration / "fragsmith";
  return place;
}

std::optional<fs::path> FindOwnUnzipFolder(const ProgramPlace& place) {
  const fs::path beside = place.executable_folder;
  if (FindUnzipTool(beside)) return beside;
  fs::path library = (beside / ".." / "lib" / "fragsmith").lexically_normal();
  if (FindUnzipTool(library)) return library;
  return std::nullopt;
}

Result<ProgramFolders> FindProgramFolders(const std::optional<fs::path>& given,
                                          const ProgramPlace& place) {
  const fs::path data = FindDataFolder(place);
  if (given) {
    if (IsFolder(*given)) return ProgramFolders{*given, data};
    return NoProgramFolder("There is no such folder.", *given);
  }
  if (!place.executable_folder.empty() &&
      system::IsWritableFolder(place.executable_folder)) {
    return ProgramFolders{place.executable_folder, data};
  }
  if (place.user_folder.empty()) {
    return NoProgramFolder("There is no folder for the settings.", {});
  }
  if (IsFolder(place.user_folder)) {
    return ProgramFolders{place.user_folder, data};
  }
  std::error_code reason;
  fs::create_directories(place.user_folder, reason);
  if (reason) {
    return NoProgramFolder(
        "The folder cannot be made: " + reason.message() + ".",
        place.user_folder);
  }
  const Result<void> saved =
      SaveSettings(place.user_folder, StarterSettings(data, place));
  if (!saved) return Failure(saved.error());
  return ProgramFolders{place.user_folder, data};
}

}  // namespace fragsmith
