#include "fuzz/kept_values.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "fuzz/oracle.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

bool IsPointText(const Value& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr && Contains(*text, ".") && IsNumericText(*text);
}

bool AnyValue(const Bot& bot, IndexRange range,
              const std::function<bool(const Value&)>& holds) {
  const std::vector<ParameterId> parameters = ParametersOf(range);
  return std::any_of(parameters.begin(), parameters.end(),
                     [&](ParameterId id) { return holds(bot.Parameter(id)); });
}

}  // namespace

void ExpectKept(const Value& before, const Value& after, ParameterId id) {
  if (IsPointText(before)) return;
  const std::string place = "parameter " + std::to_string(id.number());
  const std::optional<double> number = ToNumber(before);
  if (!number) return ExpectEqual(ToText(before), ToText(after), place);
  const std::optional<double> kept = ToNumber(after);
  Expect(kept.has_value(), place + " was a number and now is none");
  const int digits =
      std::holds_alternative<float>(before) ? kFloatDigits : kDoubleDigits;
  ExpectEqual(PlainDecimal(std::fabs(*number), digits),
              PlainDecimal(*kept, digits), place);
}

void ExpectKept(const Bot& before, const Bot& after, IndexRange range) {
  for (const ParameterId id : ParametersOf(range)) {
    const Value& value = before.Parameter(id);
    const bool is_written = IsAboveZero(value) || !id.level() ||
                            !kOptionalRange.Contains(id.index());
    ExpectKept(is_written ? value : Value(), after.Parameter(id), id);
  }
}

bool HasTextWith(const Bot& bot, IndexRange range, std::string_view part) {
  return AnyValue(bot, range, [part](const Value& value) {
    return Contains(ToText(value), part);
  });
}

bool HasPointInText(const Bot& bot, IndexRange range) {
  return AnyValue(bot, range, IsPointText);
}

}  // namespace fragsmith
