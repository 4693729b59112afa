#ifndef FRAGSMITH_INSTALL_PACKAGES_PACKAGE_DIRECTORY_H_
#define FRAGSMITH_INSTALL_PACKAGES_PACKAGE_DIRECTORY_H_

#include <cstdint>
#include <filesystem>
#include <optional>

namespace fragsmith {

/// The largest table of contents of a package that is read; the zip library
/// needs some six times as much memory. Real ones stay below one MiB.
inline constexpr std::uint64_t kMaxDirectoryBytes = std::uint64_t{16} << 20U;

/// False when the package claims a larger table of contents than that, or
/// when its end cannot be read.
bool HasBoundedDirectory(const std::filesystem::path& path);

/// How many bytes stand in front of the archive that its offsets do not count,
/// as in one that unpacks itself. As the game looks: nothing where what looks
/// like the end of the archive leads to no table of contents, such as the same
/// bytes in a comment.
std::optional<std::uint64_t> BytesInFront(const std::filesystem::path& path);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PACKAGES_PACKAGE_DIRECTORY_H_
