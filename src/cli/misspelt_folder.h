#ifndef FRAGSMITH_CLI_MISSPELT_FOLDER_H_
#define FRAGSMITH_CLI_MISSPELT_FOLDER_H_

#include <filesystem>
#include <string>

#include "cli/command.h"

namespace fragsmith {

/// What botfiles/bots is called in this folder, or in the one that this file or
/// folder of a bot belongs to, where it has other capitals than the game looks
/// for. Empty where it is right, and where capitals do not count.
std::string MisspeltBotsFolder(const std::filesystem::path& source);

/// True, and told, where the game would not find the folder of the bots.
bool TellMisspeltFolder(const std::string& source, CommandContext& context);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_MISSPELT_FOLDER_H_
