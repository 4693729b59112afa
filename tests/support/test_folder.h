#ifndef FRAGSMITH_TESTS_SUPPORT_TEST_FOLDER_H_
#define FRAGSMITH_TESTS_SUPPORT_TEST_FOLDER_H_

#include <filesystem>
#include <string>
#include <string_view>

namespace fragsmith {

/// An empty folder of the test's own that goes, with all in it, when this
/// object goes.
class TestFolder {
 public:
  TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;
  ~TestFolder();

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const {
    return path_ / name;
  }

  /// Writes a file, makes the folders above it, and gives its path.
  std::filesystem::path Write(std::string_view name,
                              std::string_view bytes) const;

  /// The same with permission to run it.
  std::filesystem::path WriteProgram(std::string_view name,
                                     std::string_view bytes) const;

  /// The bytes of a file; fails the test when there is none.
  std::string Read(std::string_view name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_SUPPORT_TEST_FOLDER_H_
