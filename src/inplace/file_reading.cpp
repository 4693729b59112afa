#include "inplace/file_reading.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/weight_file.h"
#include "chat/chat_file.h"
#include "chat/chat_line.h"
#include "chat/vocabulary.h"
#include "game/lexer.h"
#include "game/skill_mix.h"
#include "game/stand_ins.h"
#include "game/weight_reader.h"
#include "inplace/our_facts.h"
#include "model/characteristic_catalogue.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// The same look-up, but each file is fetched only once.
IncludeLookup Remembering(IncludeLookup game) {
  using Known = std::map<std::string, std::optional<std::string>, std::less<>>;
  return [game = std::move(game),
          known = std::make_shared<Known>()](std::string_view path) {
    const auto found = known->find(path);
    if (found != known->end()) return found->second;
    return known->emplace(path, game(path)).first->second;
  };
}

template <typename Number>
FactKey Indexed(FactKind kind, Number number) {
  return {.kind = kind, .group = 0, .name = std::to_string(number)};
}

/// Values that the game has at two levels, and between them not.
void AddUnmixedFacts(FileReading& reading) {
  using Kind = CharacterValue::Kind;
  for (const auto& [lower, upper] : kMixedLevels) {
    const auto below = reading.levels.find(lower);
    const auto above = reading.levels.find(upper);
    if (below == reading.levels.end() || above == reading.levels.end()) {
      continue;
    }
    const std::string at_lower = std::to_string(NumberOf(lower));
    const std::string at_upper = std::to_string(NumberOf(upper));
    for (const auto& [number, value] : below->second.values) {
      const auto other = above->second.values.find(number);
      if (other == above->second.values.end() ||
          value.kind != Kind::kFraction || other->second.kind != Kind::kWhole) {
        continue;
      }
      const std::string shown = FactOf(other->second.number);
      reading.facts[{.kind = FactKind::kUnmixed,
                     .group = static_cast<std::size_t>(NumberOf(lower)),
                     .name = std::to_string(number)}] =
          Localized(
              "At skills between the levels %1 and %2 the game would "
              "have no value: it mixes a number that has a point, as at "
              "level %1, with none that has not, as %3 at level %2. Write "
              "%3.0 there first.",
              {at_lower, at_upper, shown});
    }
  }
}

void AddGameFacts(FileReading& reading) {
  AddUnmixedFacts(reading);
  Facts& facts = reading.facts;
  for (const auto& [level, block] : reading.levels) {
    for (const auto& [number, value] : block.values) {
      facts[LevelFact(level, number)] =
          value.kind == CharacterValue::Kind::kText ? FactOf(Value(value.text))
                                                    : FactOf(value.number);
    }
  }
  for (const OwnMacro& macro : reading.weights.macros) {
    facts[MacroFact(macro.name)] = macro.text;
  }
  std::size_t at = 0;
  for (const GameWeight& weight : reading.weights.weights) {
    facts[{
        .kind = FactKind::kWeightReturns, .group = 0, .name = weight.name}] +=
        std::to_string(weight.returns.size()) + ' ';
    for (const WeightReturn& way : weight.returns) {
      if (way.own) facts[OwnWeightFact(at)] = FactOf(way.own->number);
      std::string& when = facts[Indexed(FactKind::kReturnCases, at)];
      for (const WeightReturn::Case& one : way.cases) {
        when += std::to_string(one.inventory) + ' ' +
                (one.below ? FactOf(*one.below) : "else") + ' ';
      }
      std::string& given = facts[GivenWeightFact(at)];
      for (const double value : way.values) given += FactOf(value) + ' ';
      ++at;
    }
  }
  for (const FoundWeight& found : reading.found) {
    facts[WeighedFact(found.parameter)] = FactOf(found);
  }
  const std::vector<FactKey> chat_facts = ChatTypeFacts(reading.chat);
  for (std::size_t index = 0; index < chat_facts.size(); ++index) {
    std::vector<std::string> words;
    for (const GameChatLine& line : reading.chat.types[index].lines) {
      words.push_back(line.words);
    }
    facts[chat_facts[index]] = FactOfWords(words);
  }
  for (std::size_t set = 0; set < reading.descriptions.size(); ++set) {
    for (const auto& [key, value] : reading.descriptions[set].values) {
      facts[DescriptionFact(set, key)] = value.text;
    }
  }
}

}  // namespace

FactKey RuleFact(ParameterId id) {
  return Indexed(FactKind::kRule, id.number());
}

FactKey PlainFact(ParameterId id) {
  return Indexed(FactKind::kPlain, id.number());
}

FactKey RuleFact(ChatTypeId type) {
  return Indexed(FactKind::kRuleChat, IndexOf(type));
}

FactKey LevelFact(Level level, int game_number) {
  return {.kind = FactKind::kInGame,
          .group = static_cast<std::size_t>(NumberOf(level)),
          .name = std::to_string(game_number)};
}

FactKey MacroFact(std::string_view name) {
  return {.kind = FactKind::kMacro, .group = 0, .name = std::string(name)};
}

