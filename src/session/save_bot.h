#ifndef FRAGSMITH_SESSION_SAVE_BOT_H_
#define FRAGSMITH_SESSION_SAVE_BOT_H_

#include <filesystem>
#include <optional>
#include <vector>

#include "botfiles/header_comment.h"
#include "install/settings_file.h"
#include "model/bot.h"
#include "support/prompts.h"
#include "support/result.h"

namespace fragsmith {

struct SaveOptions {
  /// Into botfiles/bots and scripts below the folder, as the game has them;
  /// otherwise all files go into the folder itself.
  bool uses_layout = false;
  bool makes_package = false;
};

/// How far a save came.
struct SavedBot {
  std::vector<std::filesystem::path> written;  ///< In the order of writing.
  /// Why a file could not be written; the files behind it were left alone.
  std::optional<Error> error;
  /// A package was asked for and the files were there to pack: the count of
  /// packages goes up, also where the package itself failed.
  bool counts_package = false;
};

/// Writes the file set of the bot, each file whole or not at all, and packs
/// it on demand; the box about the package, good or bad, is shown. A bot
/// whose name would lead out of the folder is refused.
SavedBot SaveBot(const Bot& bot, const std::filesystem::path& folder,
                 SaveOptions options, const Author& author, Prompts& prompts);

/// The five files that SaveBot would write, in its order.
std::vector<std::filesystem::path> TargetFiles(
    const Bot& bot, const std::filesystem::path& folder, SaveOptions options);

/// The author's data of the settings.
Author AuthorOf(const ProgramSettings& settings);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_SAVE_BOT_H_
