#include "support/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

#include "support/text.h"

namespace fragsmith {
namespace {

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

/// The powers of ten that stand behind the point of exact decimals.
constexpr std::array<double, 7> kPowersOfTen = {1,   1e1, 1e2, 1e3,
                                                1e4, 1e5, 1e6};

/// A short text of digits, with a few behind its point: the whole number and
/// the power of ten are exact then, and their quotient is rounded but once.
std::optional<double> ReadShort(std::string_view text) {
  constexpr std::size_t kExactDigits = 15;
  if (text.size() > kExactDigits) return std::nullopt;
  double digits = 0;
  std::size_t behind = 0;
  bool has_digit = false;
  bool has_point = false;
  for (const char letter : text) {
    if (IsDigit(letter)) {
      digits = digits * 10 + (letter - '0');
      has_digit = true;
      behind += has_point ? 1 : 0;
    } else if (letter == '.' && !has_point) {
      has_point = true;
    } else {
      return std::nullopt;
    }
  }
  if (!has_digit || behind >= kPowersOfTen.size()) return std::nullopt;
  return digits / kPowersOfTen.at(behind);
}

/// The number in thousandths, where few digits are all that it has: rounded to
/// those that a float carries, nothing but zeros follows.
std::optional<int> Thousandths(double number) {
  constexpr double kBelow = 1000;
  if (!(number > 0 && number < kBelow)) return std::nullopt;
  const double thousandths = std::nearbyint(number * 1000);
  const double decimal = thousandths / 1000;
  if (number != decimal &&
      number != static_cast<double>(static_cast<float>(decimal))) {
    return std::nullopt;
  }
  return static_cast<int>(thousandths);
}

/// Reads digits with at most one "."; a missing part before or behind it is
/// allowed by the caller's check.
std::optional<double> ReadDecimal(const char* first, const char* last) {
  double number = 0;
  const auto read =
      std::from_chars(first, last, number, std::chars_format::fixed);
  if (read.ec == std::errc() && std::isfinite(number)) return number;
  if (read.ec != std::errc::result_out_of_range) return std::nullopt;
  // Too large and too small look alike; only a digit other than 0 before the
  // point makes it large.
  const bool is_large = std::any_of(first, std::find(first, last, '.'),
                                    [](char letter) { return letter != '0'; });
  if (is_large) return std::nullopt;
  return 0.0;
}

}  // namespace

bool IsNumericText(std::string_view text) {
  text = TrimBlanksAndTabs(text);
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
    text.remove_prefix(1);
  }
  bool has_point = false;
  bool has_digit = false;
  for (const char letter : text) {
    if (IsDigit(letter)) {
      has_digit = true;
    } else if (letter == '.' && !has_point) {
      has_point = true;
    } else {
      return false;
    }
  }
  return has_digit;
}

std::optional<double> NumberFromText(std::string_view text) {
  // Most numbers of a bot are short.
  if (const std::optional<double> number = ReadShort(text)) return number;
  if (!IsNumericText(text)) return std::nullopt;
  text = TrimBlanksAndTabs(text);
  const bool is_negative = text.front() == '-';
  if (is_negative || text.front() == '+') text.remove_prefix(1);
  const std::optional<double> number =
      ReadDecimal(text.data(), text.data() + text.size());
  if (!number) return std::nullopt;
  return is_negative ? -*number : *number;
}

std::string PlainDecimal(double number, int significant_digits) {
  // Most numbers of a bot are small and whole.
  constexpr double kSmall = 1e6;
  if (std::fabs(number) < kSmall && number == std::trunc(number) &&
      significant_digits >= kFloatDigits) {
    return std::to_string(static_cast<int>(number));
  }
  if (significant_digits == kFloatDigits) {
    if (const std::optional<int> thousandths = Thousandths(number)) {
      std::string text = std::to_string(*thousandths + 1000000);
      text.erase(text.find_last_not_of('0') + 1);
      std::string whole = std::to_string(*thousandths / 1000);
      return whole + '.' + text.substr(4);
    }
  }
  // Rounding is done by the scientific form; the second step only moves the
  // point, since the rounded decimal is printed with all of its digits.
  std::array<char, 64> scientific{};
  const auto rounded = std::to_chars(
      scientific.data(), scientific.data() + scientific.size(), number,
      std::chars_format::scientific, significant_digits - 1);
  std::string_view text(
      scientific.data(),
      static_cast<std::size_t>(rounded.ptr - scientific.data()));
  std::string sign;
  if (text.front() == '-') {
    sign = "-";
    text.remove_prefix(1);
  }
  const std::size_t mark = text.find('e');
  if (mark == std::string_view::npos) return sign + std::string(text);

  std::string digits(text.substr(0, mark));
  std::erase(digits, '.');
  std::string_view power = text.substr(mark + 1);
  if (power.front() == '+') power.remove_prefix(1);
  int exponent = 0;
  std::from_chars(power.data(), power.data() + power.size(), exponent);

  const std::size_t last = digits.find_last_not_of('0');
  if (last == std::string::npos) return "0";
  digits.resize(last + 1);
  if (exponent < 0) {
    digits.insert(0, static_cast<std::size_t>(-exponent - 1), '0');
    return sign + "0." + digits;
  }
  const auto whole = static_cast<std::size_t>(exponent) + 1;
  if (digits.size() <= whole) {
    digits.append(whole - digits.size(), '0');
  } else {
    digits.insert(whole, 1, '.');
  }
  return sign + digits;
}

double ShortDecimal(float number) {
  if (const std::optional<int> thousandths = Thousandths(number)) {
    return *thousandths / 1000.0;
  }
  std::array<char, 32> text{};
  const auto end = std::to_chars(
      text.data(), text.data() + text.size(), static_cast<double>(number),
      std::chars_format::scientific, kFloatDigits - 1);
  double decimal = 0;
  std::from_chars(text.data(), end.ptr, decimal);
  return decimal;
}

}  // namespace fragsmith
