#include "botfiles/game_text.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "botfiles/value_format.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {

std::string_view WithoutByteOrderMark(std::string_view bytes) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kMark)) bytes.remove_prefix(kMark.size());
  return bytes;
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
                 const char lower = ToLower(letter);
                 return (lower >= 'a' && lower <= 'z') ||
                        (lower >= '0' && lower <= '9') ||
                        static_cast<unsigned char>(lower) >= 0x80;
               });
}

std::string_view TakeWord(std::string_view& code) {
  code = TrimBlanksAndTabs(code);
  std::size_t length = 0;
  if (code.starts_with('"')) {
    length = code.find('"', 1);
    if (length != std::string_view::npos) ++length;
  } else if (code.starts_with('{') || code.starts_with('}')) {
    length = 1;
  } else {
    length = code.find_first_of(" \t{}");
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
