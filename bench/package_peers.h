#ifndef FRAGSMITH_BENCH_PACKAGE_PEERS_H_
#define FRAGSMITH_BENCH_PACKAGE_PEERS_H_

#include <cstddef>
#include <filesystem>

// Other ways to list the packages of a folder. Each goes through all files of
// the folder and looks at every name.

namespace fragsmith::bench {

/// How many entries, and how long their names are together: a sum that only
/// comes out right when all names were read.
struct Listing {
  std::size_t entries = 0;
  std::size_t name_bytes = 0;

  bool operator==(const Listing&) const = default;
};

// The floors are walks over the tables of contents that believe what the
// packages say and know no comment at their end: good for the packages that
// are made here, and for nothing else.

/// By the means of the standard library: a file stream, and a string for each
/// name.
Listing WalkPlainly(const std::filesystem::path& packages);

/// By the fewest system calls, with no name kept.
Listing WalkBarely(const std::filesystem::path& packages);

Listing ListByLibzip(const std::filesystem::path& packages);
Listing ListByLibarchive(const std::filesystem::path& packages);
Listing ListByMinizip(const std::filesystem::path& packages);

/// What zipinfo -1 prints, started once for all packages or once for each.
Listing ListByZipinfo(const std::filesystem::path& packages);
Listing ListByZipinfoEach(const std::filesystem::path& packages);

}  // namespace fragsmith::bench

#endif  // FRAGSMITH_BENCH_PACKAGE_PEERS_H_
