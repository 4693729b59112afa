#ifndef FRAGSMITH_SUPPORT_FILES_H_
#define FRAGSMITH_SUPPORT_FILES_H_

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/result.h"

namespace fragsmith {

/// The most that is read of any one file. Real bot files have some kilobytes;
/// the bound keeps a wrong or hostile file from filling the memory.
inline constexpr std::size_t kMaxFileBytes = std::size_t{64} << 20U;

/// The whole file. Fails on what is no regular file and on one beyond the
/// limit.
Result<std::string> ReadFile(const std::filesystem::path& path,
                             std::size_t limit = kMaxFileBytes);

/// Puts the bytes in the place of the file: written to a temporary file in
/// the same folder, flushed, then renamed. Whatever fails, the file is either
/// the old or the new one, whole.
Result<void> SaveFile(const std::filesystem::path& path,
                      std::string_view bytes);

/// File names are in the platform's encoding on disk and 8-bit text in the
/// core. The second gives nothing for a name that the code page lacks.
std::filesystem::path PathFromGameText(std::string_view text);
std::optional<std::string> GameTextFromPath(const std::filesystem::path& path);

/// A path for messages and results, as UTF-8.
std::string Utf8FromPath(const std::filesystem::path& path);

/// A path from the bytes in which a setting or an argument holds it.
std::filesystem::path PathFromBytes(std::string_view bytes);
std::string BytesFromPath(const std::filesystem::path& path);

/// True for a text that can be the name of one file in a folder: not empty,
/// no path separator, no control character, neither "." nor "..".
bool IsFileName(std::string_view name);

/// Whether names of files that differ in case alone are two on this system.
#ifdef _WIN32
inline constexpr bool kCaseCounts = false;
#else
inline constexpr bool kCaseCounts = true;
#endif

/// Characters that a file name cannot have on this system, besides control
/// characters.
extern const std::string_view kForbiddenInFileNames;

/// The file of this name (8-bit text) in the folder: the exact spelling, else
/// one that differs in case alone (the game's files come from Windows).
std::optional<std::filesystem::path> FindFile(
    const std::filesystem::path& folder, std::string_view name);

/// Names of the regular files of the folder whose names end in the suffix,
/// case ignored, sorted ignoring case as on the game's own system (names that
/// differ in case alone in ordinal order). Empty when the folder cannot be
/// read.
std::vector<std::filesystem::path> ListFiles(
    const std::filesystem::path& folder, std::string_view suffix);

/// True for an existing regular file or folder; false when in doubt.
bool IsFile(const std::filesystem::path& path);
bool IsFolder(const std::filesystem::path& path);

/// The path as it stands from the root, without "." and "..". An empty one is
/// the folder where the program works; where that is gone, nothing is added.
std::filesystem::path WholePath(const std::filesystem::path& path);

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_FILES_H_
