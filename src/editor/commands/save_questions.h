#ifndef FRAGSMITH_EDITOR_COMMANDS_SAVE_QUESTIONS_H_
#define FRAGSMITH_EDITOR_COMMANDS_SAVE_QUESTIONS_H_

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace fragsmith {

// What is said and asked before a save, about one file or several.

std::string NotRead(const std::vector<std::filesystem::path>& paths);

std::string IsThere(const std::filesystem::path& path);

/// By the names of bots that are described in the same file.
std::string OtherBotsGo(const std::string& names);

std::string MayBeReplaced(std::size_t count);

std::string MayBeOverwritten(const std::vector<std::filesystem::path>& changed);

/// Of files in which nothing was edited here.
std::string EditedByOthersAlone(
    const std::vector<std::filesystem::path>& changed);

std::string MayBeMadeAnew(const std::vector<std::filesystem::path>& gone,
                          bool is_package);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_SAVE_QUESTIONS_H_
