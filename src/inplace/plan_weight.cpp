// Plans for weights.

#include <algorithm>
#include <cstddef>
#include <utility>

#include "botfiles/left_out.h"
#include "botfiles/value_format.h"
#include "chat/vocabulary.h"
#include "inplace/attempt.h"
#include "inplace/game_weights.h"
#include "inplace/number_style.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kDefine = "#define ";

/// True for the value of our macro for the weight, where no other macro of the
/// file stands for it: all that the game's code then makes of it goes along.
bool IsOurMacroAlone(const FileReading& reading, ParameterId id,
                     TextSpan span) {
  const std::string_view name = BareKey(id.index()).substr(kDefine.size());
  const OwnMacro* const ours = MacroOf(reading.weights, id);
  return ours != nullptr && ours->value.Holds(span) &&
         std::none_of(reading.weights.macros.begin(),
                      reading.weights.macros.end(),
                      [name](const OwnMacro& macro) {
                        return Contains(' ' + macro.text + ' ',
                                        ' ' + std::string(name) + ' ');
                      });
}

/// The facts of the game's weight code that follow from the weight's number in
/// a place.
void ExpectWeights(const FileReading& reading, ParameterId id, TextSpan span,
                   const std::string& token, const Value& value,
                   Attempt& attempt) {
  attempt.numbers[span.begin] = ToNumber(value).value_or(0);
  for (const FoundWeight& found : reading.found) {
    if (found.parameter != id) continue;
    attempt.expected[WeighedFact(id)] = FactOf(found, attempt.numbers);
  }
  const bool is_ours = IsOurMacroAlone(reading, id, span);
  // The game reads our macro in a line that our reader knows not.
  const OwnMacro* const ours = MacroOf(reading.weights, id);
  if (ours != nullptr && ours->value.Holds(span) &&
      !reading.report.SpanOf(id) && reading.report.Gives(id)) {
    attempt.expected[PlainFact(id)] = FactOf(value);
  }
  for (const OwnMacro& macro : reading.weights.macros) {
    if (macro.value == span) {
      attempt.expected[MacroFact(macro.name)] = token;
    } else if (macro.value.Holds(span)) {
      attempt.free.push_back(MacroFact(macro.name));
    }
  }
  std::size_t at = 0;
  for (const GameWeight& weight : reading.weights.weights) {
    const WeightOwner owner = OwnerOf(weight, id);
    const bool goes_along = owner == WeightOwner::kParameter ||
                            (owner == WeightOwner::kNobody && is_ours);
    for (const WeightReturn& way : weight.returns) {
      const bool is_it = way.own && way.own->span == span;
      if (goes_along && is_it) {
        attempt.expected[OwnWeightFact(at)] = FactOf(value);
      }
      // One that is calculated from several numbers has none as its own.
      if (goes_along && (is_it || !way.own)) {
        attempt.free.push_back(GivenWeightFact(at));
      }
      ++at;
    }
  }
}

/// The weight's number, with all that must be read there.
void AddReplacement(const PlanContext& context, ParameterId id, TextSpan span,
                    Attempt& attempt) {
  const Value& value = context.after.Parameter(id);
  std::string token = InStyleOf(context.bytes, span, value);
  ExpectWeights(context.reading, id, span, token, value, attempt);
  attempt.splices.push_back({span, std::move(token)});
}

/// What the game reads once there is a number that was missing is free.
void FreeWithNewMacro(const FileReading& reading, ParameterId id,
                      Attempt& attempt) {
  // Weight code that stopped at the lack reads on now.
  if (!reading.errors.empty()) {
    attempt.free_kinds = {FactKind::kWeightReturns, FactKind::kOwnWeight,
                          FactKind::kWeighed, FactKind::kGivenWeight,
                          FactKind::kReturnCases};
    return;
  }
  std::size_t at = 0;
  for (const GameWeight& weight : reading.weights.weights) {
    const bool is_own = OwnerOf(weight, id) == WeightOwner::kParameter;
    for (std::size_t way = 0; way < weight.returns.size(); ++way, ++at) {
      if (!is_own) continue;
      attempt.free.push_back(OwnWeightFact(at));
      attempt.free.push_back(GivenWeightFact(at));
    }
  }
}

