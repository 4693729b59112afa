#ifndef FRAGSMITH_SESSION_LISTED_DESCRIPTION_H_
#define FRAGSMITH_SESSION_LISTED_DESCRIPTION_H_

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace fragsmith {

/// True where a description holds the bot whose files are called so, and under
/// this name where one is given. With a name alone the files do not matter.
bool IsDescribed(std::string_view description, std::string_view called,
                 std::string_view name = {});

/// Of a folder's descriptions the one that holds the bot whose files are called
/// so, and under this name where one is given: the list of bots, which the game
/// reads first, or one that is called otherwise.
std::optional<std::filesystem::path> FindListed(
    const std::filesystem::path& folder, std::string_view called,
    std::string_view name = {});

/// The same for a characteristic file, where the descriptions beside it lie: in
/// the game's layout in another folder.
std::optional<std::filesystem::path> FindListedBeside(
    const std::filesystem::path& character, std::string_view called,
    std::string_view name);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_LISTED_DESCRIPTION_H_
