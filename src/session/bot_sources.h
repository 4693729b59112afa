#ifndef FRAGSMITH_SESSION_BOT_SOURCES_H_
#define FRAGSMITH_SESSION_BOT_SOURCES_H_

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "install/program/bot_list.h"
#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {

/// The name of the bot whose characteristic file this is; nothing when the
/// file's name does not end as one does, whatever the case.
std::optional<std::string> BotNameOfFile(const std::filesystem::path& file);

/// Names of the bots that have a characteristic file in the folder, sorted by
/// their files.
std::vector<std::string> BotNamesIn(const std::filesystem::path& folder);

/// The bots of one package alone, sorted. Odd entries are noted.
Result<BotList> BotsInPackage(const std::filesystem::path& package,
                              Notes& notes);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_BOT_SOURCES_H_
