#include "botfiles/game_text.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "botfiles/value_format.h"
#include "support/numbers.h"

namespace fragsmith {

std::string_view CommentStripper::Strip(std::string_view line) {
  if (!is_inside_block_ && line.find('/') == std::string_view::npos) {
    return line;
  }
  kept_.clear();
  bool is_quoted = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    const std::string_view pair = line.substr(at, 2);
    if (is_inside_block_) {
      if (pair == "*/") {
        is_inside_block_ = false;
        // A comment parts what stands before and behind it.
        kept_ += ' ';
        ++at;
      }
      continue;
    }
    if (!is_quoted && pair == "//") break;
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
