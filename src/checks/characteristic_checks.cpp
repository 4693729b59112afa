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
#include "support/localization.h"

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

/// Sets the parameter to the end of the range that it is beyond. Of a per-level
/// one all levels are set that are beyond it: one alone would be better or
/// worse than the others, and the game could not mix a 1.0 with a 2.
Mend MendToEnd(ParameterId parameter, double end, bool is_highest) {
  if (!parameter.level()) return SetTo(parameter, end);
  return {Localized(is_highest
                        ? Localizable("Set \"%1\" to %2 wherever it is more")
                        : Localizable("Set \"%1\" to %2 wherever it is less"),
                    {ParameterName(parameter), ShownNumber(end)}),
          [parameter, end, is_highest](Bot& bot) {
            for (const Level level : kLevels) {
              const ParameterId id = parameter.At(level);
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
std::optional<Mend> MixGapMend(const Bot& bot, ParameterId upper,
                               LevelPair levels) {
  const UsedRange range = UsedRangeOf(upper);
  const ParameterId lower = upper.At(levels.lower);
  const double low = ToNumber(bot.Parameter(lower)).value_or(0);
  const double high = ToNumber(bot.Parameter(upper)).value_or(0);
  if (high > range.highest) {
    return SetTo(upper, range.highest);
  }
  if (low < range.lowest) {
    return SetTo(lower, range.lowest);
  }
  return std::nullopt;
}

/// What a gap between the levels costs the bot.
std::string WithoutValueText(ParameterId parameter, LevelPair levels) {
  const bool is_lower = levels.lower == Level::k1;
  if (parameter.index() == kReactionTimeIndex) {
    return Localized(
        is_lower
            ? Localizable("At the skills 2 and 3 the bot has no \"%1\" at all, "
                          "which makes it super-fast:")
            : Localizable("At skills between 4 and 5, such as 4.5, the bot has "
                          "no \"%1\" at all, which makes it super-fast:"),
        {ParameterName(parameter)});
  }
  return Localized(
      is_lower
          ? Localizable("At the skills 2 and 3 the bot has no \"%1\" at all "
                        "(the game takes 0 and complains again and again):")
          : Localizable(
                "At skills between 4 and 5, such as 4.5, the bot has no \"%1\" "
                "at all (the game takes 0 and complains again and again):"),
      {ParameterName(parameter)});
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
    if (!IsReadByGame(ParameterAt(index))) continue;
    for (const LevelPair levels : kMixedLevels) {
      const ParameterId upper(levels.upper, index);
      if (!HasMixGap(context.bot, upper, levels)) continue;
      std::string text = WithoutValueText(upper, levels) + " " +
                         Localized(
                             "the game cannot mix the fraction of level %1 "
                             "with the whole number %2 of level %3. Use "
                             "fractions, or whole numbers from 2 on, for both.",
                             {std::to_string(NumberOf(levels.lower)),
                              ShownValue(context.bot.Parameter(upper)),
                              std::to_string(NumberOf(levels.upper))});
      std::vector<Mend> mends;
      if (auto mend = MixGapMend(context.bot, upper, levels)) {
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
      findings.Add(
          parameter,
          Localized(
              "The game cuts the gender %1 at a backslash that it does not "
              "understand: \"%2\" is all that remains. Take the backslash out.",
              {ShownValue(*text), ShownText(token->text)}),
          {}, Severity::kWarning);
      return;
    }
    findings.Add(
        parameter,
        Localized(
            "%1 is the text %2, whose quotes, backslashes or control "
            "characters break the file: the game plays its default character "
            "in place of this bot. Give a plain text or a number.",
            {QuotedName(parameter), ShownValue(*text)}),
        parameter == kGenderField
            ? std::vector<Mend>{}
            : std::vector<Mend>{Safe(SetTo(parameter, 0))});
  };
  check(kGenderField);
  ForEachValue(check);
}

void CheckTextForNumber(const CheckContext& context, FindingList& findings) {
  ForEachValue([&](ParameterId parameter) {
    const Value& value = context.bot.Parameter(parameter);
    if (IsWeight(parameter) || ToNumber(value)) return;
    if (!TextInFile(ToText(value))) return;
    findings.Add(
        parameter,
        Localized("%1 is the text %2, not a number. The game takes 0 in its "
                  "place and complains again and again. Give a number.",
                  {QuotedName(parameter), ShownValue(value)}),
        {Safe(SetTo(parameter, 0))});
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
                 Localized("%1 is %2, but the game's files have no negative "
                           "numbers: the game will read %3. Use 0 or more.",
                           {QuotedName(parameter), ShownNumber(*number),
                            ShownNumber(read)}),
                 {SetTo(parameter, 0)});
  });
}

void CheckReactionTime(const CheckContext& context, FindingList& findings) {
  const double highest = UsedRangeOf(ParameterAt(kReactionTimeIndex)).highest;
  for (const Level level : kLevels) {
    const ParameterId parameter(level, kReactionTimeIndex);
    const double value = ToNumber(context.bot.Parameter(parameter)).value_or(0);
    if (value <= highest) continue;
    findings.Add(
        parameter,
        Localized(
            highest == 1
                ? Localizable("%1 is %2, but the game takes everything above "
                              "%3 second as %3 second.")
                : Localizable("%1 is %2, but the game takes everything above "
                              "%3 seconds as %3 seconds."),
            {QuotedName(parameter), ShownNumber(value), ShownNumber(highest)}),
        {Safe(MendToEnd(parameter, highest, true))});
  }
}

void CheckViewChange(const CheckContext& context, FindingList& findings) {
  const double lowest = UsedRangeOf(ParameterAt(kViewMaxChangeIndex)).lowest;
  for (const Level level : kLevels) {
    const ParameterId parameter(level, kViewMaxChangeIndex);
    const std::optional<double> value =
        ToNumber(context.bot.Parameter(parameter));
    if (!value || *value < 0 || *value >= lowest) continue;
    findings.Add(parameter,
                 Localized("%1 is %2, but the game takes everything below %3 "
                           "degrees per second as %3.",
                           {QuotedName(parameter), ShownNumber(*value),
                            ShownNumber(lowest)}),
                 {Safe(MendToEnd(parameter, lowest, false))});
  }
}

void CheckValueBeyondRange(const CheckContext& context, FindingList& findings) {
  const auto check = [&](ParameterId parameter) {
    if (parameter.index() == kReactionTimeIndex || !IsReadByGame(parameter)) {
      return;
    }
    const double highest = UsedRangeOf(parameter).highest;
    const double value = ToNumber(context.bot.Parameter(parameter)).value_or(0);
    if (value <= highest) return;
    findings.Add(
        parameter,
        Localized(
            "%1 is %2, but the game takes everything above %3 as %3.",
            {QuotedName(parameter), ShownNumber(value), ShownNumber(highest)}),
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
    std::string text = Localized(
        "No known version of the game reads \"%1\": whatever you set, the bot "
        "plays the same.",
        {ParameterName(parameter)});
    if (parameter == kChatCpm) {
      text += " " + Localized("Typing always takes it 2 seconds.");
    }
    findings.Add(parameter, std::move(text));
  };
  for (const int index : kPerLevelRange) {
    if (IsReadByGame(ParameterAt(index))) continue;
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
    std::string text = Localized(
        index == kFireThrottleIndex
            ? Localizable("\"%1\" is \"No\" at level %2: there the game takes "
                          "the value of its own default character.")
            : Localizable("\"%1\" is \"No\" at level %2: there the game takes "
                          "the value of its own default character, not the "
                          "bot's general aim skill or aim accuracy. Set it "
                          "above 0 to decide yourself."),
        {ParameterName(*first), Enumeration(levels)});
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
                 Localized("%1 is %2. So low a value does not make the bot "
                           "fire slowly: up to 0.1 it never pauses, just as "
                           "with 1. From 0.3 to 0.9 it pauses most.",
                           {QuotedName(parameter), ShownNumber(value)}),
                 {Safe(SetTo(parameter, 1))});
  }
}

}  // namespace fragsmith
