#ifndef FRAGSMITH_SESSION_SAVE_BOT_H_
#define FRAGSMITH_SESSION_SAVE_BOT_H_

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "botfiles/header_comment.h"
#include "install/program/settings_file.h"
#include "model/bot.h"
#include "session/bot_file.h"
#include "session/bot_origin.h"
#include "support/prompts.h"
#include "support/result.h"

namespace fragsmith {

/// What a save writes, and where.
struct SavePlan {
  /// Made first where they are missing, in this order.
  std::vector<std::filesystem::path> folders;
  std::map<BotFile, std::filesystem::path> files;
  /// What is to be in files that are not made anew.
  std::map<BotFile, std::string> contents;
  /// These are left as they are; a package takes them as they are on disk.
  std::map<BotFile, std::filesystem::path> left_alone;
  std::optional<std::filesystem::path> package;
};

/// How far a save came.
struct [[nodiscard]] SavedBot {
  std::vector<std::filesystem::path> written;  ///< In the order of writing.
  OriginFiles files;                           ///< The written ones of the set.
  std::optional<OriginFile> package;
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

/// What SaveBot writes.
SavePlan PlanOf(const Bot& bot, const SaveTarget& target);

/// The same to wherever the plan says.
SavedBot SaveFiles(const Bot& bot, const SavePlan& plan, const Author& author,
                   Prompts& prompts);

/// What a file's content is to be.
std::string BytesOf(BotFile file, const Bot& bot, const Author& author);

/// The name of a file, as it follows from that of the bot.
std::filesystem::path FileNameOf(BotFile file, const Bot& bot);

/// The name of the bot's package.
std::filesystem::path PackageNameOf(const Bot& bot);

/// The author's data of the settings.
Author AuthorOf(const ProgramSettings& settings);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_SAVE_BOT_H_
