#include "inplace/game_values.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <utility>

#include "botfiles/left_out.h"
#include "chat/chat_catalogue.h"
#include "chat/chat_line.h"
#include "chat/vocabulary.h"
#include "game/lexer.h"
#include "inplace/described_bots.h"
#include "inplace/file_reading.h"
#include "inplace/game_weights.h"
#include "inplace/origin_files.h"
#include "model/characteristic_catalogue.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

bool IsOddNumber(const GameToken& token) {
  return token.oddity != GameToken::Oddity::kNone ||
         token.span.end - token.span.begin != token.text.size() ||
         token.text.find_first_not_of("0123456789.") != std::string::npos;
}

/// Other weight code than our files include may have macros of its own.
bool IsOtherScript(std::string_view name) {
  return EndsWithIgnoringCase(name, ".c") &&
         !EqualIgnoringCase(name, "fw_weap.c") &&
         !EqualIgnoringCase(name, "fw_items.c");
}

/// Files hold no more than a float does.
bool IsSameNumber(const Value& value, double number) {
  const std::optional<double> known = ToNumber(value);
  return known && static_cast<float>(*known) == static_cast<float>(number);
}

/// Puts the game's numbers among the odd values of a load.
class OddNumbers {
 public:
  explicit OddNumbers(LoadedBot& loaded) : loaded_(loaded) {}

  void Take(ParameterId id, double exact) {
    // No more digits than the game has.
    const double number =
        NumberFromText(PlainDecimal(exact, kFloatDigits)).value_or(exact);
    auto& odd = loaded_.plain_values;
    const Value& read = loaded_.bot.Parameter(id);
    const auto plain = odd.find(id);
    if (IsSameNumber(plain == odd.end() ? read : plain->second, number)) return;
    if (IsSameNumber(read, number)) {
      odd.erase(plain);
    } else {
      odd.insert_or_assign(id, number);
    }
    names_.Add(QuotedName(id) + " (" + ShownNumber(number) + ")");
  }

  void Tell(const std::string& shown) {
    if (names_.empty()) return;
    loaded_.notes.Add({shown, 0,
                       Localized("The game takes other numbers than stand in "
                                 "the file, or those of another line: %1.",
                                 {names_.Text()})});
  }

 private:
  LoadedBot& loaded_;
  NameList names_;
};

void TakeLevels(const BothReaders& readers, const FileReading& reading,
                OddNumbers& numbers) {
  std::map<ParameterId, double> found;
  for (const auto& [level, block] : reading.levels) {
    for (const IndexRange range : {kPerLevelRange, kChatRange}) {
      for (const int index : range) {
        const bool is_of_level = kPerLevelRange.Contains(index);
        const std::optional<int> number = readers.GameNumber(index);
        const ParameterId id =
            is_of_level ? ParameterId(level, index) : ParameterId(index);
        if (!number) continue;
        const auto value = block.values.find(*number);
        // Of a block that the game alone sees all of them are its own.
        const bool is_seen = value != block.values.end() && is_of_level;
        if (!is_seen && !reading.report.Gives(id)) continue;
        // A key that is not there for the game, or a text, gives 0.
        if (value != block.values.end()) {
          found[id] = value->second.number;
        } else if (is_of_level) {
          found[id] = 0;
        }
      }
    }
  }
  for (const auto& [id, number] : found) numbers.Take(id, number);
}

bool HasUnreadWeight(const Bot& bot, BotFile kind) {
  if (kind == BotFile::kCharacteristics) return false;
  const IndexRange range =
      kind == BotFile::kWeaponWeights ? kWeaponWeightRange : kItemWeightRange;
  return std::any_of(range.begin(), range.end(), [&bot](int index) {
    return std::holds_alternative<std::monostate>(
        bot.Parameter(ParameterId(index)));
  });
}

}  // namespace

