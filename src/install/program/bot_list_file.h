#ifndef FRAGSMITH_INSTALL_PROGRAM_BOT_LIST_FILE_H_
#define FRAGSMITH_INSTALL_PROGRAM_BOT_LIST_FILE_H_

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "install/program/bot_list.h"
#include "install/program/damaged_file.h"
#include "support/prompts.h"
#include "support/result.h"

namespace fragsmith {

/// Name of the file in the program folder.
inline constexpr std::string_view kBotListFile = "fgs_bots";

/// The bots before the first record that is none.
struct ParsedBotList {
  std::vector<BotListEntry> bots;
  bool has_error = false;
};

ParsedBotList ParseBotList(std::string_view bytes);

/// The bots that are not the game's own; empty when there is none.
std::string FormatBotList(const BotList& bots);

/// Adds the bots of the file, where there is one, and sorts the list then.
void LoadUserBots(const std::filesystem::path& program_folder, BotList& bots,
                  Prompts& prompts);

/// Writes the file when there is something to write.
Result<void> SaveUserBots(const std::filesystem::path& program_folder,
                          const BotList& bots,
                          EmptyList empty = EmptyList::kKeepsOldFile);

/// The list of a start: the game's bots and the user's, sorted.
BotList BuildStandardBotList(const std::filesystem::path& program_folder,
                             Prompts& prompts);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_BOT_LIST_FILE_H_
