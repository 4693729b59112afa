#include "tests/support/test_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;

TestFolder::TestFolder() {
  std::random_device random;
  path_ = fs::canonical(fs::temp_directory_path()) /
          ("fragsmith-test-" + std::to_string(random()) + "-" +
           std::to_string(random()));
  EXPECT_TRUE(fs::create_directory(path_));
}

TestFolder::~TestFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

fs::path TestFolder::operator/(std::string_view name) const {
  return (path_ / PathFromBytes(name)).make_preferred();
}

fs::path TestFolder::Write(std::string_view name,
                           std::string_view bytes) const {
  fs::path path = *this / name;
  fs::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  EXPECT_TRUE(file.good()) << path;
  return path;
}

fs::path TestFolder::WriteProgram(std::string_view name,
                                  std::string_view bytes) const {
  fs::path path = Write(name, bytes);
  fs::permissions(path, fs::perms::owner_all);
  return path;
}

bool TestFolder::Is(const std::optional<fs::path>& path,
                    std::string_view name) const {
  if (kIsUnix || !path) return path == *this / name;
  std::error_code ignored;
  return fs::equivalent(*path, *this / name, ignored);
}

std::string TestFolder::Read(std::string_view name) const {
  std::ifstream file(*this / name, std::ios::binary);
  EXPECT_TRUE(file.good()) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace fragsmith
