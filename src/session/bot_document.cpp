#include "session/bot_document.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "chat/chat_catalogue.h"
#include "model/characteristic_catalogue.h"
#include "session/bot_document_json.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

// A written document keeps the order of its keys. What is read comes sorted:
// finding a key must not be linear in a document of a million of them.
using OrderedJson = nlohmann::ordered_json;
using Json = nlohmann::json;

/// A document had the same keys before it said its version.
constexpr std::array<Migration, 1> kSteps = {
    {{.from = 0, .Apply = [](Json& /*document*/) {}}}};
static_assert(HasNoGap(kSteps));

constexpr std::string_view kDefinePrefix = "#define ";

struct IdentityKey {
  std::string_view key;
  ParameterId field;
};

constexpr std::array<IdentityKey, 10> kIdentityKeys = {{
    {"name", kNameField},
    {"gender", kGenderField},
    {"funName", kFunNameField},
    {"railColor", kRailColorField},
    {"model", kModelField},
    {"skin", kSkinField},
    {"versionMajor", kVersionMajorField},
    {"versionMinor", kVersionMinorField},
    {"comment", kCommentField},
    {"arenaLord", kArenaLordField},
}};

struct SingleGroup {
  std::string_view key;
  IndexRange range;
};

constexpr std::array<SingleGroup, 3> kSingleGroups = {{
    {"chatCharacteristics", kChatRange},
    {"weaponWeights", kWeaponWeightRange},
    {"itemWeights", kItemWeightRange},
}};

/// The key of a parameter in a document: a macro goes without its "#define".
std::string_view DocumentKey(int index) {
  std::string_view key = BareKey(index);
  if (key.starts_with(kDefinePrefix)) key.remove_prefix(kDefinePrefix.size());
  return key;
}

// Writing.

OrderedJson NumberToJson(double number) {
  constexpr double kMaxExactWhole = 9007199254740992.0;
  if (std::trunc(number) == number && std::fabs(number) <= kMaxExactWhole) {
    return static_cast<std::int64_t>(number);
  }
  return number;
}

OrderedJson IdentityToJson(const Bot& bot, ParameterId field) {
  switch (field.index()) {
    case kFunNameField.index():
      return Utf8FromGameText(FunNameForBox(bot.FunName()));
    case kVersionMajorField.index():
    case kVersionMinorField.index():
      // By its text, as it stands in a box and is read.
      return ValueToJson(bot.Text(field));
    case kRailColorField.index():
    case kArenaLordField.index():
      return ValueToJson(bot.Parameter(field));
    default:
      return Utf8FromGameText(bot.Text(field));
  }
}

/// A single parameter, or one of a level.
ParameterId IdOf(std::optional<Level> level, int index) {
  return level ? ParameterId(*level, index) : ParameterId(index);
}

OrderedJson ParametersToJson(const Bot& bot, IndexRange range,
                             std::optional<Level> level) {
  OrderedJson values = OrderedJson::object();
  for (const int index : range) {
    values[std::string(DocumentKey(index))] =
        ValueToJson(bot.Parameter(IdOf(level, index)));
  }
  return values;
}

OrderedJson ChatsToJson(const Bot& bot) {
  OrderedJson chats = OrderedJson::object();
  for (const ChatTypeId type : kAllChatTypes) {
    OrderedJson lines = OrderedJson::array();
    for (const std::string& line : bot.ChatLines(type)) {
      lines.push_back(Utf8FromGameText(line));
    }
    // The one empty line of a type without texts is the editor's own.
    if (bot.ChatLines(type) == std::vector<std::string>(1)) lines.clear();
    chats[std::string(ChatTypeAt(type).Key)] = std::move(lines);
  }
  return chats;
}

// Reading.

std::string ReadText(const Json& json, const std::string& field) {
  if (!json.is_string())
    RefuseField(field, Localized("a text is wanted here."));
  const std::optional<std::string> text =
      GameTextFromUtf8(json.get_ref<const std::string&>());
  if (!text) {
    RefuseField(field,
                Localized("the text has a character that the game's code page "
                          "lacks."),
                Localized("Only characters of Windows-1252 can be used."));
  }
  if (text->find_first_of("\r\n") != std::string::npos) {
    RefuseField(field, Localized("the text has a line break."),
                Localized("The game's files hold each text on one line."));
  }
  return *text;
}

const Json& Object(const Json& json, const std::string& field) {
  if (!json.is_object())
    RefuseField(field, Localized("an object is wanted here."));
  return json;
}

void Store(Bot& bot, ParameterId parameter, Value value,
           const std::string& field) {
  const Result<void> stored = bot.SetParameter(parameter, std::move(value));
  if (!stored) RefuseField(field, stored.error().what);
}

void ReadIdentity(const Json& json, ParameterId field, const std::string& key,
                  BotDocument& document) {
  switch (field.index()) {
    case kNameField.index():
    case kFunNameField.index():
    case kCommentField.index():
      document.texts.insert_or_assign(field, ReadText(json, key));
      break;
    case kVersionMajorField.index():
    case kVersionMinorField.index():
      document.texts.insert_or_assign(field, ToText(ValueFromJson(json, key)));
      break;
    case kRailColorField.index():
    case kArenaLordField.index():
      Store(document.bot, field, ValueFromJson(json, key), key);
      break;
    default:
      Store(document.bot, field, ReadText(json, key), key);
  }
}

