#include "botfiles/game_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

#include "botfiles/value_format.h"
#include "support/game_blank.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {

std::string_view WithoutByteOrderMark(std::string_view bytes) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kMark)) bytes.remove_prefix(kMark.size());
  return bytes;
}

namespace {

/// Whether an odd blank may begin with the byte. Without branches, so that the
/// compiler can look at many bytes at once.
bool BeginsOddBlank(char letter) {
  const bool is_control = (letter > 0) & (letter < ' ');
  const bool is_usual = (letter == '\t') | (letter == '\r') | (letter == '\n');
  return (is_control & !is_usual) | (letter == '\xA0') | (letter == '\xC2') |
         (letter == '\xE2') | (letter == '\xE3');
}

bool MayHaveOddBlank(std::string_view bytes) {
  // No bool, with which the compiler takes the bytes one by one.
  unsigned char found = 0;
  for (const char letter : bytes) {
    found = static_cast<unsigned char>(found | BeginsOddBlank(letter));
  }
  return found != 0;
}

/// By byte: whether a word that is no text ends in front of it.
constexpr std::array<bool, 256> kEndsWord = [] {
  std::array<bool, 256> ends{};
  for (std::size_t code = 0; code < ends.size(); ++code) {
    const char letter = static_cast<char>(code);
    ends.at(code) = letter == '{' || letter == '}' || IsGameBlank(letter);
  }
  return ends;
}();

/// How many bytes at the front look like a blank, and are one to the game, but
/// are none of those that people type.
std::size_t OddBlankLength(std::string_view text, char before) {
  constexpr std::array<std::string_view, 7> kUtf8 = {
      "\xC2\xA0",     "\xE2\x80\x82", "\xE2\x80\x83", "\xE2\x80\x89",
      "\xE2\x80\x8B", "\xE2\x80\xAF", "\xE3\x80\x80"};
  for (const std::string_view blank : kUtf8) {
    if (text.starts_with(blank)) return blank.size();
  }
  // Behind another such byte it may be a part of a letter in UTF-8.
  if (text[0] == '\xA0') return (before & 0x80) == 0 ? 1 : 0;
  return text[0] < ' ' && BeginsOddBlank(text[0]) ? 1 : 0;
}

/// By byte: whether a comment that has it says something.
constexpr std::array<bool, 256> kIsOfWord = [] {
  std::array<bool, 256> is_of_word{};
  for (std::size_t code = 0; code < is_of_word.size(); ++code) {
    is_of_word.at(code) = (code >= 'a' && code <= 'z') ||
                          (code >= 'A' && code <= 'Z') ||
                          (code >= '0' && code <= '9') || code >= 0x80;
  }
  return is_of_word;
}();

}  // namespace

std::string WithPlainBlanks(std::string_view bytes, TextsInLine texts) {
  std::string plain(bytes);
  if (!MayHaveOddBlank(bytes)) return plain;
  std::size_t at = 0;
  const auto pass = [&](std::string_view end, std::size_t from) {
    const std::size_t found = bytes.find(end, from);
    at = found == std::string_view::npos ? bytes.size() : found + end.size();
  };
  while (at < bytes.size()) {
    const std::string_view rest = bytes.substr(at);
    if (rest.starts_with("//")) {
      pass("\n", at);
    } else if (rest.starts_with("/*")) {
      pass("*/", at + 2);
    } else if (rest[0] == '"' && texts == TextsInLine::kOne) {
      const std::size_t end = std::min(rest.find('\n'), rest.size());
      const std::size_t last = rest.rfind('"', end);
      at += last == 0 ? end : last + 1;
    } else if (rest[0] == '"') {
      // No text goes beyond its line.
      for (++at; at < bytes.size() && bytes[at] != '"' && bytes[at] != '\n';
           ++at) {
        if (bytes.substr(at).starts_with("\\\"")) ++at;
      }
      ++at;
    } else {
      const char before = at > 0 ? plain[at - 1] : ' ';
      const std::size_t length = OddBlankLength(rest, before);
      plain.replace(at, length, length, ' ');
      at += std::max(length, std::size_t{1});
    }
  }
  return plain;
}

std::string_view CommentStripper::Strip(std::string_view line) {
  line = WithoutByteOrderMark(line);
  had_words_ = false;
  if (!is_inside_block_ && line.find('/') == std::string_view::npos) {
    return line;
  }
  kept_.clear();
  bool is_quoted = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    const std::string_view pair = line.substr(at, 2);
    if (is_inside_block_) {
      const std::size_t end = line.find("*/", at);
      Drop(line.substr(at, end - at));
      if (end == std::string_view::npos) break;
      is_inside_block_ = false;
      // A comment parts what stands before and behind it.
      kept_ += ' ';
      at = end + 1;
      continue;
    }
    if (!is_quoted && pair == "//") {
      Drop(line.substr(at));
      break;
    }
    if (!is_quoted && pair == "/*") {
      is_inside_block_ = true;
      ++at;
      continue;
    }
    if (line[at] == '"') is_quoted = !is_quoted;
    kept_ += line[at];
  }
  return kept_;
}

void CommentStripper::Drop(std::string_view comment) {
  had_words_ = had_words_ ||
               std::any_of(comment.begin(), comment.end(), [](char letter) {
                 return kIsOfWord[static_cast<unsigned char>(letter)];
               });
}

std::string_view TakeWord(std::string_view& code) {
  while (!code.empty() && IsGameBlank(code.front())) code.remove_prefix(1);
  std::size_t length = 0;
  if (code.starts_with('"')) {
    length = code.find('"', 1);
    if (length != std::string_view::npos) ++length;
  } else if (code.starts_with('{') || code.starts_with('}')) {
    length = 1;
  } else {
    const auto* const end =
        std::find_if(code.begin(), code.end(), [](char letter) {
          return kEndsWord[static_cast<unsigned char>(letter)];
        });
    length = static_cast<std::size_t>(end - code.begin());
  }
  const std::string_view word = code.substr(0, length);
  code.remove_prefix(word.size());
  return word;
}

std::string_view WithoutQuotes(std::string_view word) {
  if (word.starts_with('"')) word.remove_prefix(1);
  if (word.ends_with('"')) word.remove_suffix(1);
  return word;
}

std::string_view FirstToken(std::string_view text) {
  const auto is_gap = [](char letter) {
    return letter == ' ' || letter == '\t';
  };
  while (!text.empty() && is_gap(text.front())) text.remove_prefix(1);
  if (text.starts_with('"')) {
    const std::size_t close = text.find('"', 1);
    return close == std::string_view::npos ? text : text.substr(0, close + 1);
  }
  const auto* const end = std::find_if(text.begin(), text.end(), is_gap);
  return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

bool HasOldLineEnds(std::string_view bytes) {
  return Contains(bytes, "\r") && !Contains(bytes, "\n");
}

Value PlainValue(std::string_view token) {
  if (token.empty()) return {};
  const std::optional<double> number = NumberFromText(token);
  return number ? Value(*number) : CleanValue(token);
}

bool IsSameValue(const Value& read, const Value& plain) {
  const auto* number = std::get_if<double>(&plain);
  const auto* fraction = std::get_if<float>(&read);
  if (number == nullptr || fraction == nullptr) return read == plain;
  if (*fraction == static_cast<float>(*number)) return true;
  return ShortDecimal(*fraction) == ShortDecimal(static_cast<float>(*number));
}

}  // namespace fragsmith