FactKey OwnWeightFact(std::size_t index) {
  return Indexed(FactKind::kOwnWeight, index);
}

FactKey GivenWeightFact(std::size_t index) {
  return Indexed(FactKind::kGivenWeight, index);
}

FactKey WeighedFact(ParameterId id) {
  return Indexed(FactKind::kWeighed, id.number());
}

FactKey ChatTypeFact(std::string_view type, std::size_t among_same) {
  return {.kind = FactKind::kGameChat,
          .group = among_same,
          .name = std::string(type)};
}

std::vector<FactKey> ChatTypeFacts(const GameChat& chat) {
  // The same type may stand there twice.
  std::map<std::string_view, std::size_t> counts;
  std::vector<FactKey> keys;
  for (const GameChatType& type : chat.types) {
    keys.push_back(ChatTypeFact(type.name, counts[type.name]++));
  }
  return keys;
}

FactKey DescriptionFact(std::size_t set, std::string_view key) {
  return {
      .kind = FactKind::kDescription, .group = set, .name = std::string(key)};
}

std::string FactOf(const Value& value) {
  const std::optional<double> number = ToNumber(value);
  return number ? FactOf(*number) : '"' + ToText(value);
}

std::string FactOf(double number) {
  return PlainDecimal(number, kDoubleDigits);
}

std::string FactOf(const FoundWeight& weight,
                   const std::map<std::size_t, double>& edited) {
  std::vector<OwnNumber> numbers = weight.others;
  numbers.push_back(weight.own);
  std::sort(numbers.begin(), numbers.end(),
            [](const OwnNumber& left, const OwnNumber& right) {
              return left.span.begin < right.span.begin;
            });
  std::string text;
  for (const OwnNumber& one : numbers) {
    const auto other = edited.find(one.span.begin);
    text += FactOf(other == edited.end() ? one.number : other->second) + ' ';
  }
  return text;
}

std::string FactOf(const std::vector<std::string>& chat_lines) {
  std::string text;
  for (const std::string& line : chat_lines) text += line + '\n';
  // A type without lines may have an empty one in the editor.
  return text == "\n" ? std::string() : text;
}

std::string FactOfWords(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& line : words) text += line + '\f';
  return text;
}

BothReaders::BothReaders(FileOfBot file, IncludeLookup game)
    : file_(std::move(file)), game_(Remembering(std::move(game))) {
  if (file_.kind == BotFile::kChat) {
    lists_ = WordLists::Parse(game_("rnd.c").value_or(std::string()));
  }
  if (file_.kind != BotFile::kCharacteristics) return;
  std::optional<std::string> keys = game_("chars.h");
  if (!keys) keys = StandInGameFile("chars.h");
  const GameFile chars = {"chars.h", "chars.h", std::move(*keys)};
  Complaints untold;
  GameSource source(chars, game_, untold);
  GameToken token;
  while (source.Read(token)) {
  }
  for (const OwnMacro& macro : source.OwnMacros()) {
    const std::optional<double> number = NumberFromText(macro.text);
    constexpr double kMax = 1000;
    if (!number || *number < 0 || *number > kMax) continue;
    numbers_.emplace(macro.name, static_cast<int>(*number));
  }
}

std::optional<int> BothReaders::GameNumber(int index) const {
  const auto found = numbers_.find(BareKey(index));
  if (found == numbers_.end()) return std::nullopt;
  return found->second;
}

GameFile BothReaders::AsGameFile(std::string_view bytes) const {
  const std::string name = file_.called + std::string(FileSuffix(file_.kind));
  return {file_.shown, InBots(name), std::string(bytes)};
}

void BothReaders::ReadAsWeDo(std::string_view bytes,
                             FileReading& reading) const {
  Bot& bot = reading.bot;
  switch (file_.kind) {
    case BotFile::kDescription: {
      // The bot of this name is looked for among those of the file.
      bot.Put(kNameField, file_.called);
      DescriptionReport report =
          ReadDescriptionFile(bytes, file_.shown, bot, file_.called);
      reading.block = report.block;
      reading.report = std::move(report);
      break;
    }
    case BotFile::kCharacteristics:
      reading.report =
          ReadCharacteristicFile(bytes, file_.shown, ReadIdentity::kYes, bot);
      break;
    case BotFile::kChat:
      reading.report = ReadChatFile(bytes, file_.shown, bot);
      break;
    case BotFile::kItemWeights:
      reading.report = ReadItemWeightFile(bytes, file_.shown, bot);
      break;
    case BotFile::kWeaponWeights:
      reading.report = ReadWeaponWeightFile(bytes, file_.shown, bot);
      break;
  }
  AddOurFacts(file_.kind, reading);
}

