#ifndef FRAGSMITH_SUPPORT_SYSTEM_REGULAR_FILE_H_
#define FRAGSMITH_SUPPORT_SYSTEM_REGULAR_FILE_H_

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace fragsmith::system {

/// The bytes of a regular file that has at most as many, with as few calls of
/// the system as it takes. Nothing for any other file, where something fails,
/// and on systems where the standard library does as well.
std::optional<std::string> ReadRegularFile(const std::filesystem::path& path,
                                           std::size_t limit);

}  // namespace fragsmith::system

#endif  // FRAGSMITH_SUPPORT_SYSTEM_REGULAR_FILE_H_