void ReadParameters(const Json& json, IndexRange range,
                    std::optional<Level> level, const std::string& field,
                    const UnknownKeys& unknown, Bot& bot) {
  std::map<std::string_view, int> indices;
  for (const int index : range) indices.emplace(DocumentKey(index), index);
  for (const auto& [key, value] : Object(json, field).items()) {
    std::string path = field;
    path += '.';
    path += key;
    const auto found = indices.find(key);
    if (found == indices.end()) {
      unknown.Meet(path, Localized("there is no such key."));
      continue;
    }
    Store(bot, IdOf(level, found->second), ValueFromJson(value, path), path);
  }
}

void ReadLevels(const Json& json, const UnknownKeys& unknown, Bot& bot) {
  for (const auto& [key, value] : Object(json, "levels").items()) {
    const std::string field = "levels." + key;
    const auto* const level =
        std::find_if(kLevels.begin(), kLevels.end(), [&name = key](Level one) {
          return std::to_string(NumberOf(one)) == name;
        });
    if (level == kLevels.end()) {
      unknown.Meet(field, Localized("a bot has the levels 1, 4 and 5 only."));
      continue;
    }
    ReadParameters(value, kPerLevelRange, *level, field, unknown, bot);
  }
}

void ReadChats(const Json& json, const UnknownKeys& unknown, Bot& bot) {
  std::map<std::string_view, ChatTypeId> types;
  for (const ChatTypeId type : kAllChatTypes) {
    types.emplace(ChatTypeAt(type).Key, type);
  }
  for (const auto& [key, lines] : Object(json, "chats").items()) {
    const std::string field = "chats." + key;
    const auto type = types.find(key);
    if (type == types.end()) {
      unknown.Meet(field, Localized("there is no such chat type."));
      continue;
    }
    if (!lines.is_array())
      RefuseField(field, Localized("a list of texts is wanted here."));
    ChatLineIndex next;
    for (const Json& line : lines) {
      bot.SetChatLine(
          type->second, next,
          ReadText(line, field + "[" + std::to_string(next.index()) + "]"));
      next = next.Next();
    }
  }
}

void ReadKey(const std::string& key, const Json& value,
             const UnknownKeys& unknown, BotDocument& document) {
  for (const IdentityKey& identity : kIdentityKeys) {
    if (identity.key == key) {
      return ReadIdentity(value, identity.field, key, document);
    }
  }
  for (const SingleGroup& group : kSingleGroups) {
    if (group.key == key) {
      return ReadParameters(value, group.range, std::nullopt, key, unknown,
                            document.bot);
    }
  }
  if (key == "levels") return ReadLevels(value, unknown, document.bot);
  if (key == "chats") return ReadChats(value, unknown, document.bot);
  unknown.Meet(key, Localized("there is no such key."));
}

}  // namespace

/// Numeric texts count and are written as their number.
OrderedJson ValueToJson(const Value& value) {
  const std::optional<double> number = ToNumber(value);
  return number ? NumberToJson(*number)
                : OrderedJson(Utf8FromGameText(ToText(value)));
}

Value ValueFromJson(const Json& json, const std::string& field) {
  if (json.is_number()) return json.get<double>();
  if (!json.is_string()) {
    RefuseField(field, Localized("a number or a text is wanted here."));
  }
  return ReadText(json, field);
}

Bot UncheckedBot(BotDocument document) {
  for (const auto& [field, text] : document.texts) {
    const Result<void> stored = document.bot.SetParameter(field, text);
    if (!stored) RefuseField("bot", stored.error().what);
  }
  return std::move(document.bot);
}

BotDocument BotDocumentFromJson(Json json, UnknownKeys unknown) {
  BringUpToDate(json, kSteps, unknown);
  BotDocument document;
  document.texts = BoxTextsOf(document.bot);
  for (const auto& [key, value] : json.items()) {
    ReadKey(key, value, unknown, document);
  }
  return document;
}

OrderedJson BotDocumentToJson(const Bot& bot) {
  OrderedJson json = OrderedJson::object();
  json[kFormatKey] = FormatBehind(kSteps);
  for (const IdentityKey& identity : kIdentityKeys) {
    json[std::string(identity.key)] = IdentityToJson(bot, identity.field);
  }
  OrderedJson& levels = json["levels"] = OrderedJson::object();
  for (const Level level : kLevels) {
    levels[std::to_string(NumberOf(level))] =
        ParametersToJson(bot, kPerLevelRange, level);
  }
  for (const SingleGroup& group : kSingleGroups) {
    json[std::string(group.key)] =
        ParametersToJson(bot, group.range, std::nullopt);
  }
  json["chats"] = ChatsToJson(bot);
  return json;
}

Result<BotDocument> ReadBotDocument(std::string_view json,
                                    const std::string& file, Notes& notes) {
  return ReadJson(json, file, [&](Json parsed) {
    return BotDocumentFromJson(
        std::move(parsed), {.are_slips = true, .file = file, .notes = notes});
  });
}

std::string WriteBotDocument(const Bot& bot) {
  return BotDocumentToJson(bot).dump(2) + "\n";
}

}  // namespace fragsmith
