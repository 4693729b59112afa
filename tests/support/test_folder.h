#ifndef FRAGSMITH_TESTS_SUPPORT_TEST_FOLDER_H_
#define FRAGSMITH_TESTS_SUPPORT_TEST_FOLDER_H_

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace fragsmith {

/// Many a test plays a program with a script of the shell, has links made, or
/// counts on names that differ in case alone: that holds where this does.
#ifdef _WIN32
inline constexpr bool kIsUnix = false;
#else
inline constexpr bool kIsUnix = true;
#endif

/// An empty folder of the test's own that goes, with all in it, when this
/// object goes.
class TestFolder {
 public:
  TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;
  ~TestFolder();

  const std::filesystem::path& path() const { return path_; }
  /// The path of a file in it. The name is UTF-8 on every system and has "/".
  std::filesystem::path operator/(std::string_view name) const;

  /// Writes a file, makes the folders above it, and gives its path.
  std::filesystem::path Write(std::string_view name,
                              std::string_view bytes) const;

  /// The same with permission to run it.
  std::filesystem::path WriteProgram(std::string_view name,
                                     std::string_view bytes) const;

  /// True when the path is that of the file with this name; where the system
  /// ignores case, in whatever case.
  bool Is(const std::optional<std::filesystem::path>& path,
          std::string_view name) const;

  /// The bytes of a file; fails the test when there is none.
  std::string Read(std::string_view name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_SUPPORT_TEST_FOLDER_H_
