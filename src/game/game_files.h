#ifndef FRAGSMITH_GAME_GAME_FILES_H_
#define FRAGSMITH_GAME_GAME_FILES_H_

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fragsmith {

/// A package as the game comes upon it.
struct GamePackage {
  std::string name;           ///< Its file name, game text.
  bool is_of_player = false;  ///< It lies in the player's own folder.

  /// Whether the game takes a file that both have from this one.
  bool WinsOver(const GamePackage& other) const;
};

/// The files of an installed game as the game finds them: those lying loose
/// in its folder before those in packages, of packages the last one by name.
/// The player may have a folder of the same name elsewhere, such as
/// ~/.q3a/baseq3: all of that comes first. Only what concerns bots is known.
/// Packages that cannot be read are left out.
class GameFiles {
 public:
  /// The folder is the one above baseq3. Reads the tables of contents.
  static GameFiles Open(const std::filesystem::path& game_folder);
  /// The same for the folder that holds the packages.
  static GameFiles OpenPackages(std::filesystem::path folder);

  /// Adds the player's folder, but for one of its packages.
  void AddPlayersFolder(std::filesystem::path folder,
                        const std::filesystem::path& left_out);

  /// The folder that holds the packages.
  const std::filesystem::path& folder() const { return folder_; }

  /// The bytes of a file such as "botfiles/rnd.c"; case does not count.
  /// Nothing when there is none, or none that can be read.
  std::optional<std::string> Read(std::string_view path) const;

  /// Paths in packages, in lower case, each with the package that it comes
  /// from. All of it is game text.
  const std::map<std::string, GamePackage>& entries() const { return entries_; }

  /// False when there is no package at all.
  bool is_game() const { return is_game_; }

 private:
  /// Enough for the game and hundreds of models; packages could list more.
  static constexpr std::size_t kMaxEntries = 200'000;

  void AddPackages(const std::filesystem::path& folder, bool is_of_player,
                   const std::filesystem::path& left_out);

  std::filesystem::path folder_;
  std::filesystem::path players_folder_;  ///< Empty for none.
  std::map<std::string, GamePackage> entries_;
  bool is_game_ = false;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_GAME_FILES_H_