bool NeedsGameReader(std::string_view bytes) {
  GameLexer lexer(bytes);
  GameToken token;
  bool is_command = false;
  bool is_include = false;
  while (lexer.Next(token) == GameLexer::Outcome::kToken) {
    const bool is_odd =
        (token.kind == GameToken::Kind::kNumber && IsOddNumber(token)) ||
        (token.kind == GameToken::Kind::kString && IsNumericText(token.text)) ||
        token.Is("-") || token.Is("+") ||
        (is_include && IsOtherScript(token.text)) ||
        (is_command && !token.Is("include") && !token.Is("define"));
    if (is_odd) return true;
    is_include = is_command && token.Is("include");
    is_command = token.Is("#");
  }
  return false;
}

void TakeGameNumbers(BotFile kind, const std::string& shown,
                     std::string_view bytes, const IncludeLookup& game,
                     LoadedBot& loaded) {
  if (!NeedsGameReader(bytes)) return;
  const BothReaders readers({kind, shown, {}}, game);
  const FileReading reading = readers.Read(bytes);
  OddNumbers numbers(loaded);
  TakeLevels(readers, reading, numbers);
  for (const FoundWeight& found : reading.found) {
    const bool is_one_of_many =
        std::ranges::any_of(found.others, [&](const OwnNumber& other) {
          return IsSameNumber(loaded.bot.Parameter(found.parameter),
                              other.number);
        });
    if (reading.report.SpanOf(found.parameter) && !is_one_of_many) {
      numbers.Take(found.parameter, found.own.number);
    }
  }
  // Without the weight code our own macros are weights by themselves.
  for (const ParameterId id : reading.report.given) {
    if (kind == BotFile::kCharacteristics || !reading.report.SpanOf(id) ||
        std::ranges::count(reading.found, id, &FoundWeight::parameter) > 0) {
      continue;
    }
    const OwnMacro* const macro = MacroOf(reading.weights, id);
    const std::optional<double> number =
        macro == nullptr ? std::nullopt : GameNumberOf(*macro, bytes);
    if (number) numbers.Take(id, *number);
  }
  numbers.Tell(shown);
}

void TakeGameChats(std::string_view bytes, const IncludeLookup& game,
                   Bot& bot) {
  const FileReading reading =
      BothReaders({BotFile::kChat, {}, {}}, game).Read(bytes);
  // A file that the game cannot read has no lines for it.
  if (reading.chat.types.empty() || !reading.errors.empty()) return;
  std::map<std::string, const GameChatType*> last;
  for (const GameChatType& type : reading.chat.types) {
    last[ToLower(type.name)] = &type;
  }
  bot.ClearChats();
  for (const ChatTypeId id : kAllChatTypes) {
    const auto type = last.find(std::string(ChatTypeAt(id).Key));
    if (type == last.end()) continue;
    ChatLineIndex next;
    for (const GameChatLine& line : type->second->lines) {
      std::string text(
          bytes.substr(line.span.begin, line.span.end - line.span.begin));
      std::replace_if(
          text.begin(), text.end(),
          [](char letter) {
            return letter == '\t' || letter == '\r' || letter == '\n';
          },
          ' ');
      if (text.empty()) continue;
      bot.SetChatLine(id, next,
                      ChatLineFromFile(id, TrimBlanksAndTabs(text)).text);
      next = next.Next();
    }
  }
}

void TakeGameValues(LoadedBot& loaded, bool wants_description,
                    const ModelCatalogue& models, const IncludeLookup& game,
                    bool is_listed_name) {
  if (wants_description &&
      (is_listed_name || !loaded.files.contains(BotFile::kDescription))) {
    TakeListedIdentity(loaded, models);
  }
  for (const BotFile kind : {BotFile::kCharacteristics, BotFile::kWeaponWeights,
                             BotFile::kItemWeights}) {
    const auto file = loaded.files.find(kind);
    if (file == loaded.files.end()) continue;
    const Result<std::string> bytes = BytesAt(file->second);
    if (!bytes) continue;
    const std::string shown = ShownAt(file->second);
    const IncludeLookup look_up = LookUpBeside(file->second, game);
    TakeGameNumbers(kind, shown, *bytes, look_up, loaded);
    if (HasUnreadWeight(loaded.bot, kind)) {
      TakeGameWeights(kind, shown, *bytes, look_up, loaded);
    }
  }
}

}  // namespace fragsmith
