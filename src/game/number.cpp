#include "game/number.h"

#include <cstddef>
#include <string>

#include "botfiles/value_format.h"
#include "model/characteristic_catalogue.h"
#include "support/numbers.h"

namespace fragsmith {
namespace {

double FromOctal(std::string_view digits) {
  double number = 0;
  for (const char digit : digits) number = number * 8 + (digit - '0');
  return number;
}

}  // namespace

std::optional<WrittenNumber> NumberInFile(const Value& value) {
  const std::string text = FormatValue(value);
  const std::optional<double> number = NumberFromText(text);
  if (!number) return std::nullopt;
  const bool is_whole = text.find('.') == std::string::npos;
  const bool is_octal = is_whole && text.size() > 1 && text.front() == '0' &&
                        text.find_first_not_of("01234567") == std::string::npos;
  return WrittenNumber{is_octal ? FromOctal(text) : *number, is_whole};
}

double NumberInGame(const Bot& bot, ParameterId id) {
  const std::optional<WrittenNumber> number = NumberInFile(bot.Parameter(id));
  return number ? number->value : 0;
}

bool IsLeftOut(const Bot& bot, ParameterId id) {
  return id.level() && kOptionalRange.Contains(id.index()) &&
         !IsAboveZero(bot.Parameter(id));
}

}  // namespace fragsmith
