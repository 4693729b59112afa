#include "bench/bot_floor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <fstream>

namespace fragsmith::bench {

std::string ReadWhole(const std::filesystem::path& path) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat state = {};
  std::string bytes;
  if (file < 0 || ::fstat(file, &state) != 0) return bytes;
  bytes.resize(static_cast<std::size_t>(state.st_size));
  const ssize_t read = ::read(file, bytes.data(), bytes.size());
  ::close(file);
  bytes.resize(read < 0 ? 0 : static_cast<std::size_t>(read));
  return bytes;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
  }
  return lines;
}

std::vector<std::string> ReadLines(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

std::vector<PlainWord> SplitWords(std::string_view text) {
  constexpr auto kIsBetween = [] {
    std::array<bool, 256> is_between{};
    for (const char sign : std::string_view(" \t\r\n\",;{}")) {
      is_between.at(static_cast<unsigned char>(sign)) = true;
    }
    return is_between;
  }();
  const auto is_between = [&kIsBetween](char letter) {
    return kIsBetween[static_cast<unsigned char>(letter)];
  };
  std::vector<PlainWord> words;
  const char* const end = text.data() + text.size();
  for (const char* at = text.data();;) {
    at = std::find_if_not(at, end, is_between);
    if (at == end) return words;
    const char* const behind = std::find_if(at, end, is_between);
    PlainWord& word = words.emplace_back();
    word.text = std::string_view(at, static_cast<std::size_t>(behind - at));
    std::from_chars(at, behind, word.number);
    at = behind;
  }
}

bool WriteWhole(const std::filesystem::path& target, std::string_view bytes) {
  const std::string temporary = target.string() + ".tmp";
  const int file =
      ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (file < 0) return false;
  const bool is_written = ::write(file, bytes.data(), bytes.size()) ==
                          static_cast<ssize_t>(bytes.size());
  const bool is_flushed = is_written && ::fsync(file) == 0;
  return ::close(file) == 0 && is_flushed &&
         std::rename(temporary.c_str(), target.c_str()) == 0;
}

}  // namespace fragsmith::bench
