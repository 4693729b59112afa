#ifndef FRAGSMITH_CHECKS_BOT_ON_DISK_H_
#define FRAGSMITH_CHECKS_BOT_ON_DISK_H_

#include <optional>
#include <string>

#include "checks/file_checks.h"
#include "checks/finding.h"
#include "game/given_files.h"

namespace fragsmith {

/// The files of a bot with their bytes. Those that cannot be read are missing.
struct BotOnDisk {
  BotFileSet files;
  /// The bot has no description of its own, but stands in the list bots.txt
  /// beside it, as the game's own bots do.
  bool is_in_bot_list = false;
};

/// The bot whose files are called by the name (8-bit). Its description is the
/// one of its own name, or else that which speaks of it. The list bots.txt is
/// left alone where the game reads another one. Of several bots of that list
/// with these files one may be meant by its name.
BotOnDisk ReadBot(const GivenFiles& given, const std::string& name,
                  bool reads_list = true, const std::string& listed_name = {});

/// A bot that a description or the list of bots among the files speaks of.
struct ListedBot {
  std::string name;       ///< As it is spelt there.
  std::string file_name;  ///< What its files are called by, in lower case.
  bool is_of_list =
      false;  ///< Of the list of bots, which the game reads first.
  bool shares_files = false;  ///< With a bot of another name there.
};

/// The bot that the game adds by that name, whatever the case.
std::optional<ListedBot> FindListedBot(const GivenFiles& given,
                                       const std::string& name);

/// Whether a description, or one of a list, names the bot or its character
/// file.
bool SpeaksOf(const GameFile& file, const std::string& name);

/// Adds the bots of a list or description, given its bytes and how it is shown,
/// that win over the bot when they have its name, or may by chance.
void AddNamesTaken(const std::string& bytes, const std::string& shown,
                   BotFileSet& files, bool is_by_chance = false);

/// A hint for a bot whose files lie loose in a folder: a game that was started
/// from its own menus does not read such files.
Finding LooseFilesHint(const BotOnDisk& bot);

/// How the console is told to add a bot.
Finding HowToAdd(const std::string& name, BotPlace place,
                 const std::string& files = {});

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_BOT_ON_DISK_H_