bool BothReaders::ReadAsGame(std::string_view bytes, Complaints& complaints,
                             FileReading& reading) const {
  const GameFile file = AsGameFile(bytes);
  switch (file_.kind) {
    case BotFile::kDescription:
      reading.descriptions = ReadGameDescription(file, complaints);
      return true;
    case BotFile::kCharacteristics:
      for (const Level level : kLevels) {
        std::optional<CharacterBlock> block =
            ReadCharacterBlock(file, NumberOf(level), game_, complaints);
        if (block) reading.levels.emplace(level, std::move(*block));
      }
      return reading.levels.size() == kLevels.size();
    case BotFile::kChat:
      return ReadGameChat(file, ChatNameIn(bytes, file_.chat_names), game_,
                          complaints, &reading.chat);
    case BotFile::kItemWeights:
    case BotFile::kWeaponWeights:
      reading.weights = ReadGameWeights(file, game_, complaints);
      KeepUsedWeights(reading.weights);
      reading.found =
          FindWeights(reading.weights, file_.kind == BotFile::kItemWeights
                                           ? kItemWeightRange
                                           : kWeaponWeightRange);
      break;
  }
  return reading.weights.is_loaded;
}

namespace {

/// What is wrong and where, which in another file than the shown one is told
/// with its name.
std::string FirstErrorText(const Complaint& complaint, std::string_view shown) {
  const FilePlace& place = complaint.place;
  const std::string line = std::to_string(place.line);
  if (place.file == shown) {
    return place.line > 0 ? Localized("line %1: %2", {line, complaint.text})
                          : complaint.text;
  }
  return place.line > 0
             ? Localized("%1, line %2: %3", {place.file, line, complaint.text})
             : place.file + ", " + complaint.text;
}

}  // namespace

FileReading BothReaders::Read(std::string_view bytes) const {
  FileReading reading;
  ReadAsWeDo(bytes, reading);
  Complaints complaints;
  ReadAsGame(bytes, complaints, reading);
  for (const Complaint& complaint : complaints.list()) {
    if (complaint.severity != Severity::kError) continue;
    ++reading.errors[std::string(complaint.id)];
    if (!reading.first_error.empty()) continue;
    const FilePlace& place = complaint.place;
    if (place.file == file_.shown && place.line > 0) {
      reading.first_error_line = static_cast<std::size_t>(place.line);
    }
    reading.first_error = FirstErrorText(complaint, file_.shown);
  }
  AddGameFacts(reading);
  return reading;
}

std::optional<Complaint> BothReaders::FaultInGame(
    std::string_view bytes) const {
  // Every game has it, and nothing stands in for it.
  Complaints complaints(game_("rnd.c").has_value());
  FileReading reading;
  const bool is_taken = ReadAsGame(bytes, complaints, reading);
  return is_taken ? std::nullopt : complaints.FirstError(0);
}

ChatSpellings SpellingsIn(std::string_view bytes, const FileReading& reading) {
  std::map<std::size_t, std::size_t> statements;  // Ends, by their beginnings.
  for (const GameChatType& type : reading.chat.types) {
    for (const GameChatLine& line : type.lines) {
      statements.insert_or_assign(line.span.begin, line.span.end);
    }
  }
  ChatSpellings spellings;
  std::map<ChatTypeId, std::size_t> counts;
  for (const ReadReport::ChatLineAt& line : reading.report.chat_lines) {
    const std::vector<std::string>& texts = reading.bot.ChatLines(line.type);
    const std::size_t at = counts[line.type]++;
    const auto statement = statements.lower_bound(line.span.begin);
    if (at >= texts.size() || statement == statements.end() ||
        statement->second > line.span.end) {
      continue;
    }
    const std::string_view written =
        bytes.substr(statement->first, statement->second - statement->first);
    if (written == ChatLineToFile(line.type, texts[at])) continue;
    spellings.emplace(texts[at], written);
  }
  return spellings;
}

std::string NameOfFact(const FactKey& fact, const FileReading& reading) {
  for (const FoundWeight& found : reading.found) {
    if (fact == WeighedFact(found.parameter))
      return QuotedName(found.parameter);
  }
  for (const ParameterId id : reading.report.given) {
    if (fact == RuleFact(id) || fact == PlainFact(id)) return QuotedName(id);
  }
  std::size_t at = 0;
  for (const GameWeight& weight : reading.weights.weights) {
    for (std::size_t way = 0; way < weight.returns.size(); ++way) {
      const bool is_it =
          fact == OwnWeightFact(at) || fact == GivenWeightFact(at);
      ++at;
      if (!is_it) continue;
      for (const FoundWeight& found : reading.found) {
        if (OwnerOf(weight, found.parameter) == WeightOwner::kParameter) {
          return QuotedName(found.parameter);
        }
      }
      return '"' + Utf8FromGameText(weight.name) + '"';
    }
  }
  return {};
}

std::string ChatNameIn(std::string_view bytes,
                       const std::vector<std::string>& names) {
  std::vector<std::string> there;
  GameLexer lexer(bytes);
  GameToken token;
  bool is_behind_chat = false;
  while (lexer.Next(token) == GameLexer::Outcome::kToken) {
    if (is_behind_chat && token.kind == GameToken::Kind::kString) {
      there.push_back(token.text);
    }
    is_behind_chat = token.Is("chat");
  }
  for (const std::string& name : names) {
    for (const std::string& one : there) {
      if (EqualIgnoringCase(one, name)) return one;
    }
  }
  return there.empty() ? std::string() : there.front();
}

}  // namespace fragsmith
