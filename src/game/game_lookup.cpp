#include "game/game_lookup.h"

#include <memory>
#include <optional>
#include <string>

#include "game/game_files.h"
#include "game/stand_ins.h"
#include "install/program/game_folder.h"
#include "model/file_names.h"
#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// The folder of the packages: the game's own, or that of the free game.
fs::path PackagesIn(const fs::path& game_folder) {
  fs::path folder = PackageFolder(game_folder);
  if (!IsFolder(folder) && IsFolder(game_folder / "baseoa")) {
    folder = game_folder / "baseoa";
  }
  return folder;
}

}  // namespace

IncludeLookup GameLookUp(const fs::path& game_folder,
                         const fs::path& players_folder) {
  if (game_folder.empty()) return StandInGameFile;
  return [game_folder, players_folder,
          files = std::make_shared<std::optional<GameFiles>>()](
             std::string_view path) -> std::optional<std::string> {
    if (!*files) {
      *files = GameFiles::OpenPackages(PackagesIn(game_folder));
      if ((*files)->is_game() && !players_folder.empty()) {
        (*files)->AddPlayersFolder(players_folder, {});
      }
    }
    if (!(*files)->is_game()) return StandInGameFile(path);
    return (*files)->Read(InBotFiles(path));
  };
}

}  // namespace fragsmith
