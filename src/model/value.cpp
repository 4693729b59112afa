#include "model/value.h"

#include "support/numbers.h"

namespace fragsmith {

std::optional<double> ToNumber(const Value& value) {
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* number = std::get_if<float>(&value)) {
    return ShortDecimal(*number);
  }
  if (const auto* text = std::get_if<std::string>(&value)) {
    return NumberFromText(*text);
  }
  return 0.0;
}

std::string ToText(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* number = std::get_if<float>(&value)) {
    return PlainDecimal(*number, kFloatDigits);
  }
  if (const auto* number = std::get_if<double>(&value)) {
    return PlainDecimal(*number, kDoubleDigits);
  }
  return {};
}

bool IsAboveZero(const Value& value) {
  const std::optional<double> number = ToNumber(value);
  return !number || *number > 0;
}

}  // namespace fragsmith
