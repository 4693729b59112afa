#ifndef FRAGSMITH_INSTALL_PACKAGES_PACKAGE_WRITER_H_
#define FRAGSMITH_INSTALL_PACKAGES_PACKAGE_WRITER_H_

#include <filesystem>
#include <map>
#include <string>
#include <vector>

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

/// The package with other contents of files, by their names in any case and
/// with either slash. All else in it stays as it is, packed data and dates
/// too. A name that is not there, or several times, is refused.
Result<std::string> PackageWith(
    const std::filesystem::path& path,
    const std::map<std::string, std::string>& contents);

/// Puts that in the place of the package.
Result<void> ReplacePackageEntries(
    const std::filesystem::path& path,
    const std::map<std::string, std::string>& contents);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PACKAGES_PACKAGE_WRITER_H_