/// Where the game has the numbers of the weight from, as far as it is in this
/// file.
std::vector<TextSpan> GameSpans(const FileReading& reading, ParameterId id) {
  std::vector<TextSpan> spans;
  for (const GameWeight& weight : reading.weights.weights) {
    if (OwnerOf(weight, id) != WeightOwner::kParameter) continue;
    for (const WeightReturn& way : weight.returns) {
      if (way.own) spans.push_back(way.own->span);
    }
  }
  return spans;
}

/// What tells that the game has another value for the weight.
std::vector<FactKey> GivenFactsOf(const FileReading& reading, ParameterId id) {
  std::vector<FactKey> facts;
  std::size_t at = 0;
  for (const GameWeight& weight : reading.weights.weights) {
    const bool is_own = OwnerOf(weight, id) == WeightOwner::kParameter;
    for (std::size_t way = 0; way < weight.returns.size(); ++way, ++at) {
      if (is_own) facts.push_back(GivenWeightFact(at));
    }
  }
  return facts;
}

/// A new #define where our writer would have it.
Plan PlanNewMacro(const PlanContext& context, ParameterId id,
                  std::string_view name) {
  const FileReading& reading = context.reading;
  // What the game lacks may be this very number, or one given along with it.
  const bool lacks_numbers_alone =
      reading.errors.size() == 1 && reading.errors.contains("macro-missing");
  if (!reading.found.empty() && !lacks_numbers_alone &&
      !reading.first_error.empty()) {
    return {.attempts = {}, .refusal = BrokenRefusal(reading)};
  }
  if (!reading.found.empty() && !lacks_numbers_alone) {
    return {.attempts = {},
            .refusal =
                GivenFactsOf(reading, id).empty()
                    ? Localized("The weight code that the file includes does "
                                "not ask for it.")
                    : Localized("The weight code takes its number from another "
                                "file, or makes it out of several.")};
  }
  const auto span_of = [&](int index) {
    const OwnMacro* const macro = MacroOf(reading.weights, ParameterId(index));
    if (macro != nullptr && !macro->value.empty()) return macro->value;
    return LastSpan(context, ParameterId(index));
  };
  const IndexRange range =
      kWeaponWeightRange.Contains(id) ? kWeaponWeightRange : kItemWeightRange;
  Neighbours neighbours;
  for (int index = id.index() - 1; index >= range.first; --index) {
    if (const TextSpan span = span_of(index); !span.empty()) {
      neighbours.before.push_back(span);
    }
  }
  for (int index = id.index() + 1; index <= range.last; ++index) {
    if (const TextSpan span = span_of(index); !span.empty()) {
      neighbours.behind.push_back(span);
    }
  }
  if (neighbours.before.empty() && neighbours.behind.empty()) {
    return {.attempts = {}, .refusal = Localized(kNoNeighbours)};
  }
  const Value& value = context.after.Parameter(id);
  Plan plan;
  for (Splice& splice : Insertions(context.bytes, neighbours,
                                   PaddedKey(id.index()), FormatValue(value))) {
    Attempt attempt;
    attempt.splices.push_back(std::move(splice));
    ExpectOurs(id, FactOf(value), attempt);
    attempt.expected[MacroFact(name)] = FormatValue(value);
    FreeWithNewMacro(reading, id, attempt);
    plan.attempts.push_back(std::move(attempt));
  }
  return plan;
}

