#include "install/package_directory.h"

#include <algorithm>
#include <fstream>
#include <ios>
#include <string>
#include <string_view>
#include <system_error>

namespace fragsmith {
namespace {

// The end record of a zip archive, which a comment of up to 65535 bytes may
// follow, and the longer record that stands for it in large archives. All
// numbers begin with their lowest byte.
constexpr std::string_view kEndMark = "PK\x05\x06";
constexpr std::size_t kEndBytes = 22;
constexpr std::size_t kSizeInEnd = 12;
constexpr std::string_view kLocatorMark = "PK\x06\x07";
constexpr std::size_t kLocatorBytes = 20;
constexpr std::size_t kOffsetInLocator = 8;
constexpr std::size_t kLongEndBytes = 56;
constexpr std::size_t kSizeInLongEnd = 40;

std::uint64_t NumberAt(std::string_view bytes, std::size_t at,
                       std::size_t count) {
  std::uint64_t number = 0;
  for (std::size_t index = count; index-- > 0;) {
    number = number << 8U | static_cast<unsigned char>(bytes[at + index]);
  }
  return number;
}

std::string ReadAt(std::ifstream& file, std::uint64_t offset,
                   std::size_t count) {
  std::string bytes(count, '\0');
  file.clear();
  file.seekg(static_cast<std::streamoff>(offset));
  file.read(bytes.data(), static_cast<std::streamsize>(count));
  bytes.resize(
      static_cast<std::size_t>(std::max<std::streamsize>(0, file.gcount())));
  return bytes;
}

/// The size in the long record that a locator in front of the end record
/// points to; 0 where there is none.
std::uint64_t LongSize(std::ifstream& file, std::string_view tail,
                       std::size_t end) {
  if (end < kLocatorBytes) return 0;
  const std::string_view locator = tail.substr(end - kLocatorBytes);
  if (!locator.starts_with(kLocatorMark)) return 0;
  const std::string record =
      ReadAt(file, NumberAt(locator, kOffsetInLocator, 8), kLongEndBytes);
  if (record.size() < kLongEndBytes) return 0;
  return NumberAt(record, kSizeInLongEnd, 8);
}

}  // namespace

bool HasBoundedDirectory(const std::filesystem::path& path) {
  std::error_code reason;
  const std::uintmax_t size = std::filesystem::file_size(path, reason);
  if (reason) return false;
  if (size <= kMostDirectoryBytes) return true;
  std::ifstream file(path, std::ios::binary);
  constexpr std::size_t kTailBytes = kLocatorBytes + kEndBytes + 65535;
  const std::string tail = ReadAt(file, size - kTailBytes, kTailBytes);
  if (tail.size() < kTailBytes) return false;
  // Which of several end records counts is the library's choice: none of them
  // may be too large.
  for (std::size_t end = tail.find(kEndMark);
       end != std::string::npos && end + kEndBytes <= tail.size();
       end = tail.find(kEndMark, end + 1)) {
    const std::uint64_t claimed = NumberAt(tail, end + kSizeInEnd, 4);
    constexpr std::uint64_t kInLongRecord = 0xFFFFFFFF;
    if (claimed > kMostDirectoryBytes && claimed != kInLongRecord) return false;
    if (LongSize(file, tail, end) > kMostDirectoryBytes) return false;
  }
  return true;
}

}  // namespace fragsmith
