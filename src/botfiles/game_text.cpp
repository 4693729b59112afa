#include "botfiles/game_text.h"

#include <cstddef>
#include <optional>

#include "botfiles/value_format.h"
#include "support/numbers.h"

namespace fragsmith {

std::string CommentStripper::Strip(std::string_view line) {
  std::string kept;
  bool is_quoted = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    const std::string_view pair = line.substr(at, 2);
    if (is_inside_block_) {
      if (pair == "*/") {
        is_inside_block_ = false;
        // A comment parts what stands before and behind it.
        kept += ' ';
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
    kept += line[at];
  }
  return kept;
}

std::string_view FirstToken(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t");
  if (start == std::string_view::npos) return {};
  text.remove_prefix(start);
  if (text.front() != '"') return text.substr(0, text.find_first_of(" \t"));
  const std::size_t close = text.find('"', 1);
  return close == std::string_view::npos ? text : text.substr(0, close + 1);
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
  return ShortDecimal(*fraction) == ShortDecimal(static_cast<float>(*number));
}

}  // namespace fragsmith