/// Of several numbers a load shows the largest, which the edited one need not
/// be.
std::vector<std::string> NotesOnRest(const PlanContext& context,
                                     ParameterId weight,
                                     const std::vector<OwnNumber>& numbers,
                                     std::size_t edited) {
  std::optional<double> largest;
  for (std::size_t at = 0; at < numbers.size(); ++at) {
    if (at == edited) continue;
    largest = std::max(largest.value_or(0), numbers[at].number);
  }
  const double value = ToNumber(context.after.Parameter(weight)).value_or(0);
  if (!largest || *largest <= value) return {};
  return {Localized(
      "%1 has other numbers too that stay as they are. The next load shows the "
      "largest of them, %2, and not the %3 that is written now.",
      {QuotedName(weight), ShownNumber(*largest), ShownNumber(value)})};
}

/// Of a weight that our macros do not give, the number or numbers of the file
/// from which the game has it.
Plan PlanOneOfMany(const PlanContext& context, const FoundWeight& found) {
  Plan plan;
  std::vector<OwnNumber> numbers = {found.own};
  numbers.insert(numbers.end(), found.others.begin(), found.others.end());
  if (numbers.size() > 1) {
    std::vector<std::string> shown;
    std::string all;
    for (const OwnNumber& number : numbers) {
      shown.push_back(SourceOf(number, context.reading.weights, context.bytes) +
                      ": " + ShownNumber(number.number));
      all += (all.empty() ? "" : ", ") + shown.back();
    }
    const std::optional<std::size_t> chosen =
        context.chooser ? context.chooser(found.parameter, shown)
                        : std::nullopt;
    if (!chosen) {
      return {
          .attempts = {},
          .refusal = Localized(
              "The weight code of the file has several numbers for it (%1), "
              "and nobody said which one is meant.",
              {all})};
    }
    if (*chosen < numbers.size()) {
      plan.notes = NotesOnRest(context, found.parameter, numbers, *chosen);
      numbers = {numbers[*chosen]};
    }
  }
  Attempt attempt;
  for (const OwnNumber& number : numbers) {
    AddReplacement(context, found.parameter, number.span, attempt);
  }
  plan.attempts.push_back(std::move(attempt));
  return plan;
}

/// True for "280", which the game takes for a text.
bool IsQuotedNumber(std::string_view bytes, const OwnMacro& macro) {
  return IsNumericText(macro.text) &&
         TextAt(bytes, macro.value).starts_with('"');
}

/// Why a macro may not take a new number; empty where it has a plain one.
std::string OddValueRefusal(const PlanContext& context, const OwnMacro* macro) {
  if (macro == nullptr) return {};
  if (IsQuotedNumber(context.bytes, *macro)) {
    return Localized(
        "The file gives %1 its number in quotation marks, and so the game does "
        "not take it. Take them out first.",
        {macro->name});
  }
  if (IsNumericText(macro->text)) return {};
  if (macro->value.empty()) {
    return Localized(
        "The file gives %1 no value. Write a number behind it first, such as "
        "50.",
        {macro->name});
  }
  const std::string_view text = TextAt(context.bytes, macro->value);
  return Localized(
      "The file gives %1 the value \"%2\", and only a plain number can be "
      "changed. Write one there first, such as 50.",
      {macro->name, ShownText(text)});
}

/// Beside our macros the file may set those of other weight code, and without
/// that code nobody knows which of the two the game takes.
void NoteOtherMacros(const PlanContext& context, ParameterId id,
                     const OwnMacro* macro, Plan& plan) {
  const FileReading& reading = context.reading;
  if (macro == nullptr || !reading.errors.contains("include-missing")) return;
  const IndexRange range =
      kWeaponWeightRange.Contains(id) ? kWeaponWeightRange : kItemWeightRange;
  NameList others;
  for (const OwnMacro& other : reading.weights.macros) {
    const bool is_ours =
        std::any_of(range.begin(), range.end(), [&other](int index) {
          return BareKey(index).substr(kDefine.size()) == other.name;
        });
    if (!is_ours && IsNumericText(other.text)) {
      others.Add(ShownText(other.name));
    }
  }
  if (others.empty()) return;
  plan.notes.push_back(Localized(
      "%1 is changed alone. The file sets other macros too (%2), and the game "
      "may take the weight from one of them: the weight code that the file "
      "includes is not there to tell. Give the folder of its game.",
      {macro->name, others.Text()}));
}

}  // namespace

