#include "checks/characteristic_checks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "checks/game_number.h"
#include "checks/parameter_words.h"
#include "checks/skill_mix.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

/// Calls the function with each per-level index.
template <typename Function>
void ForEachLevelValue(Function function) {
  for (int index = kPerLevelRange.first; index <= kPerLevelRange.last;
       ++index) {
    for (const int level : kSkillLevels) function(LevelIndex(level, index));
  }
}

/// And with each single parameter of the range.
template <typename Function>
void ForEachSingle(IndexRange range, Function function) {
  for (int index = range.first; index <= range.last; ++index) function(index);
}

/// And with all that holds numbers.
template <typename Function>
void ForEachValue(Function function) {
  ForEachLevelValue(function);
  ForEachSingle({kChatRange.first, kItemWeightRange.last}, function);
}

bool IsWeight(int index) {
  return kWeaponWeightRange.Contains(index) || kItemWeightRange.Contains(index);
}

int CatalogueIndex(int parameter) { return parameter % 100; }

Mend MendTo(int parameter, double value) {
  return SetTo(parameter, value,
               "Set " + QuotedName(parameter) + " to " + ShownNumber(value));
}

/// Sets the parameter to the end of the range that it is beyond. Of a per-level
/// one all levels are set that are beyond it: one alone would be better or
/// worse than the others, and the game could not mix a 1.0 with a 2.
Mend MendToEnd(int parameter, double end, bool is_highest) {
  const int index = CatalogueIndex(parameter);
  if (!kPerLevelRange.Contains(index)) return MendTo(parameter, end);
  return {"Set \"" + std::string(CharacteristicName(index)) + "\" to " +
              ShownNumber(end) + " wherever it is " +
              (is_highest ? "more" : "less"),
          [index, end, is_highest](Bot& bot) {
            for (const int level : kSkillLevels) {
              const int place = LevelIndex(level, index);
              const std::optional<double> value =
                  ToNumber(bot.Parameter(place));
              if (!value || *value < 0) continue;
              if (is_highest ? *value > end : *value < end) {
                (void)bot.SetParameter(place, end);
              }
            }
          }};
}

/// The number that takes the gap away without a change of what the bot does:
/// a value beyond the game's range gives way to the end of that range.
std::optional<Mend> MixGapMend(const Bot& bot, int index, int lower,
                               int upper) {
  const UsedRange range = UsedRangeOf(index);
  const double low =
      ToNumber(bot.Parameter(LevelIndex(lower, index))).value_or(0);
  const double high =
      ToNumber(bot.Parameter(LevelIndex(upper, index))).value_or(0);
  if (high > range.highest) {
    return MendTo(LevelIndex(upper, index), range.highest);
  }
  if (low < range.lowest) {
    return MendTo(LevelIndex(lower, index), range.lowest);
  }
  return std::nullopt;
}

std::string BetweenText(std::size_t upper) {
  return upper == 1 ? "At the skills 2 and 3" : "At skills between 4 and 5";
}

bool BreaksFile(const std::string& text) {
  return std::any_of(text.begin(), text.end(), [](char letter) {
    const auto byte = static_cast<unsigned char>(letter);
    return letter == '"' || letter == '\\' || byte < ' ';
  });
}

}  // namespace

void CheckLevelMix(const CheckContext& context, FindingList& findings) {
  for (int index = kPerLevelRange.first; index <= kPerLevelRange.last;
       ++index) {
    if (!IsReadByGame(index)) continue;
    for (std::size_t upper = 1; upper < kSkillLevels.size(); ++upper) {
      if (!HasMixGap(context.bot, index, upper)) continue;
      const int low_level = kSkillLevels.at(upper - 1);
      const int high_level = kSkillLevels.at(upper);
      const int place = LevelIndex(high_level, index);
      std::string text = BetweenText(upper) + " the bot has no \"" +
                         std::string(CharacteristicName(index)) + "\" at all";
      text += index == kReactionTimeIndex
                  ? ", which makes it super-fast: "
                  : " (the game takes 0 and complains again and again): ";
      text += "the game cannot mix the fraction of level " +
              std::to_string(low_level) + " with the whole number " +
              ShownValue(context.bot.Parameter(place)) + " of level " +
              std::to_string(high_level) +
              ". Use fractions, or whole numbers from 2 on, for both.";
      std::vector<Mend> mends;
      if (auto mend = MixGapMend(context.bot, index, low_level, high_level)) {
        mends.push_back(std::move(*mend));
      }
      findings.Add(place, std::move(text), std::move(mends));
    }
  }
}

void CheckTextThatBreaksFile(const CheckContext& context,
                             FindingList& findings) {
  const auto check = [&](int parameter) {
    const auto* text =
        std::get_if<std::string>(&context.bot.Parameter(parameter));
    if (text == nullptr || IsWeight(parameter) || !BreaksFile(*text)) return;
    findings.Add(parameter,
                 QuotedName(parameter) + " is the text " + ShownValue(*text) +
                     ", whose quotes, backslashes or control characters break "
                     "the file: the game plays its default character in place "
                     "of this bot. Give a plain text or a number.",
                 parameter == kGenderIndex
                     ? std::vector<Mend>{}
                     : std::vector<Mend>{MendTo(parameter, 0)});
  };
  check(kGenderIndex);
  ForEachValue(check);
}

void CheckTextForNumber(const CheckContext& context, FindingList& findings) {
  ForEachValue([&](int parameter) {
    const Value& value = context.bot.Parameter(parameter);
    if (IsWeight(parameter) || ToNumber(value)) return;
    if (BreaksFile(ToText(value))) return;
    findings.Add(parameter,
                 QuotedName(parameter) + " is the text " + ShownValue(value) +
                     ", not a number. The game takes 0 in its place and "
                     "complains again and again.",
                 {MendTo(parameter, 0)});
  });
}

