#ifndef FRAGSMITH_INSTALL_PACKAGE_H_
#define FRAGSMITH_INSTALL_PACKAGE_H_

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {

/// A file inside a package. Names are raw bytes with "/" between folders.
struct PackageEntry {
  std::string name;
  std::string bytes;
};

/// The package as the bytes of a zip archive, its entries in the given order.
Result<std::string> FormatPackage(const std::vector<PackageEntry>& entries);

/// Puts the package in the place of the file.
Result<void> WritePackage(const std::filesystem::path& path,
                          const std::vector<PackageEntry>& entries);

/// Names of all entries in the order of the package's table of contents,
/// folders with a "/" at their end. A name with a line end in it could be
/// taken for two: it is left out with a note.
Result<std::vector<std::string>> ListPackageEntries(
    const std::filesystem::path& path, Notes& notes);

/// The same as one text, a line for each name, each ended by CR LF.
Result<std::string> ListPackage(const std::filesystem::path& path,
                                Notes& notes);

/// The most that one file taken out of a package may unpack to.
inline constexpr std::size_t kMostUnpackedBytes = std::size_t{64} << 20U;

/// The contents of one file in the package. The name is looked for exactly,
/// then ignoring case; "/" and "\" are the same.
Result<std::string> ReadPackageEntry(const std::filesystem::path& path,
                                     std::string_view name,
                                     std::size_t limit = kMostUnpackedBytes);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PACKAGE_H_
