#ifndef FRAGSMITH_MODEL_VALUE_H_
#define FRAGSMITH_MODEL_VALUE_H_

#include <optional>
#include <string>
#include <variant>

namespace fragsmith {

/// The value of a bot parameter. Files give 32-bit floats for numbers with a
/// fraction and doubles for whole ones, and the writers print as many digits
/// as either carries. Text is 8-bit; a parameter holds text when its file
/// has something else than a number. Empty reads as 0.
using Value = std::variant<std::monostate, double, float, std::string>;

/// The value as a number: an empty one is 0, a numeric text is its number, a
/// float keeps the decimal that the user sees. Nothing for any other text.
std::optional<double> ToNumber(const Value& value);

/// The value as text: numbers in plain decimal, an empty one as empty text.
std::string ToText(const Value& value);

/// True for a number above 0. Text that is no number counts as such, so that
/// it is not lost where only values above 0 are written.
bool IsAboveZero(const Value& value);

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_VALUE_H_
