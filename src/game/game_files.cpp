#include "game/game_files.h"

#include <algorithm>
#include <array>

#include "install/packages/package.h"
#include "install/program/game_folder.h"
#include "model/file_names.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// The game itself reads no larger one of those that matter here.
constexpr std::size_t kMaxBytes = std::size_t{4} << 20U;

/// As the game looks it up: without case, with "/".
std::string Folded(std::string_view path) {
  std::string folded = ToLower(path);
  std::replace(folded.begin(), folded.end(), '\\', '/');
  return folded;
}

bool ConcernsBots(std::string_view path) {
  constexpr std::array<std::string_view, 3> kFolders = {
      kBotFilesPath, kScriptsPath, "models/players/"};
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

bool GamePackage::WinsOver(const GamePackage& other) const {
  return is_of_player == other.is_of_player
             ? ToLower(name) > ToLower(other.name)
             : is_of_player;
}

GameFiles GameFiles::Open(const fs::path& game_folder) {
  return OpenPackages(PackageFolder(game_folder));
}

GameFiles GameFiles::OpenPackages(fs::path folder) {
  GameFiles files;
  files.folder_ = std::move(folder);
  files.AddPackages(files.folder_, false, {});
  return files;
}

void GameFiles::AddPlayersFolder(fs::path folder, const fs::path& left_out) {
  players_folder_ = std::move(folder);
  AddPackages(players_folder_, true, left_out);
}

void GameFiles::AddPackages(const fs::path& folder, bool is_of_player,
                            const fs::path& left_out) {
  for (const fs::path& package : ListFiles(folder, kPackageEnd)) {
    const std::optional<std::string> name = GameTextFromPath(package);
    if (!name || package == left_out) continue;
    Notes notes;
    const Result<std::vector<std::string>> listed =
        ListPackageEntries(folder / package, notes);
    if (!listed) continue;
    is_game_ = true;
    for (const std::string& entry : *listed) {
      std::string path = Folded(entry);
      if (!ConcernsBots(path)) continue;
      if (entries_.size() >= kMaxEntries) return;
      entries_.insert_or_assign(std::move(path),
                                GamePackage{*name, is_of_player});
    }
  }
}

std::optional<std::string> GameFiles::Read(std::string_view path) const {
  const std::string folded = Folded(path);
  const auto found = entries_.find(folded);
  for (const bool is_of_player : {true, false}) {
    const fs::path& folder = is_of_player ? players_folder_ : folder_;
    if (folder.empty()) continue;
    std::optional<fs::path> loose = FindLoose(folder, path);
    if (!loose) loose = FindLoose(folder, folded);
    const bool is_packed =
        found != entries_.end() && found->second.is_of_player == is_of_player;
    if (!loose && !is_packed) continue;
    Result<std::string> bytes =
        loose ? ReadFile(*loose, kMaxBytes)
              : ReadPackageEntry(folder / PathFromGameText(found->second.name),
                                 folded, kMaxBytes, PackageReading::kAsGame);
    if (!bytes) return std::nullopt;
    return std::move(*bytes);
  }
  return std::nullopt;
}

}  // namespace fragsmith
