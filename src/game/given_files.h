#ifndef FRAGSMITH_GAME_GIVEN_FILES_H_
#define FRAGSMITH_GAME_GIVEN_FILES_H_

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "game/game_path.h"
#include "game/preprocessor.h"
#include "install/packages/package.h"
#include "support/result.h"

namespace fragsmith {

/// The files of a folder or of a package as somebody has them, each by the path
/// at which it lies in the game. Their bytes are theirs: nothing is read into a
/// bot and written again.
class GivenFiles {
 public:
  /// Whether a folder is botfiles/bots of a game, with its scripts beside.
  static bool IsInGame(const std::filesystem::path& folder);

  /// All that lies in the folder or below it, as if it were botfiles/bots;
  /// descriptions go to scripts. With the layout these folders are the game's
  /// own, and all of botfiles and scripts belongs to it.
  static GivenFiles OfFolder(const std::filesystem::path& folder,
                             bool uses_layout);
  static Result<GivenFiles> OfPackage(const std::filesystem::path& package);

  bool is_packed() const { return !package_.empty(); }
  /// As findings show it; empty for a folder.
  std::string package_name() const;
  FileHome home() const {
    return is_packed() ? FileHome::kPacked : FileHome::kLoose;
  }

  /// The file that the game opens by such a path, "botfiles/bots/x_c.c". Loose
  /// ones are spelt as it asks for them, and "./" and "//" count for nothing;
  /// in a package case does not count, but all else does.
  std::optional<GameFile> Open(std::string_view path) const;

  /// The same, whatever the case.
  std::optional<GameFile> OpenInAnyCase(std::string_view path) const;

  /// Paths that begin and end so, in lower case, in the package's order.
  std::vector<std::string> PathsLike(std::string_view beginning,
                                     std::string_view end) const;

  /// Of a package, what of its botfiles and scripts the game reads otherwise
  /// than they seem to be.
  std::vector<EntryFault> Faults() const;

  /// Puts the files, byte for byte, where a game has its own.
  Result<void> CopyInto(const std::filesystem::path& game_folder) const;

 private:
  struct Source {
    std::string path;               ///< As it is spelt.
    std::filesystem::path on_disk;  ///< Empty in a package.
    std::size_t number = 0;         ///< In the package.
  };

  void AddFolder(const std::filesystem::path& folder,
                 const std::string& game_path, bool is_flat);
  std::optional<GameFile> Read(const Source& source) const;

  std::filesystem::path package_;
  /// By path in lower case; loose ones may differ in case alone.
  std::multimap<std::string, Source, std::less<>> files_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_GIVEN_FILES_H_
