#include "inplace/our_facts.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "model/characteristic_catalogue.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// The parameters that a file of the kind may hold.
std::vector<ParameterId> ParametersOf(BotFile kind) {
  std::vector<ParameterId> ids;
  const auto add = [&ids](IndexRange range) {
    for (const int index : range) ids.emplace_back(index);
  };
  switch (kind) {
    case BotFile::kDescription:
      return {kFunNameField, kRailColorField, kModelField, kSkinField,
              kArenaLordField};
    case BotFile::kCharacteristics:
      ids = {kNameField, kGenderField};
      add(kChatRange);
      for (const Level level : kLevels) {
        for (const int index : kPerLevelRange) ids.emplace_back(level, index);
      }
      break;
    case BotFile::kItemWeights:
      add(kItemWeightRange);
      break;
    case BotFile::kWeaponWeights:
      add(kWeaponWeightRange);
      break;
    case BotFile::kChat:
      break;
  }
  return ids;
}

std::string FieldFact(ParameterId id, const Value& value) {
  // Case is the catalogue's to choose.
  const bool is_model = id == kModelField || id == kSkinField;
  if (is_model) return ToLower(ToText(value));
  // A load takes a comment behind a number along, and tells so.
  const std::string text = ToText(value);
  const std::size_t comment = std::min(text.find("//"), text.find("/*"));
  const bool has_number =
      comment != std::string::npos && IsNumericText(text.substr(0, comment));
  return FactOf(has_number ? Value(text.substr(0, comment)) : value);
}

/// True for a text that is the plain one, in quotes or not, with what a load
/// takes along and tells of: a comment behind it, or the "1" of the key color1
/// in front.
bool IsWithMore(ParameterId id, std::string_view text, std::string_view plain) {
  const auto is_comment = [](std::string_view rest) {
    return rest.starts_with("//") || rest.starts_with("/*");
  };
  // The "/" of a skin may be the comment's own.
  if (id == kSkinField && is_comment('/' + std::string(text))) return true;
  text = TrimBlanks(text);
  const bool is_of_color1 = id == kRailColorField && text.starts_with('1');
  if (is_of_color1) text = TrimBlanks(text.substr(1));
  // Of the quotation marks it may have taken away the first alone.
  if (text.starts_with('"')) text.remove_prefix(1);
  if (!ToLower(text).starts_with(ToLower(plain))) return false;
  text.remove_prefix(plain.size());
  if (text.starts_with('"')) text.remove_prefix(1);
  text = TrimBlanks(text);
  return is_comment(text) || (is_of_color1 && text.empty());
}

/// True for a text of which a comment is the beginning and the plain number the
/// end: a load goes by columns, and tells what it takes.
bool IsBehindComment(std::string_view text, const Value& plain) {
  constexpr std::string_view kEnd = "*/";
  std::size_t end = text.find(kEnd);
  if (end == std::string_view::npos) return false;
  while (end != std::string_view::npos) {
    text = TrimBlanksAndTabs(text.substr(end + kEnd.size()));
    end = text.starts_with("/*") ? text.find(kEnd) : std::string_view::npos;
  }
  text = text.substr(0, std::min(text.find("//"), text.find("/*")));
  const std::optional<double> number = NumberFromText(text);
  return number && number == ToNumber(plain);
}

}  // namespace

void AddOurFacts(BotFile kind, FileReading& reading) {
  Facts& facts = reading.facts;
  for (const ParameterId id : ParametersOf(kind)) {
    const Value& value = reading.bot.Parameter(id);
    const auto plain = reading.report.plain_values.find(id);
    const bool is_odd = plain != reading.report.plain_values.end();
    const bool has_more =
        is_odd && (kind == BotFile::kDescription
                       ? IsWithMore(id, ToText(value), ToText(plain->second))
                       : IsBehindComment(ToText(value), plain->second));
    facts[RuleFact(id)] = FieldFact(id, has_more ? plain->second : value);
    facts[PlainFact(id)] = FieldFact(id, is_odd ? plain->second : value);
  }
  for (const ReadReport::Name& name : reading.report.names) {
    if (name.field == kNameField) continue;
    facts[{.kind = FactKind::kName, .group = 0, .name = name.key}] +=
        name.text + '\n';
  }
  if (kind != BotFile::kChat) return;
  for (const ChatTypeId type : kAllChatTypes) {
    facts[RuleFact(type)] = FactOf(reading.bot.ChatLines(type));
  }
}

}  // namespace fragsmith
