#include "checks/file_description.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::size_t kTooLarge = 8192;
constexpr std::size_t kMostToken = 1023;
constexpr std::size_t kMostSets = 1024;
constexpr std::size_t kMostSet = 1023;

/// Takes words apart as the game does in all files but the .c ones: up to a
/// blank, or between quotes without escapes.
class WordReader {
 public:
  explicit WordReader(std::string_view bytes)
      : bytes_(bytes.substr(0, bytes.find('\0'))) {}

  int line() const { return line_; }
  bool has_open_quote() const { return has_open_quote_; }

  /// The next word, empty at the end. When it must stand on the same line and
  /// does not, it is empty as well and stays to be read.
  std::string Next(bool same_line) {
    const int start = line_;
    SkipBlanks();
    if (same_line && line_ > start) return {};
    if (place_ >= bytes_.size()) return {};
    std::size_t end = place_;
    if (bytes_[place_] == '"') {
      end = bytes_.find('"', ++place_);
      has_open_quote_ = end == std::string_view::npos;
      end = std::min(end, bytes_.size());
    } else {
      while (end < bytes_.size() && !IsBlank(bytes_[end])) ++end;
    }
    std::string word(bytes_.substr(place_, end - place_));
    line_ += static_cast<int>(std::count(word.begin(), word.end(), '\n'));
    place_ = end + (end < bytes_.size() && bytes_[end] == '"' ? 1 : 0);
    // The game drops what it has no room for.
    return word.size() > kMostToken ? std::string() : word;
  }

  bool at_end() {
    SkipBlanks();
    return place_ >= bytes_.size();
  }

 private:
  static bool IsBlank(char letter) {
    const auto byte = static_cast<unsigned char>(letter);
    return byte <= ' ' || byte >= 128;
  }

  void SkipBlanks() {
    while (place_ < bytes_.size()) {
      const std::string_view rest = bytes_.substr(place_);
      std::size_t length = 0;
      if (IsBlank(rest[0])) {
        length = 1;
      } else if (rest.starts_with("//")) {
        length = std::min(rest.find('\n'), rest.size());
      } else if (rest.starts_with("/*")) {
        length = rest.find("*/", 2);
        length = length == std::string_view::npos ? rest.size() : length + 2;
      } else {
        return;
      }
      line_ += static_cast<int>(
          std::count(rest.begin(),
                     rest.begin() + static_cast<std::ptrdiff_t>(length), '\n'));
      place_ += length;
    }
  }

  std::string_view bytes_;
  std::size_t place_ = 0;
  int line_ = 1;
  bool has_open_quote_ = false;
};

bool IsThrownAway(std::string_view text) {
  return text.find_first_of(";\\\"") != std::string_view::npos;
}

/// Reads up to the "}"; without one, to the end of the file.
DescriptionSet ReadSet(WordReader& words, const GameFile& file,
                       FileFindings& findings) {
  DescriptionSet set;
  set.line = words.line();
  std::size_t size = 0;
  int line = 0;
  const auto complain = [&](std::string_view id, Severity severity,
                            std::string text) {
    findings.Add(id, severity, file.name, line, std::move(text));
  };
  while (true) {
    const bool is_end = words.at_end();
    const std::string key = words.Next(false);
    line = words.line();
    if (key == "}") break;
    if (is_end) {
      complain("description-brace", Severity::kHint,
               "The } at the end is missing; the game does not mind.");
      break;
    }
    std::string value = words.Next(true);
    if (words.has_open_quote()) {
      complain("description-quote", Severity::kError,
               "The quotation mark in this line is never closed: the game "
               "takes the rest of the file for the value of " +
                   Quoted(key) +
                   ", and what it read before besides. Close it.");
    }
    if (value.empty()) {
      value = kNoDescriptionValue;
      complain("description-no-value", Severity::kWarning,
               "There is no value behind " + Quoted(key) +
                   " on its line, so the game takes <NULL> for it. Write the "
                   "value behind it or remove the line.");
    }
    size += key.size() + value.size() + 2;
    if (IsThrownAway(key) || IsThrownAway(value) || size > kMostSet) {
      complain("description-sign", Severity::kError,
               size > kMostSet
                   ? "This line does not fit into the 1023 characters that the "
                     "game keeps of a bot, and is lost. Shorten the values."
                   : "The game throws this line away, because " + Quoted(key) +
                         " or its value holds a ;, a \\ or a \". Remove the "
                         "sign; in a path write / for \\.");
      continue;
    }
    set.values[ToLower(key)] = {std::move(value), line};
  }
  return set;
}

}  // namespace

std::string_view DescriptionSet::Text(std::string_view key) const {
  const auto found = values.find(key);
  return found == values.end() ? std::string_view() : found->second.text;
}

int DescriptionSet::Line(std::string_view key) const {
  const auto found = values.find(key);
  return found == values.end() ? line : found->second.line;
}

std::vector<DescriptionSet> ReadGameDescription(const GameFile& file,
                                                FileFindings& findings) {
  std::vector<DescriptionSet> sets;
  if (file.bytes.size() >= kTooLarge) {
    findings.Add("description-too-large", Severity::kError, file.name, 0,
                 "The file has 8192 bytes or more, and the game does not read "
                 "it at all. Shorten it, for example its comments.");
    return sets;
  }
  WordReader words(file.bytes);
  while (!words.at_end() && sets.size() < kMostSets) {
    const std::string word = words.Next(false);
    if (word != "{") {
      findings.Add("description-brace", Severity::kError, file.name,
                   words.line(),
                   "The game expects { here but finds " + Quoted(word) +
                       ", and passes over the rest of the file. Each bot's "
                       "lines stand between { and }.");
      break;
    }
    sets.push_back(ReadSet(words, file, findings));
  }
  return sets;
}

}  // namespace fragsmith
