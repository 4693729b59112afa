#ifndef FRAGSMITH_CHECKS_BOT_LOCATION_H_
#define FRAGSMITH_CHECKS_BOT_LOCATION_H_

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "game/given_files.h"
#include "install/program/bot_list.h"
#include "session/bot_origin.h"
#include "support/result.h"

namespace fragsmith {

/// Where the files of a bot are, by the name (8-bit) in front of _c.c: in a
/// folder or in a package.
struct BotLocation {
  std::string name;
  std::filesystem::path folder;
  std::filesystem::path package;
  /// The folder is botfiles/bots, with the scripts beside.
  bool uses_layout = false;
  bool has_description = true;  ///< In a package.
  /// The name by which the bot was asked for, where that is one of a list of
  /// bots, of which several may share the files; else empty.
  std::string listed_name = {};

  bool operator==(const BotLocation&) const = default;
};

/// The name of the bot that one of its five files is called by, whatever the
/// case; nothing for another file.
std::optional<std::string> BotNameOfAnyFile(const std::filesystem::path& file);

/// The bots that a path leads to: those of a folder, of the game's folder
/// above botfiles/bots or of a package, or the one that a file belongs to.
Result<std::vector<BotLocation>> BotsAt(const std::filesystem::path& path);

/// What is to be said of a folder or a package in which there is no bot, but
/// files that look like some: where they lie, or what they are called. UTF-8;
/// empty where nothing is.
std::string WhyNoBots(const std::filesystem::path& path);

/// Of the bots of a package those go that are no more than a description of
/// another one, which lies elsewhere or is called otherwise.
void DropDescriptionsOfOthers(const GivenFiles& given,
                              std::vector<BotListEntry>& bots);

/// Where the files of a bot were last read or written; nothing for one that
/// has no files.
std::optional<BotLocation> LocationOf(const BotHome& home);

/// The player's own folder in which a bot lies, given the one of the game's
/// packages: it has the same name, such as baseq3, and lies elsewhere. Nothing
/// when the bot lies in neither way.
std::optional<std::filesystem::path> PlayersFolderOf(
    const BotLocation& location, const std::filesystem::path& package_folder);

/// The files there, with all that lies beside them.
GivenFiles FilesOf(const BotLocation& location);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_BOT_LOCATION_H_
