#include "install/program/game_folder.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <vector>

#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kWindowsProgramEnd = ".exe";
constexpr std::string_view kWindowsUnzipTool = "wzunzip.exe";
constexpr std::string_view kStandardFolder = "baseq3";
/// How the folders begin that take its place.
constexpr std::string_view kOtherFolders = "base";

#ifdef _WIN32
constexpr bool kIsWindows = true;
#else
constexpr bool kIsWindows = false;
#endif

bool IsExecutable(const fs::path& path) {
  constexpr fs::perms kAnyone =
      fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
  std::error_code ignored;
  const fs::file_status status = fs::status(path, ignored);
  return fs::is_regular_file(status) &&
         (status.permissions() & kAnyone) != fs::perms::none;
}

bool IsGameName(std::string_view name) {
  // The last three are servers, which some have alone.
  constexpr std::array<std::string_view, 6> kBeginnings = {
      "quake3", "ioquake3", "openarena", "ioq3ded", "q3ded", "oa_ded"};
  return std::any_of(kBeginnings.begin(), kBeginnings.end(),
                     [name](std::string_view beginning) {
                       return EqualIgnoringCase(
                           name.substr(0, beginning.size()), beginning);
                     });
}

/// Where a system's packages and the game itself put what is no program.
bool IsPlaceOfPackages(const fs::path& gameFolder) {
  // A name with a slash at its end has none for the last part.
  const fs::path folder =
      gameFolder.has_filename() ? gameFolder : gameFolder.parent_path();
  constexpr std::array<std::string_view, 3> kFoldersOfUser = {
      ".q3a", ".ioquake3", ".openarena"};
  const fs::path above = folder.parent_path();
  return std::ranges::find(kFoldersOfUser, BytesFromPath(folder.filename())) !=
             kFoldersOfUser.end() ||
         (above.filename() == "games" &&
          above.parent_path().filename() == "share");
}

}  // namespace

bool HasGameProgram(const fs::path& gameFolder) {
  const std::vector<fs::path> names = ListFiles(gameFolder, "");
  if (std::ranges::any_of(names, [&](const fs::path& name) {
        const std::string bytes = BytesFromPath(name);
        return IsGameName(bytes) &&
               (EndsWithIgnoringCase(bytes, kWindowsProgramEnd) ||
                IsExecutable(gameFolder / name));
      })) {
    return true;
  }
  const fs::path packages = PackageFolder(gameFolder);
  return (!IsStandardPackageFolder(packages) ||
          IsPlaceOfPackages(gameFolder)) &&
         FindFile(packages, kGamePackage);
}

fs::path PackageFolder(const fs::path& gameFolder) {
  fs::path exact = gameFolder / kStandardFolder;
  if (gameFolder.empty() || FindFile(exact, kGamePackage)) return exact;
  std::optional<fs::path> standard;
  if (IsFolder(exact)) standard = exact;
  std::optional<fs::path> other;
  std::error_code reason;
  for (fs::directory_iterator entry(gameFolder, reason), end;
       !reason && entry != end; entry.increment(reason)) {
    const fs::path& folder = entry->path();
    if (IsStandardPackageFolder(folder) && IsFolder(folder)) {
      if (FindFile(folder, kGamePackage)) return folder;
      if (!standard) standard = folder;
      continue;
    }
    const std::string name = BytesFromPath(folder.filename());
    if (EqualIgnoringCase(name.substr(0, kOtherFolders.size()),
                          kOtherFolders) &&
        (!other || folder < *other) && FindFile(folder, kGamePackage)) {
      other = folder;
    }
  }
  return other.value_or(standard.value_or(exact));
}

bool IsStandardPackageFolder(const fs::path& package_folder) {
  return EqualIgnoringCase(BytesFromPath(package_folder.filename()),
                           kStandardFolder);
}

std::optional<fs::path> FolderToInstallInto(const fs::path& gameFolder) {
  fs::path folder = PackageFolder(gameFolder);
  if (gameFolder.empty() || !IsFolder(folder)) return std::nullopt;
  return folder;
}

std::optional<fs::path> FindPackage(const fs::path& gameFolder,
                                    std::string_view pk3File) {
  if (gameFolder.empty()) return std::nullopt;
  return FindFile(PackageFolder(gameFolder), pk3File);
}

std::optional<fs::path> FindUnzipTool(const fs::path& folder) {
  // A program of the current folder could be anyone's.
  if (!folder.is_absolute()) return std::nullopt;
  if (!kIsWindows) {
    const fs::path own = folder / "wzunzip";
    if (IsExecutable(own)) return own;
  }
  return FindFile(folder, kWindowsUnzipTool);
}

}  // namespace fragsmith
