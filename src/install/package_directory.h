#ifndef FRAGSMITH_INSTALL_PACKAGE_DIRECTORY_H_
#define FRAGSMITH_INSTALL_PACKAGE_DIRECTORY_H_

#include <cstdint>
#include <filesystem>

namespace fragsmith {

/// The largest table of contents of a package that is read; the zip library
/// needs some six times as much memory. Real ones stay below one MiB.
inline constexpr std::uint64_t kMostDirectoryBytes = std::uint64_t{16} << 20U;

/// False when the package claims a larger table of contents than that, or
/// when its end cannot be read.
bool HasBoundedDirectory(const std::filesystem::path& path);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PACKAGE_DIRECTORY_H_
