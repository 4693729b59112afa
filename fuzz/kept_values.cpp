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

/// The indices that the bot's accessor takes for a range of the catalogue.
std::vector<int> ParametersOf(IndexRange range) {
  std::vector<int> parameters;
  for (int index = range.first; index <= range.last; ++index) {
    if (!kPerLevelRange.Contains(index)) {
      parameters.push_back(index);
      continue;
    }
    for (const int level : kSkillLevels) {
      parameters.push_back(LevelIndex(level, index));
    }
  }
  return parameters;
}

bool IsPointText(const Value& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr && Contains(*text, ".") && IsNumericText(*text);
}

bool AnyValue(const Bot& bot, IndexRange range,
              const std::function<bool(const Value&)>& holds) {
  const std::vector<int> parameters = ParametersOf(range);
  return std::any_of(parameters.begin(), parameters.end(), [&](int parameter) {
    return holds(bot.Parameter(parameter));
  });
}

}  // namespace

void ExpectKept(const Value& before, const Value& after, int parameter) {
  if (IsPointText(before)) return;
  const std::string place = "parameter " + std::to_string(parameter);
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
  for (const int parameter : ParametersOf(range)) {
    const Value& value = before.Parameter(parameter);
    const bool is_written = IsAboveZero(value) ||
                            !kOptionalRange.Contains(parameter % 100) ||
                            !kPerLevelRange.Contains(parameter % 100);
    ExpectKept(is_written ? value : Value(), after.Parameter(parameter),
               parameter);
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
