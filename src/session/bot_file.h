#ifndef FRAGSMITH_SESSION_BOT_FILE_H_
#define FRAGSMITH_SESSION_BOT_FILE_H_

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "model/file_names.h"

namespace fragsmith {

/// The largest of a bot's files that is read. Real ones have some kilobytes,
/// and a file of nothing but short chat lines takes forty times its size in
/// memory until it is printed.
inline constexpr std::size_t kMaxBotFileBytes = std::size_t{4} << 20U;

/// The package that a bot of this name is put into.
std::string BotPackageName(std::string_view bot_name);

/// The folder in which botfiles/bots lies, where the folder is that or one
/// below it; nothing outside of the layout.
std::optional<std::filesystem::path> LayoutRootOf(
    const std::filesystem::path& folder);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_BOT_FILE_H_
