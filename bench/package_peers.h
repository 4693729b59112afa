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

/// The floor: the fewest system calls that can give the names. It believes
/// what the packages say and knows no comment at their end, so it is good for
/// the packages made here alone.
Listing WalkDirectories(const std::filesystem::path& packages);

Listing ListByLibzip(const std::filesystem::path& packages);
Listing ListByLibarchive(const std::filesystem::path& packages);
Listing ListByMinizip(const std::filesystem::path& packages);

/// zipinfo -1, started once for all packages, its output thrown away. False
/// when it fails.
bool ListByZipinfo(const std::filesystem::path& packages);

}  // namespace fragsmith::bench

#endif  // FRAGSMITH_BENCH_PACKAGE_PEERS_H_
