#include "checks/characteristic_checks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "chat/vocabulary.h"
#include "game/lexer.h"
#include "game/number.h"
#include "game/skill_mix.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"

namespace fragsmith {
namespace {

/// Calls the function with each per-level index.
template <typename Function>
void ForEachLevelValue(Function function) {
  for (const int index : kPerLevelRange) {
    for (const Level level : kLevels) function(ParameterId(level, index));
  }
}

/// And with each single parameter of the range.
template <typename Function>
void ForEachSingle(IndexRange range, Function function) {
  for (const int index : range) function(ParameterId(index));
}

/// And with all that holds numbers.
template <typename Function>
void ForEachValue(Function function) {
  ForEachLevelValue(function);
  ForEachSingle({kChatRange.first, kItemWeightRange.last}, function);
}

bool IsWeight(ParameterId parameter) {
  return kWeaponWeightRange.Contains(parameter) ||
         kItemWeightRange.Contains(parameter);
}

Mend MendTo(ParameterId parameter, double value) {
  return SetTo(parameter, value,
               "Set " + QuotedName(parameter) + " to " + ShownNumber(value));
}

/// Sets the parameter to the end of the range that it is beyond. Of a per-level
/// one all levels are set that are beyond it: one alone would be better or
/// worse than the others, and the game could not mix a 1.0 with a 2.
Mend MendToEnd(ParameterId parameter, double end, bool is_highest) {
  const int index = parameter.index();
  if (!parameter.level()) return MendTo(parameter, end);
  return {"Set \"" + std::string(CharacteristicName(index)) + "\" to " +
              ShownNumber(end) + " wherever it is " +
              (is_highest ? "more" : "less"),
          [index, end, is_highest](Bot& bot) {
            for (const Level level : kLevels) {
              const ParameterId id(level, index);
              const std::optional<double> value = ToNumber(bot.Parameter(id));
              if (!value || *value < 0) continue;
              if (is_highest ? *value > end : *value < end) {
                bot.Put(id, end);
              }
            }
          }};
}

/// The number that takes the gap away without a change of what the bot does:
/// a value beyond the game's range gives way to the end of that range.
std::optional<Mend> MixGapMend(const Bot& bot, int index, LevelPair levels) {
  const UsedRange range = UsedRangeOf(index);
  const ParameterId lower(levels.lower, index);
  const ParameterId upper(levels.upper, index);
  const double low = ToNumber(bot.Parameter(lower)).value_or(0);
  const double high = ToNumber(bot.Parameter(upper)).value_or(0);
  if (high > range.highest) {
    return MendTo(upper, range.highest);
  }
  if (low < range.lowest) {
    return MendTo(lower, range.lowest);
  }
  return std::nullopt;
}

std::string BetweenText(LevelPair levels) {
  return levels.lower == Level::k1 ? "At the skills 2 and 3"
                                   : "At skills between 4 and 5, such as 4.5,";
}

/// The one text that the game finds between the quotes that are put around a
/// text; nothing where it finds something else.
std::optional<GameToken> TextInFile(const std::string& text) {
  const std::string written = '"' + text + '"';
  GameLexer lexer(written);
  GameToken token;
  GameToken next;
  const bool is_one_text = lexer.Next(token) == GameLexer::Outcome::kToken &&
                           lexer.Next(next) == GameLexer::Outcome::kEnd;
  return is_one_text ? std::optional(token) : std::nullopt;
}

}  // namespace

void CheckLevelMix(const CheckContext& context, FindingList& findings) {
  for (const int index : kPerLevelRange) {
    if (!IsReadByGame(index)) continue;
    for (const LevelPair levels : kMixedLevels) {
      if (!HasMixGap(context.bot, index, levels)) continue;
      const ParameterId upper(levels.upper, index);
      std::string text = BetweenText(levels) + " the bot has no \"" +
                         std::string(CharacteristicName(index)) + "\" at all";
      text += index == kReactionTimeIndex
                  ? ", which makes it super-fast: "
                  : " (the game takes 0 and complains again and again): ";
      text += "the game cannot mix the fraction of level " +
              std::to_string(NumberOf(levels.lower)) +
              " with the whole number " +
              ShownValue(context.bot.Parameter(upper)) + " of level " +
              std::to_string(NumberOf(levels.upper)) +
              ". Use fractions, or whole numbers from 2 on, for both.";
      std::vector<Mend> mends;
      if (auto mend = MixGapMend(context.bot, index, levels)) {
        mends.push_back(Safe(std::move(*mend)));
      }
      findings.Add(upper, std::move(text), std::move(mends),
                   SeverityOfMixGap(levels));
    }
  }
}

void CheckTextThatBreaksFile(const CheckContext& context,
                             FindingList& findings) {
  const auto check = [&](ParameterId parameter) {
    const auto* text =
        std::get_if<std::string>(&context.bot.Parameter(parameter));
    if (text == nullptr || IsWeight(parameter)) return;
    if (const std::optional<GameToken> token = TextInFile(*text)) {
      if (token->oddity == GameToken::Oddity::kNone || parameter.level() ||
          parameter != kGenderField) {
        return;
      }
      findings.Add(parameter,
                   "The game cuts the gender " + ShownValue(*text) +
                       " at a backslash that it does not understand: \"" +
                       ShownText(token->text) +
                       "\" is all that remains. Take the backslash out.",
                   {}, Severity::kWarning);
      return;
    }
    findings.Add(parameter,
                 QuotedName(parameter) + " is the text " + ShownValue(*text) +
                     ", whose quotes, backslashes or control characters break "
                     "the file: the game plays its default character in place "
                     "of this bot. Give a plain text or a number.",
                 parameter == kGenderField
                     ? std::vector<Mend>{}
                     : std::vector<Mend>{Safe(MendTo(parameter, 0))});
  };
  check(kGenderField);
  ForEachValue(check);
}

void CheckTextForNumber(const CheckContext& context, FindingList& findings) {
  ForEachValue([&](ParameterId parameter) {
    const Value& value = context.bot.Parameter(parameter);
    if (IsWeight(parameter) || ToNumber(value)) return;
    if (!TextInFile(ToText(value))) return;
    findings.Add(parameter,
                 QuotedName(parameter) + " is the text " + ShownValue(value) +
                     ", not a number. The game takes 0 in its place and "
                     "complains again and again. Give a number.",
                 {Safe(MendTo(parameter, 0))});
  });
}

void CheckNegativeValue(const CheckContext& context, FindingList& findings) {
  ForEachValue([&](ParameterId parameter) {
    const Value& value = context.bot.Parameter(parameter);
    const std::optional<double> number = ToNumber(value);
    if (!number || *number >= 0) return;
    if (IsLeftOut(context.bot, parameter)) return;
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
  const double highest = UsedRangeOf(kReactionTimeIndex).highest;
  const std::string shown =
      ShownNumber(highest) + (highest == 1 ? " second" : " seconds");
  const std::string clamped =
      ", but the game takes everything above " + shown + " as " + shown + ".";
  for (const Level level : kLevels) {
    const ParameterId parameter(level, kReactionTimeIndex);
    const double value = ToNumber(context.bot.Parameter(parameter)).value_or(0);
    if (value <= highest) continue;
    findings.Add(parameter,
                 QuotedName(parameter) + " is " + ShownNumber(value) + clamped,
                 {Safe(MendToEnd(parameter, highest, true))});
  }
}

void CheckViewChange(const CheckContext& context, FindingList& findings) {
  const double lowest = UsedRangeOf(kViewMaxChangeIndex).lowest;
  for (const Level level : kLevels) {
    const ParameterId parameter(level, kViewMaxChangeIndex);
    const std::optional<double> value =
        ToNumber(context.bot.Parameter(parameter));
    if (!value || *value < 0 || *value >= lowest) continue;
    findings.Add(parameter,
                 QuotedName(parameter) + " is " + ShownNumber(*value) +
                     ", but the game takes everything below " +
                     ShownNumber(lowest) + " degrees per second as " +
                     ShownNumber(lowest) + ".",
                 {Safe(MendToEnd(parameter, lowest, false))});
  }
}

void CheckValueBeyondRange(const CheckContext& context, FindingList& findings) {
  const auto check = [&](ParameterId parameter) {
    const int index = parameter.index();
    if (index == kReactionTimeIndex || !IsReadByGame(index)) return;
    const double highest = UsedRangeOf(index).highest;
    const double value = ToNumber(context.bot.Parameter(parameter)).value_or(0);
    if (value <= highest) return;
    findings.Add(parameter,
                 QuotedName(parameter) + " is " + ShownNumber(value) +
                     ", but the game takes everything above " +
                     ShownNumber(highest) + " as " + ShownNumber(highest) + ".",
                 {Safe(MendToEnd(parameter, highest, true))});
  };
  ForEachLevelValue(check);
  ForEachSingle(kChatRange, check);
}

void CheckUnreadValue(const CheckContext& context, FindingList& findings) {
  constexpr double kPresetSkill = 0.5;
  constexpr double kPresetTyping = 200;
  const auto is_changed = [&](ParameterId parameter, double preset) {
    const std::optional<double> value =
        ToNumber(context.bot.Parameter(parameter));
    return !value || (*value != 0 && *value != preset);
  };
  const auto add = [&](ParameterId parameter) {
    findings.Add(
        parameter,
        "No known version of the game reads \"" +
            std::string(ParameterName(parameter)) +
            "\": whatever you set, the bot plays the same." +
            (parameter == kChatCpm ? " Typing always takes it 2 seconds."
                                   : ""));
  };
  for (const int index : kPerLevelRange) {
    if (IsReadByGame(index)) continue;
    for (const Level level : kLevels) {
      const ParameterId parameter(level, index);
      if (!is_changed(parameter, kPresetSkill)) continue;
      add(parameter);
      break;
    }
  }
  if (is_changed(kChatCpm, kPresetTyping)) add(kChatCpm);
}

void CheckDefaultCharacter(const CheckContext& context, FindingList& findings) {
  for (const int index : kOptionalRange) {
    std::vector<std::string> levels;
    std::optional<ParameterId> first;
    for (const Level level : kLevels) {
      const ParameterId parameter(level, index);
      if (!IsLeftOut(context.bot, parameter)) continue;
      if (!first) first = parameter;
      levels.push_back(std::to_string(NumberOf(level)));
    }
    if (!first) continue;
    std::string text = "\"" + std::string(CharacteristicName(index)) +
                       R"(" is "No" at level )" + Enumeration(levels) +
                       ": there the game takes the value of its own default "
                       "character";
    text += index == kFireThrottleIndex
                ? "."
                : ", not the bot's general aim skill or aim accuracy. Set it "
                  "above 0 to decide yourself.";
    findings.Add(*first, std::move(text));
  }
}

void CheckFireThrottle(const CheckContext& context, FindingList& findings) {
  constexpr double kNoPause = 0.1;
  for (const Level level : kLevels) {
    const ParameterId parameter(level, kFireThrottleIndex);
    const double value = ToNumber(context.bot.Parameter(parameter)).value_or(0);
    if (value <= 0 || value > kNoPause) continue;
    findings.Add(parameter,
                 QuotedName(parameter) + " is " + ShownNumber(value) +
                     ". So low a value does not make the bot fire slowly: up "
                     "to 0.1 it never pauses, just as with 1. From 0.3 to "
                     "0.9 it pauses most.",
                 {Safe(MendTo(parameter, 1))});
  }
}

}  // namespace fragsmith
