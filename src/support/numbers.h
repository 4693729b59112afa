#ifndef FRAGSMITH_SUPPORT_NUMBERS_H_
#define FRAGSMITH_SUPPORT_NUMBERS_H_

#include <optional>
#include <string>
#include <string_view>

namespace fragsmith {

/// True for a text that reads as a number: blanks or TABs, a sign or none,
/// ASCII digits with at most one "." and at least one digit, blanks or TABs.
/// No exponents, no hexadecimal, no separators, whatever the locale.
bool IsNumericText(std::string_view text);

/// The value of a numeric text; nothing when it is none, or when it is beyond
/// the range of a double.
std::optional<double> NumberFromText(std::string_view text);

/// A number in plain decimal (never with an exponent), rounded to so many
/// significant digits, without trailing zeros: 250, 0.5, -2.5.
std::string PlainDecimal(double number, int significant_digits);

/// Significant digits that the two kinds of number carry.
inline constexpr int kFloatDigits = 7;
inline constexpr int kDoubleDigits = 15;

/// The decimal that a 32-bit float stands for to the user: rounded to the
/// digits that it carries, so 1.18 and not 1.1800001.
double ShortDecimal(float number);

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_NUMBERS_H_
