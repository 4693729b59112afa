#include "botfiles/value_format.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// The decimal without its sign and without a 0 before the point.
std::string UnsignedDecimal(double number, int significant_digits) {
  std::string text = PlainDecimal(std::fabs(number), significant_digits);
  if (text.starts_with("0.")) text.erase(0, 1);
  return text;
}

std::string FormatNumber(double number, int significant_digits) {
  if (number == 0) return "0.0";
  if (number == 1) return "1.0";
  const std::string text = UnsignedDecimal(number, significant_digits);
  return number < 1 ? "0" + text : text;
}

/// A number as a save writes most of them: a digit, a point and up to three
/// digits.
std::optional<float> ShortFraction(std::string_view text) {
  constexpr std::array<double, 3> kScales = {10, 100, 1000};
  constexpr std::size_t kPoint = 1;
  const std::size_t behind = text.size() - kPoint - 1;
  if (text.size() < kPoint + 2 || behind > kScales.size() ||
      text[kPoint] != '.') {
    return std::nullopt;
  }
  int digits = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (at == kPoint) continue;
    if (text[at] < '0' || text[at] > '9') return std::nullopt;
    digits = digits * 10 + (text[at] - '0');
  }
  return static_cast<float>(digits / kScales.at(behind - 1));
}

/// A numeric text with a "." in it.
std::optional<Value> CleanFraction(std::string_view text) {
  const std::size_t point = text.find('.');
  const std::string_view before = text.substr(0, point);
  // Nothing but a sign or blanks may stand before the point.
  const std::optional<double> number = NumberFromText(before);
  if (!number && IsNumericText(before)) return std::nullopt;
  const double whole = number.value_or(0);
  constexpr double kMax = std::numeric_limits<float>::max();
  if (std::fabs(whole) > kMax) {
    return std::nullopt;
  }
  const std::string_view digits = TrimBlanksAndTabs(text.substr(point + 1));
  constexpr std::size_t kMaxDigits = 3;
  double fraction = 0;
  if (!digits.empty() && digits.size() <= kMaxDigits) {
    constexpr std::array<double, kMaxDigits + 1> kScales = {1, 10, 100, 1000};
    fraction = *NumberFromText(digits) / kScales.at(digits.size());
  }
  // Rounded to a float only once: 1 and a rounded 0.18 would add up to
  // 1.1800001, which no file could hold again.
  return static_cast<float>(whole + fraction);
}

Value CleanText(std::string_view text) {
  if (text.starts_with('"')) text.remove_prefix(1);
  if (text.ends_with(';')) text.remove_suffix(1);
  if (text.ends_with('"')) text.remove_suffix(1);
  return std::string(text);
}

}  // namespace

std::string FormatValue(const Value& value) {
  if (const auto* number = std::get_if<float>(&value)) {
    return FormatNumber(static_cast<double>(*number), kFloatDigits);
  }
  const std::optional<double> number = ToNumber(value);
  if (number) return FormatNumber(*number, kDoubleDigits);
  return '"' + ToText(value) + '"';
}

Value CleanValue(std::string_view text) {
  if (const std::optional<float> number = ShortFraction(text)) return *number;
  std::string with_zero;
  if (text.starts_with('.') && IsNumericText(text.substr(1))) {
    with_zero = '0' + std::string(text);
    text = with_zero;
  }
  if (!IsNumericText(text)) return CleanText(text);
  if (Contains(text, ".")) {
    const std::optional<Value> fraction = CleanFraction(text);
    if (fraction) return *fraction;
  } else if (const std::optional<double> number = NumberFromText(text)) {
    return *number;
  }
  // Too large for a number: kept as it is written.
  return std::string(text);
}

Result<double> NumberForFiles(std::string_view text) {
  const auto refuse = [](std::string_view why) -> Result<double> {
    return Failure(
        {.what = Localized(why), .file = {}, .line = 0, .advice = {}});
  };
  if (!IsNumericText(text)) {
    return refuse(Localizable("A number is wanted here, such as 0.35 or 120."));
  }
  const std::optional<double> number = NumberFromText(text);
  if (!number) return refuse(Localizable("The number is too large."));
  if (*number == 0) return 0.0;
  if (*number < 0) {
    return refuse(Localizable("The files hold no number below 0."));
  }
  if (ToNumber(CleanValue(FormatValue(*number))) != *number) {
    return refuse(
        Localizable("The files keep three digits behind the point, and seven "
                    "digits of a number with a fraction."));
  }
  return *number;
}

}  // namespace fragsmith
