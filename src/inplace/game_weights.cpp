#include "inplace/game_weights.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "botfiles/left_out.h"
#include "botfiles/weight_file.h"
#include "chat/vocabulary.h"
#include "game/lexer.h"
#include "inplace/attempt.h"
#include "inplace/splice.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

IndexRange RangeOf(BotFile kind) {
  return kind == BotFile::kWeaponWeights ? kWeaponWeightRange
                                         : kItemWeightRange;
}

/// Macros of the file that are no weights of the bot.
void NoteOthers(const std::string& shown, std::string_view bytes,
                const FileReading& reading, Notes& notes) {
  NameList names;
  std::size_t count = 0;
  std::size_t first_line = 0;
  std::vector<OwnNumber> numbers;
  for (const FoundWeight& weight : reading.found) {
    numbers.push_back(weight.own);
    numbers.insert(numbers.end(), weight.others.begin(), weight.others.end());
  }
  for (const OwnMacro& macro : reading.weights.macros) {
    const bool is_weight = std::any_of(numbers.begin(), numbers.end(),
                                       [&macro](const OwnNumber& number) {
                                         return macro.value.Holds(number.span);
                                       });
    const bool is_read = std::ranges::any_of(
        reading.report.given,
        [&](ParameterId id) { return MacroOf(reading.weights, id) == &macro; });
    if (is_weight || is_read) continue;
    names.Add(ShownText(macro.name));
    const std::size_t line = LineNumberAt(bytes, macro.value.begin);
    first_line = count++ == 0 ? line : std::min(first_line, line);
  }
  if (count == 0) return;
  notes.Add(AlsoInFile(shown, first_line, count, names.Text()));
}

bool IsFound(const FileReading& reading, ParameterId id) {
  return std::ranges::count(reading.found, id, &FoundWeight::parameter) > 0;
}

std::vector<ParameterId> WithoutNumber(BotFile kind,
                                       const FileReading& reading) {
  std::vector<ParameterId> missing;
  bool has_own_way = false;
  for (const int index : RangeOf(kind)) {
    const ParameterId id(index);
    if (reading.report.Gives(id)) continue;
    if (IsFound(reading, id)) {
      has_own_way = true;
    } else {
      missing.push_back(id);
    }
  }
  return has_own_way ? missing : std::vector<ParameterId>();
}

}  // namespace

const OwnMacro* MacroOf(const WeightsRead& weights, ParameterId id) {
  constexpr std::string_view kDefine = "#define ";
  const auto found = std::ranges::find(
      weights.macros, BareKey(id.index()).substr(kDefine.size()),
      &OwnMacro::name);
  return found == weights.macros.end() ? nullptr : &*found;
}

std::optional<double> GameNumberOf(const OwnMacro& macro,
                                   std::string_view bytes) {
  GameLexer lexer(TextAt(bytes, macro.value));
  GameToken token;
  GameToken behind;
  lexer.Next(token);
  if (token.Is("-")) lexer.Next(token);
  if (token.kind != GameToken::Kind::kNumber ||
      lexer.Next(behind) != GameLexer::Outcome::kEnd) {
    return std::nullopt;
  }
  return token.number;
}

std::vector<FoundWeight> UnreadWeights(BotFile kind, std::string_view bytes,
                                       const FileReading& reading) {
  std::vector<FoundWeight> unread;
  for (const int index : RangeOf(kind)) {
    const ParameterId id(index);
    if (reading.report.SpanOf(id)) continue;
    const auto found =
        std::ranges::find(reading.found, id, &FoundWeight::parameter);
    if (found != reading.found.end()) {
      unread.push_back(*found);
      continue;
    }
    const OwnMacro* const macro = MacroOf(reading.weights, id);
    const std::optional<double> number =
        macro == nullptr ? std::nullopt : GameNumberOf(*macro, bytes);
    if (number && IsOneLine(bytes, macro->value)) {
      unread.push_back({id, {macro->value, *number}, {}});
    }
  }
  return unread;
}

std::vector<ParameterId> WeightsWithoutNumber(BotFile kind,
                                              std::string_view bytes,
                                              const IncludeLookup& game) {
  return WithoutNumber(kind, BothReaders({kind, {}, {}}, game).Read(bytes));
}

std::string SourceOf(const OwnNumber& own, const WeightsRead& weights,
                     std::string_view bytes) {
  const std::string line = std::to_string(LineNumberAt(bytes, own.span.begin));
  for (const OwnMacro& macro : weights.macros) {
    if (macro.value.Holds(own.span)) {
      return Localized("%1 (line %2)", {ShownText(macro.name), line});
    }
  }
  return Localized("the number in line %1", {line});
}

void TakeGameWeights(BotFile kind, const std::string& shown,
                     std::string_view bytes, const IncludeLookup& game,
                     LoadedBot& loaded) {
  const BothReaders readers({kind, shown, {}}, game);
  const FileReading reading = readers.Read(bytes);
  NameList pairs;
  NameList unsure;
  bool has_own_way = false;
  for (const FoundWeight& found : UnreadWeights(kind, bytes, reading)) {
    loaded.bot.Put(found.parameter, found.own.number);
    loaded.plain_values.erase(found.parameter);
    loaded.notes.Remove(shown, NoteKind::kUnreadLine,
                        LineNumberAt(bytes, found.own.span.begin));
    has_own_way = has_own_way || !reading.report.Gives(found.parameter);
    const std::string name = QuotedName(found.parameter);
    pairs.Add(Localized("%1 from %2",
                        {name, SourceOf(found.own, reading.weights, bytes)}));
    if (!found.others.empty()) unsure.Add(name);
  }
  if (!pairs.empty()) {
    loaded.notes.Remove(shown, NoteKind::kNoWeights);
    loaded.notes.Add({shown, 0,
                      Localized("Weights that the file sets in its own way, "
                                "as the game's weight code takes them: %1.",
                                {pairs.Text()})});
  }
  if (has_own_way) {
    loaded.notes.Remove(shown, NoteKind::kMissingWeights);
    loaded.notes.Remove(shown, NoteKind::kAlsoInFile);
    NoteOthers(shown, bytes, reading, loaded.notes);
  }
  NameList missing;
  for (const ParameterId id : WithoutNumber(kind, reading)) {
    missing.Add(QuotedName(id));
  }
  if (!missing.empty()) {
    loaded.notes.Add({shown, 0,
                      Localized("The weight code takes no number of the file, "
                                "or no single one, for %1. The 0 shown there "
                                "is none of the bot's values.",
                                {missing.Text()})});
  }
  if (!unsure.empty()) {
    loaded.notes.Add({shown, 0,
                      Localized("Of these the weight code has several "
                                "numbers, and the largest is shown: %1.",
                                {unsure.Text()})});
  }
  if (reading.report.given.empty() && pairs.empty()) {
    loaded.notes.Add({shown, 0,
                      Localized("What the file says is only understood "
                                "together with the weight code of the game "
                                "that it was made for. Give the folder of that "
                                "game in the options.")});
  }
}

}  // namespace fragsmith
