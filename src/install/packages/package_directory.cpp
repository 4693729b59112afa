#include "install/packages/package_directory.h"

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
constexpr std::size_t kOffsetInEnd = 16;
constexpr std::size_t kMaxComment = 65535;
constexpr std::string_view kEntryMark = "PK\x01\x02";
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
  if (size <= kMaxDirectoryBytes) return true;
  std::ifstream file(path, std::ios::binary);
  constexpr std::size_t kTailBytes = kLocatorBytes + kEndBytes + kMaxComment;
  const std::string tail = ReadAt(file, size - kTailBytes, kTailBytes);
  if (tail.size() < kTailBytes) return false;
  // Which of several end records counts is the library's choice: none of them
  // may be too large.
  for (std::size_t end = tail.find(kEndMark);
       end != std::string::npos && end + kEndBytes <= tail.size();
       end = tail.find(kEndMark, end + 1)) {
    const std::uint64_t claimed = NumberAt(tail, end + kSizeInEnd, 4);
    constexpr std::uint64_t kInLongRecord = 0xFFFFFFFF;
    if (claimed > kMaxDirectoryBytes && claimed != kInLongRecord) return false;
    if (LongSize(file, tail, end) > kMaxDirectoryBytes) return false;
  }
  return true;
}

std::optional<std::uint64_t> BytesInFront(const std::filesystem::path& path) {
  std::error_code reason;
  const std::uint64_t size = std::filesystem::file_size(path, reason);
  if (reason) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  const auto read_tail = [&file, size](std::size_t most) {
    const auto bytes =
        static_cast<std::size_t>(std::min<std::uint64_t>(size, most));
    return ReadAt(file, size - bytes, bytes);
  };
  // Hardly any package has a comment: its end is then the end of the file.
  std::string tail = read_tail(kEndBytes);
  if (tail.rfind(kEndMark) != 0) tail = read_tail(kEndBytes + kMaxComment);
  const std::size_t end = tail.rfind(kEndMark);
  if (end == std::string::npos || end + kEndBytes > tail.size()) {
    return std::nullopt;
  }
  const std::uint64_t directory = NumberAt(tail, end + kSizeInEnd, 4);
  const std::uint64_t claimed =
      directory + NumberAt(tail, end + kOffsetInEnd, 4);
  const std::uint64_t above = size - tail.size() + end;
  if (claimed > above) return std::nullopt;
  const bool has_entries =
      directory == 0 ||
      ReadAt(file, above - directory, kEntryMark.size()) == kEntryMark;
  return has_entries ? std::optional(above - claimed) : std::nullopt;
}

}  // namespace fragsmith
