#ifndef FRAGSMITH_INSTALL_PACKAGES_PACKAGE_H_
#define FRAGSMITH_INSTALL_PACKAGES_PACKAGE_H_

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {

/// Names of all entries in the order of the package's table of contents,
/// folders with a "/" at their end. A name with a line end in it could be
/// taken for two: it is left out with a note.
Result<std::vector<std::string>> ListPackageEntries(
    const std::filesystem::path& path, Notes& notes);

/// The same as one text, a line for each name, each ended by CR LF.
Result<std::string> ListPackage(const std::filesystem::path& path,
                                Notes& notes);

/// The most that one file taken out of a package may unpack to.
inline constexpr std::size_t kMaxUnpackedBytes = std::size_t{64} << 20U;

enum class PackageReading {
  kStrict,
  kAsGame,  ///< Damaged files as they are, and nothing in those that the game
            ///< cannot unpack.
};

/// The contents of one file in the package. The name is looked for exactly,
/// then ignoring case, and of several the last counts; "/" and "\" are the
/// same.
Result<std::string> ReadPackageEntry(
    const std::filesystem::path& path, std::string_view name,
    std::size_t limit = kMaxUnpackedBytes,
    PackageReading reading = PackageReading::kStrict);

/// Why the game reads a file of a package otherwise than others do.
struct EntryFault {
  enum class Kind {
    kUnopened,    ///< Of the whole package: the game finds no contents in it.
    kUnreadable,  ///< It cannot unpack it.
    kTwice,       ///< A later one of that name counts.
    kDamaged,  ///< It has another checksum, for which the game does not look.
  };
  Kind kind;
  std::string name;  ///< As it is spelt in the package.
  /// How a kUnreadable was packed, such as "by the method LZMA", for
  /// Localized().
  std::string_view method;
  bool is_locked = false;  ///< A kUnreadable: it needs a password.
};

/// The faults of the wanted files, given their names, that unpack to no more
/// than the limit.
Result<std::vector<EntryFault>> FindEntryFaults(
    const std::filesystem::path& path, std::size_t limit,
    const std::function<bool(std::string_view)>& is_wanted);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PACKAGES_PACKAGE_H_
