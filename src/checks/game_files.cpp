#include "checks/game_files.h"

#include <algorithm>
#include <array>

#include "install/game_folder.h"
#include "install/package.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// The game itself reads no larger one of those that matter here.
constexpr std::size_t kMostBytes = std::size_t{4} << 20U;

/// As the game looks it up: without case, with "/".
std::string Folded(std::string_view path) {
  std::string folded = ToLower(path);
  std::replace(folded.begin(), folded.end(), '\\', '/');
  return folded;
}

bool ConcernsBots(std::string_view path) {
  constexpr std::array<std::string_view, 3> kFolders = {"botfiles/", "scripts/",
                                                        "models/players/"};
  return !path.ends_with('/') && std::any_of(kFolders.begin(), kFolders.end(),
                                             [path](std::string_view folder) {
                                               return path.starts_with(folder);
                                             });
}

/// The file below the folder, each part of the path being a plain name.
std::optional<fs::path> FindLoose(fs::path folder, std::string_view path) {
  while (true) {
    const std::size_t slash = path.find('/');
    const std::string_view name = path.substr(0, slash);
    if (!IsFileName(name)) return std::nullopt;
    if (slash == std::string_view::npos) return FindFile(folder, name);
    folder /= PathFromGameText(name);
    path.remove_prefix(slash + 1);
  }
}

}  // namespace

GameFiles GameFiles::Open(const fs::path& game_folder) {
  GameFiles files;
  files.folder_ = PackageFolder(game_folder);
  for (const fs::path& package : ListFiles(files.folder_, ".pk3")) {
    const std::optional<std::string> name = GameTextFromPath(package);
    if (!name) continue;
    Notes notes;
    const Result<std::vector<std::string>> listed =
        ListPackageEntries(files.folder_ / package, notes);
    if (!listed) continue;
    files.is_game_ = true;
    for (const std::string& entry : *listed) {
      std::string path = Folded(entry);
      if (!ConcernsBots(path)) continue;
      if (files.entries_.size() >= kMostEntries) return files;
      files.entries_.insert_or_assign(std::move(path), *name);
    }
  }
  return files;
}

std::optional<std::string> GameFiles::Read(std::string_view path) const {
  const std::string folded = Folded(path);
  std::optional<fs::path> loose = FindLoose(folder_, path);
  if (!loose) loose = FindLoose(folder_, folded);
  Result<std::string> bytes;
  if (loose) {
    bytes = ReadFile(*loose, kMostBytes);
  } else {
    const auto found = entries_.find(folded);
    if (found == entries_.end()) return std::nullopt;
    bytes = ReadPackageEntry(folder_ / PathFromGameText(found->second), folded,
                             kMostBytes);
  }
  if (!bytes) return std::nullopt;
  return std::move(*bytes);
}

}  // namespace fragsmith
