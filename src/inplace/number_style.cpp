#include "inplace/number_style.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <vector>

#include "botfiles/value_format.h"
#include "game/lexer.h"
#include "support/numbers.h"

namespace fragsmith {
namespace {

/// More are read as none.
constexpr std::size_t kMaxDigits = 3;

bool IsPlain(std::string_view token) {
  return !token.empty() &&
         token.find_first_not_of("0123456789.") == std::string_view::npos;
}

/// Digits behind the point; nothing without a point.
std::optional<std::size_t> DigitsBehind(std::string_view token) {
  const std::size_t point = token.find('.');
  if (point == std::string_view::npos) return std::nullopt;
  return token.size() - point - 1;
}

struct WrittenNumber {
  std::string key;  ///< The word before it.
  std::string token;
  double number = 0;
};

/// The numbers of the file but for the one there, and those of them that stand
/// behind the same key.
struct NumbersBeside {
  std::vector<WrittenNumber> all;
  std::vector<WrittenNumber> same_key;
};

NumbersBeside FindNumbersBeside(std::string_view bytes, TextSpan span) {
  NumbersBeside numbers;
  std::string key;
  std::string own_key;
  GameLexer lexer(bytes);
  GameToken token;
  while (lexer.Next(token) == GameLexer::Outcome::kToken) {
    if (token.span == span) {
      own_key = key;
    } else if (token.kind == GameToken::Kind::kNumber && key != "skill" &&
               IsPlain(token.text)) {
      numbers.all.push_back({key, token.text, token.number});
    }
    key = token.text;
  }
  std::copy_if(
      numbers.all.begin(), numbers.all.end(),
      std::back_inserter(numbers.same_key),
      [&own_key](const WrittenNumber& one) { return one.key == own_key; });
  return numbers;
}

/// By how much more of the numbers are filled up with zeros to so many digits
/// than are not.
int FilledUp(const std::vector<WrittenNumber>& numbers, std::size_t digits) {
  int more = 0;
  for (const WrittenNumber& one : numbers) {
    const std::size_t behind = DigitsBehind(one.token).value_or(0);
    if (behind > 0 && behind < digits) --more;
    if (behind > 1 && behind == digits && one.token.ends_with('0')) ++more;
  }
  return more;
}

/// By how much more of the whole numbers of this kind have a point than have
/// not.
int WithPoint(const std::vector<WrittenNumber>& numbers, double number) {
  // A share and a number of degrees or seconds are of two kinds.
  const auto is_share = [](double one) { return one <= 1; };
  int more = 0;
  for (const WrittenNumber& one : numbers) {
    if (is_share(one.number) != is_share(number)) continue;
    more += DigitsBehind(one.token) ? 1 : -1;
  }
  return more;
}

/// How many digits behind the point the number gets that has so many of its
/// own; nothing where the file does not tell.
std::optional<std::size_t> DigitsAsBeside(const NumbersBeside& numbers,
                                          std::size_t has, std::size_t most,
                                          double number) {
  int pointed = 1;
  if (has == 0) {
    pointed = WithPoint(numbers.same_key, number);
    if (pointed == 0) pointed = WithPoint(numbers.all, number);
  }
  if (pointed < 0) return 0;
  for (std::size_t digits = most; digits > std::max(has, std::size_t{1});
       --digits) {
    const int filled = FilledUp(numbers.same_key, digits);
    if (filled > 0 || (filled == 0 && FilledUp(numbers.all, digits) > 0)) {
      return digits;
    }
  }
  if (pointed == 0) return std::nullopt;
  return std::max(has, std::size_t{1});
}

}  // namespace

std::string InStyleOf(std::string_view bytes, TextSpan token,
                      const Value& value) {
  const std::string_view old =
      bytes.substr(token.begin, token.end - token.begin);
  std::string text = FormatValue(value);
  const std::optional<double> number = ToNumber(value);
  if (!number || *number < 0 || !IsPlain(old)) return text;
  std::string digits = PlainDecimal(*number, kDoubleDigits);
  const std::optional<std::size_t> behind = DigitsBehind(digits);
  const std::size_t has = behind.value_or(0);
  const std::optional<std::size_t> old_behind = DigitsBehind(old);
  if (!old_behind) return behind ? text : digits;
  const std::size_t wanted = std::min(*old_behind, kMaxDigits);
  if (wanted == 0 || has > wanted) return text;
  std::optional<std::size_t> gets = wanted;
  if (has < wanted && !old.ends_with('0')) {
    gets =
        DigitsAsBeside(FindNumbersBeside(bytes, token), has, wanted, *number);
  }
  if (!gets) return text;
  if (*gets > 0 && !behind) digits += '.';
  digits.append(*gets - has, '0');
  if (old.starts_with('.') && digits.starts_with("0.")) digits.erase(0, 1);
  return digits;
}

}  // namespace fragsmith
