#ifndef FRAGSMITH_TESTS_SUPPORT_PACKAGE_MAKER_H_
#define FRAGSMITH_TESTS_SUPPORT_PACKAGE_MAKER_H_

#include <string>
#include <vector>

namespace fragsmith {

struct TestEntry {
  std::string name;
  std::string bytes;
};

/// A zip archive of the entries, not compressed. It is put together byte by
/// byte, so that names may be as wrong as a test wants them, also several
/// times the same.
std::string MakeZip(const std::vector<TestEntry>& entries);

/// The same of empty files.
std::string MakeZipOfNames(const std::vector<std::string>& names);

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_SUPPORT_PACKAGE_MAKER_H_
