#ifndef FRAGSMITH_TESTS_SUPPORT_PACKAGE_MAKER_H_
#define FRAGSMITH_TESTS_SUPPORT_PACKAGE_MAKER_H_

#include <cstdint>
#include <string>
#include <vector>

namespace fragsmith {

struct TestEntry {
  std::string name;
  std::string bytes;
  // What a package may hold besides, in the table of contents.
  std::string extra = {};
  std::string comment = {};
  std::uint32_t attributes = 0;
};

/// A zip archive of the entries, not compressed. It is put together byte by
/// byte, so that names may be as wrong as a test wants them, also several
/// times the same.
std::string MakeZip(const std::vector<TestEntry>& entries,
                    const std::string& comment = {});

/// The same of empty files.
std::string MakeZipOfNames(const std::vector<std::string>& names);

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_SUPPORT_PACKAGE_MAKER_H_
