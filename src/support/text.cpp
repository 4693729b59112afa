#include "support/text.h"

#include <algorithm>
#include <array>

namespace fragsmith {
namespace {

constexpr std::array<char, 256> MakeLowerTable() {
  std::array<char, 256> table{};
  for (int code = 0; code < 256; ++code) {
    int lower = code;
    const bool is_ascii = code >= 'A' && code <= 'Z';
    const bool is_latin = code >= 0xC0 && code <= 0xDE && code != 0xD7;
    if (is_ascii || is_latin) lower = code + 0x20;
    if (code == 0x8A || code == 0x8C || code == 0x8E) lower = code + 0x10;
    if (code == 0x9F) lower = 0xFF;
    table.at(static_cast<std::size_t>(code)) = static_cast<char>(lower);
  }
  return table;
}

constexpr std::array<char, 256> MakeUpperTable() {
  const std::array<char, 256> lower = MakeLowerTable();
  std::array<char, 256> table{};
  for (std::size_t code = 0; code < 256; ++code) {
    table.at(code) = static_cast<char>(code);
  }
  for (std::size_t code = 0; code < 256; ++code) {
    const auto to = static_cast<unsigned char>(lower.at(code));
    if (to != code) table.at(to) = static_cast<char>(code);
  }
  return table;
}

constexpr std::array<char, 256> kLower = MakeLowerTable();
constexpr std::array<char, 256> kUpper = MakeUpperTable();

std::string Without(std::string_view text, char unwanted) {
  std::string kept(text);
  std::erase(kept, unwanted);
  return kept;
}

template <typename Unwanted>
std::string_view Trim(std::string_view text, Unwanted unwanted) {
  while (!text.empty() && unwanted(text.front())) text.remove_prefix(1);
  while (!text.empty() && unwanted(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace

std::string RemoveTabs(std::string_view text) { return Without(text, '\t'); }

std::string RemoveBlanks(std::string_view text) { return Without(text, ' '); }

std::string_view TrimBlanks(std::string_view text) {
  return Trim(text, [](char letter) { return letter == ' '; });
}

std::string_view TrimBlanksAndTabs(std::string_view text) {
  return Trim(text,
              [](char letter) { return letter == ' ' || letter == '\t'; });
}

char ToLower(char letter) { return kLower[static_cast<unsigned char>(letter)]; }

char ToUpper(char letter) { return kUpper[static_cast<unsigned char>(letter)]; }

std::string ToLower(std::string_view text) {
  std::string lower(text);
  for (char& letter : lower) letter = ToLower(letter);
  return lower;
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return ToLower(a) == ToLower(b); });
}

bool EndsWithIgnoringCase(std::string_view text, std::string_view end) {
  return text.size() >= end.size() &&
         EqualIgnoringCase(text.substr(text.size() - end.size()), end);
}

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

std::optional<std::string_view> LineReader::Next() {
  if (offset_ == bytes_.size()) return std::nullopt;
  ++number_;
  const std::string_view line = bytes_.substr(offset_, line_feed_ - offset_);
  const std::size_t length = std::min(line.find('\r'), line.size());
  offset_ += length;
  // At the line's end now: skip the CR, then the LF.
  if (length < line.size()) ++offset_;
  if (offset_ == line_feed_) {
    ++offset_;
    line_feed_ = bytes_.find('\n', offset_);
  }
  return line.substr(0, length);
}

}  // namespace fragsmith
