#ifndef FRAGSMITH_SESSION_BOT_FILE_H_
#define FRAGSMITH_SESSION_BOT_FILE_H_

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace fragsmith {

/// The five files of a bot, by the numbers that the menu has for them.
enum class BotFile {
  kDescription = 0,
  kCharacteristics = 1,
  kChat = 2,
  kItemWeights = 3,
  kWeaponWeights = 4,
};

/// The largest of a bot's files that is read. Real ones have some kilobytes,
/// and a file of nothing but short chat lines takes forty times its size in
/// memory until it is printed.
inline constexpr std::size_t kMaxBotFileBytes = std::size_t{4} << 20U;

/// How the name of a bot's file goes on behind the bot's name.
std::string_view FileSuffix(BotFile file);

/// The name behind which a path of the game's layout begins; compared with
/// its case, on every system with "/".
inline constexpr std::string_view kBotFilesFolder = "botfiles/bots";
inline constexpr std::string_view kScriptsFolder = "scripts";
/// The list of bots, in that folder.
inline constexpr std::string_view kBotList = "bots.txt";

/// The package that a bot of this name is put into.
std::string BotPackageName(std::string_view bot_name);

/// The folder in which botfiles/bots lies, where the folder is that or one
/// below it; nothing outside of the layout.
std::optional<std::filesystem::path> LayoutRootOf(
    const std::filesystem::path& folder);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_BOT_FILE_H_
