#ifndef FRAGSMITH_INSTALL_PACKAGES_ZIP_ARCHIVE_H_
#define FRAGSMITH_INSTALL_PACKAGES_ZIP_ARCHIVE_H_

// The zip library's archives as our own code holds them; for the package's
// reader and writer alone.

#include <zip.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "support/result.h"

namespace fragsmith {

struct DiscardArchive {
  void operator()(zip_t* archive) const { ::zip_discard(archive); }
};
struct FreeSource {
  void operator()(zip_source_t* source) const { ::zip_source_free(source); }
};
using ZipArchive = std::unique_ptr<zip_t, DiscardArchive>;
using ZipSource = std::unique_ptr<zip_source_t, FreeSource>;

Error PackageError(std::string what, const std::filesystem::path& path);

/// What the error says; it is of no use afterwards.
std::string TextOf(zip_error_t* error);

/// For reading. Refuses what is no file and what would take too long to open.
Result<ZipArchive> OpenArchive(const std::filesystem::path& path);

std::uint64_t CountEntries(zip_t* archive);

/// The name in the archive's own bytes; empty where there is none.
std::string_view EntryNameOf(zip_t* archive, std::uint64_t index);

/// With the "/" that the game puts for "\".
std::string WithSlashes(std::string_view name);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PACKAGES_ZIP_ARCHIVE_H_