void CheckNegativeValue(const CheckContext& context, FindingList& findings) {
  ForEachValue([&](int parameter) {
    const Value& value = context.bot.Parameter(parameter);
    const std::optional<double> number = ToNumber(value);
    if (!number || *number >= 0) return;
    if (kOptionalRange.Contains(CatalogueIndex(parameter)) && parameter > 100) {
      return;  // Not written at all.
    }
    const double read = NumberInFile(value)->value;
    findings.Add(parameter,
                 QuotedName(parameter) + " is " + ShownNumber(*number) +
                     ", but the game's files have no negative numbers: the "
                     "game will read " +
                     ShownNumber(read) + ". Use 0 or more.",
                 {MendTo(parameter, 0)});
  });
}

void CheckReactionTime(const CheckContext& context, FindingList& findings) {
  for (const int level : kSkillLevels) {
    const int parameter = LevelIndex(level, kReactionTimeIndex);
    const double value = ToNumber(context.bot.Parameter(parameter)).value_or(0);
    if (value <= 1) continue;
    findings.Add(parameter,
                 QuotedName(parameter) + " is " + ShownNumber(value) +
                     ", but the game takes everything above 1 second as 1 "
                     "second.",
                 {MendToEnd(parameter, 1, true)});
  }
}

void CheckViewChange(const CheckContext& context, FindingList& findings) {
  const double lowest = UsedRangeOf(kViewMaxChangeIndex).lowest;
  for (const int level : kSkillLevels) {
    const int parameter = LevelIndex(level, kViewMaxChangeIndex);
    const std::optional<double> value =
        ToNumber(context.bot.Parameter(parameter));
    if (!value || *value < 0 || *value >= lowest) continue;
    findings.Add(parameter,
                 QuotedName(parameter) + " is " + ShownNumber(*value) +
                     ", but the game takes everything below 240 degrees per "
                     "second as 240.",
                 {MendToEnd(parameter, lowest, false)});
  }
}

void CheckValueBeyondRange(const CheckContext& context, FindingList& findings) {
  const auto check = [&](int parameter) {
    const int index = CatalogueIndex(parameter);
    if (index == kReactionTimeIndex || !IsReadByGame(index)) return;
    const double highest = UsedRangeOf(index).highest;
    const double value = ToNumber(context.bot.Parameter(parameter)).value_or(0);
    if (value <= highest) return;
    findings.Add(parameter,
                 QuotedName(parameter) + " is " + ShownNumber(value) +
                     ", but the game takes everything above " +
                     ShownNumber(highest) + " as " + ShownNumber(highest) + ".",
                 {MendToEnd(parameter, highest, true)});
  };
  ForEachLevelValue(check);
  ForEachSingle(kChatRange, check);
}

void CheckUnreadValue(const CheckContext& context, FindingList& findings) {
  constexpr double kPresetSkill = 0.5;
  constexpr double kPresetTyping = 200;
  const auto is_changed = [&](int parameter, double preset) {
    const std::optional<double> value =
        ToNumber(context.bot.Parameter(parameter));
    return !value || (*value != 0 && *value != preset);
  };
  const auto add = [&](int parameter) {
    findings.Add(
        parameter,
        "No known version of the game reads \"" +
            std::string(ParameterName(parameter)) +
            "\": whatever you set, the bot plays the same." +
            (parameter == kChatCpmIndex ? " Typing always takes it 2 seconds."
                                        : ""));
  };
  for (int index = kPerLevelRange.first; index <= kPerLevelRange.last;
       ++index) {
    if (IsReadByGame(index)) continue;
    for (const int level : kSkillLevels) {
      const int parameter = LevelIndex(level, index);
      if (!is_changed(parameter, kPresetSkill)) continue;
      add(parameter);
      break;
    }
  }
  if (is_changed(kChatCpmIndex, kPresetTyping)) add(kChatCpmIndex);
}

void CheckDefaultCharacter(const CheckContext& context, FindingList& findings) {
  for (int index = kOptionalRange.first; index <= kOptionalRange.last;
       ++index) {
    std::vector<std::string> levels;
    int first = 0;
    for (const int level : kSkillLevels) {
      if (!IsLeftOut(context.bot, level, index)) continue;
      if (levels.empty()) first = LevelIndex(level, index);
      levels.push_back(std::to_string(level));
    }
    if (levels.empty()) continue;
    std::string text = "\"" + std::string(CharacteristicName(index)) +
                       R"(" is "No" at level )" + Enumeration(levels) +
                       ": there the game takes the value of its own default "
                       "character";
    text += index == kFireThrottleIndex
                ? "."
                : ", not the bot's general aim skill or aim accuracy. Set it "
                  "above 0 to decide yourself.";
    findings.Add(first, std::move(text));
  }
}

void CheckFireThrottle(const CheckContext& context, FindingList& findings) {
  constexpr double kNoPause = 0.1;
  for (const int level : kSkillLevels) {
    const int parameter = LevelIndex(level, kFireThrottleIndex);
    const double value = ToNumber(context.bot.Parameter(parameter)).value_or(0);
    if (value <= 0 || value > kNoPause) continue;
    findings.Add(parameter,
                 QuotedName(parameter) + " is " + ShownNumber(value) +
                     ". So low a value does not make the bot fire slowly: up "
                     "to 0.1 it never pauses, just as with 1. From 0.3 to "
                     "0.9 it pauses most.",
                 {MendTo(parameter, 1)});
  }
}

}  // namespace fragsmith
