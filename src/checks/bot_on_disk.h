#ifndef FRAGSMITH_CHECKS_BOT_ON_DISK_H_
#define FRAGSMITH_CHECKS_BOT_ON_DISK_H_

#include <filesystem>
#include <string>

#include "checks/file_checks.h"
#include "checks/finding.h"

namespace fragsmith {

/// The files of a bot with their bytes. Those that cannot be read are missing.
struct BotOnDisk {
  BotFileSet files;
  /// The bot has no description of its own, but stands in the list bots.txt
  /// beside it, as the game's own bots do.
  bool is_in_bot_list = false;
};

/// The bot whose files are called by the name (8-bit), in a folder. With the
/// game's layout the description lies in scripts beside botfiles/bots.
BotOnDisk ReadBotInFolder(const std::filesystem::path& folder,
                          const std::string& name, bool uses_layout);

/// The same in a package, where the layout is the game's.
BotOnDisk ReadBotInPackage(const std::filesystem::path& package,
                           const std::string& name);

/// A hint for a bot whose files lie loose in a folder: a game that was started
/// from its own menus does not read such files.
Finding LooseFilesHint(const BotOnDisk& bot);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_BOT_ON_DISK_H_
