#include "install/game_folder.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <vector>

#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kWindowsGame = "quake3.exe";
constexpr std::string_view kWindowsUnzipTool = "wzunzip.exe";

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
  constexpr std::array<std::string_view, 3> kBeginnings = {"quake3", "ioquake3",
                                                           "openarena"};
  return std::any_of(kBeginnings.begin(), kBeginnings.end(),
                     [name](std::string_view beginning) {
                       return EqualIgnoringCase(
                           name.substr(0, beginning.size()), beginning);
                     });
}

}  // namespace

bool HasGameProgram(const fs::path& gameFolder) {
  if (FindFile(gameFolder, kWindowsGame)) return true;
  if (kIsWindows) return false;
  const std::vector<fs::path> names = ListFiles(gameFolder, "");
  return std::any_of(names.begin(), names.end(), [&](const fs::path& name) {
    return IsGameName(BytesFromPath(name)) && IsExecutable(gameFolder / name);
  });
}

fs::path PackageFolder(const fs::path& gameFolder) {
  constexpr std::string_view kName = "baseq3";
  fs::path exact = gameFolder / kName;
  if (IsFolder(exact)) return exact;
  std::error_code reason;
  for (fs::directory_iterator entry(gameFolder, reason), end;
       !reason && entry != end; entry.increment(reason)) {
    if (EqualIgnoringCase(BytesFromPath(entry->path().filename()), kName) &&
        IsFolder(entry->path())) {
      return entry->path();
    }
  }
  return exact;
}

std::optional<fs::path> FindPackage(const fs::path& gameFolder,
                                    std::string_view pk3File) {
  if (gameFolder.empty()) return std::nullopt;
  return FindFile(PackageFolder(gameFolder), pk3File);
}

std::optional<fs::path> FindUnzipTool(const fs::path& folder) {
  if (!kIsWindows) {
    const fs::path own = folder / "wzunzip";
    if (IsExecutable(own)) return own;
  }
  return FindFile(folder, kWindowsUnzipTool);
}

}  // namespace fragsmith
