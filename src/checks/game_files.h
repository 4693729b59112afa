#ifndef FRAGSMITH_CHECKS_GAME_FILES_H_
#define FRAGSMITH_CHECKS_GAME_FILES_H_

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fragsmith {

/// The files of an installed game as the game finds them: those lying loose
/// in its folder before those in packages, of packages the last one by name.
/// Only what concerns bots is known. Packages that cannot be read are left
/// out.
class GameFiles {
 public:
  /// The folder is the one above baseq3. Reads the tables of contents.
  static GameFiles Open(const std::filesystem::path& game_folder);

  /// The bytes of a file such as "botfiles/rnd.c"; case does not count.
  /// Nothing when there is none, or none that can be read.
  std::optional<std::string> Read(std::string_view path) const;

  /// Paths in packages, in lower case, each with the file name of the package
  /// that it comes from. All of it is game text.
  const std::map<std::string, std::string>& entries() const { return entries_; }

  /// False when there is no package at all.
  bool is_game() const { return is_game_; }

 private:
  /// Enough for the game and hundreds of models; packages could list more.
  static constexpr std::size_t kMostEntries = 200'000;

  std::filesystem::path folder_;
  std::map<std::string, std::string> entries_;
  bool is_game_ = false;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_GAME_FILES_H_