Plan PlanWeight(const PlanContext& context, ParameterId id) {
  const FileReading& reading = context.reading;
  const Value& value = context.after.Parameter(id);
  const std::string_view name = BareKey(id.index()).substr(kDefine.size());
  const OwnMacro* const macro = MacroOf(reading.weights, id);
  const auto attempt_at = [&](TextSpan span) {
    Attempt attempt;
    AddReplacement(context, id, span, attempt);
    return attempt;
  };
  if (!reading.report.SpanOf(id)) {
    const std::vector<FoundWeight> unread =
        UnreadWeights(context.readers.file().kind, context.bytes, reading);
    const auto found = std::ranges::find(unread, id, &FoundWeight::parameter);
    const std::string refusal = OddValueRefusal(context, macro);
    if (found == unread.end()) {
      return macro == nullptr ? PlanNewMacro(context, id, name)
                              : Plan{.attempts = {}, .refusal = refusal};
    }
    Plan plan = PlanOneOfMany(context, *found);
    if (plan.refusal.empty()) plan.refusal = refusal;
    NoteOtherMacros(context, id, macro, plan);
    return plan;
  }
  const std::vector<TextSpan> game_spans = GameSpans(reading, id);
  if (macro == nullptr && game_spans.empty()) {
    return {.attempts = {},
            .refusal = reading.first_error.empty()
                           ? Localized("The game does not take it from this "
                                       "file, or takes it from one that is "
                                       "included.")
                           : BrokenRefusal(reading)};
  }
  Plan plan = {.attempts = {}, .refusal = OddValueRefusal(context, macro)};
  const auto theirs = std::find_if(
      reading.found.begin(), reading.found.end(), [&](const FoundWeight& one) {
        return one.parameter == id && one.others.empty() &&
               ToNumber(reading.bot.Parameter(id)) == one.own.number;
      });
  std::vector<TextSpan> spans;
  if (macro != nullptr) spans.push_back(macro->value);
  spans.push_back(LastSpan(context, id));
  for (const TextSpan span : spans) {
    if (!IsOneLine(context.bytes, span)) continue;
    const bool is_macro = macro != nullptr && span == macro->value;
    if (!is_macro && !IsBehindKey(context.bytes, id, span)) continue;
    Attempt attempt = attempt_at(span);
    ExpectOurs(id, FactOf(value), attempt);
    if (macro != nullptr) {
      attempt.expected[MacroFact(name)] = attempt.splices.front().text;
      if (IsQuotedNumber(context.bytes, *macro)) {
        FreeWithNewMacro(reading, id, attempt);
      }
    }
    if (game_spans.empty()) attempt.moving = GivenFactsOf(reading, id);
    const bool is_of_game =
        game_spans.empty() || std::find(game_spans.begin(), game_spans.end(),
                                        span) != game_spans.end();
    if (is_of_game) {
      plan.attempts.push_back(std::move(attempt));
    } else if (theirs != reading.found.end()) {
      // The game has the same weight from a macro of its own beside ours.
      AddReplacement(context, id, theirs->own.span, attempt);
      plan.attempts.push_back(std::move(attempt));
    } else if (plan.refusal.empty()) {
      plan.refusal = TwoPlacesRefusal(context.bytes, game_spans.front(), span);
    }
  }
  if (plan.refusal.empty() && macro != nullptr && !macro->value.empty()) {
    plan.refusal =
        TwoPlacesRefusal(context.bytes, macro->value, LastSpan(context, id));
  }
  AddPadded(context, id, plan);
  NoteOtherMacros(context, id, macro, plan);
  return plan;
}

}  // namespace fragsmith
