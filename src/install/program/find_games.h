#ifndef FRAGSMITH_INSTALL_PROGRAM_FIND_GAMES_H_
#define FRAGSMITH_INSTALL_PROGRAM_FIND_GAMES_H_

#include <filesystem>
#include <string>
#include <vector>

#include "support/system/installed_programs.h"

namespace fragsmith {

/// Where the search for games begins.
struct GameRoots {
  std::filesystem::path home;  ///< The user's; empty where it is not known.
  /// The top of the file system, or the drive that has the programs.
  std::filesystem::path root;
  /// Of these, games are known by their names, and so is their shop.
  std::vector<InstalledProgram> installed;
};

/// A folder that can be set as the game's.
struct FoundGame {
  std::string name;  ///< "OpenArena"
  std::filesystem::path folder;
};

/// The game folders in the places where shops, systems and the game itself put
/// them, each once. Looks at names alone and reads no package.
std::vector<FoundGame> FindGames(const GameRoots& roots);

/// What a game in that folder is called, by the name of its package folder.
std::string GameName(const std::filesystem::path& game_folder);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_FIND_GAMES_H_
