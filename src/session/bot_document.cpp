#include "session/bot_document.h"

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
#include "support/code_page.h"
#include "support/text.h"

namespace fragsmith {
namespace {

// A written document keeps the order of its keys. What is read comes sorted:
// finding a key must not be linear in a document of a million of them.
using OrderedJson = nlohmann::ordered_json;
using Json = nlohmann::json;

constexpr std::string_view kDefinePrefix = "#define ";

struct IdentityKey {
  std::string_view key;
  int field;
};

constexpr std::array<IdentityKey, 10> kIdentityKeys = {{
    {"name", kNameIndex},
    {"gender", kGenderIndex},
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
  constexpr double kMostExactWhole = 9007199254740992.0;
  if (std::trunc(number) == number && std::fabs(number) <= kMostExactWhole) {
    return static_cast<std::int64_t>(number);
  }
  return number;
}

/// Numeric texts count and are written as their number.
OrderedJson ValueToJson(const Value& value) {
  const std::optional<double> number = ToNumber(value);
  return number ? NumberToJson(*number)
                : OrderedJson(Utf8FromGameText(ToText(value)));
}

OrderedJson IdentityToJson(const Bot& bot, int field) {
  switch (field) {
    case kFunNameField:
      return Utf8FromGameText(FunNameForBox(bot.FunName()));
    case kVersionMajorField:
    case kVersionMinorField:
      // By its text, as it stands in a box and is read.
      return ValueToJson(bot.Text(field));
    case kRailColorField:
    case kArenaLordField:
      return ValueToJson(bot.Parameter(field));
    default:
      return Utf8FromGameText(bot.Text(field));
  }
}

OrderedJson ParametersToJson(const Bot& bot, IndexRange range, int level) {
  OrderedJson values = OrderedJson::object();
  for (int index = range.first; index <= range.last; ++index) {
    const int parameter = level == 0 ? index : LevelIndex(level, index);
    values[std::string(DocumentKey(index))] =
        ValueToJson(bot.Parameter(parameter));
  }
  return values;
}

OrderedJson ChatsToJson(const Bot& bot) {
  OrderedJson chats = OrderedJson::object();
  for (int type = 0; type < kChatTypeCount; ++type) {
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

// Reading. The first fault ends it, so that it can be an exception that never
// leaves this file.

struct DocumentFault {
  Error error;
};

/// The name of a field; of a very long one the characters at its beginning.
std::string ShownField(const std::string& field) {
  constexpr std::size_t kMost = 80;
  if (field.size() <= kMost) return field;
  std::size_t end = kMost;
  while ((static_cast<unsigned char>(field[end]) & 0xC0U) == 0x80U) --end;
  return field.substr(0, end) + "...";
}

[[noreturn]] void Refuse(const std::string& field, const std::string& reason,
                         const std::string& advice = {}) {
  throw DocumentFault{{.what = "Field " + ShownField(field) + ": " + reason,
                       .file = {},
                       .line = 0,
                       .advice = advice}};
}

std::string ReadText(const Json& json, const std::string& field) {
  if (!json.is_string()) Refuse(field, "a text is wanted here.");
  const std::optional<std::string> text =
      GameTextFromUtf8(json.get_ref<const std::string&>());
  if (!text) {
    Refuse(field, "the text has a character that the game's code page lacks.",
           "Only characters of Windows-1252 can be used.");
  }
  if (text->find_first_of("\r\n") != std::string::npos) {
    Refuse(field, "the text has a line break.",
           "The game's files hold each text on one line.");
  }
  return *text;
}

Value ReadValue(const Json& json, const std::string& field) {
  if (json.is_number()) return json.get<double>();
  if (!json.is_string()) Refuse(field, "a number or a text is wanted here.");
  return ReadText(json, field);
}

const Json& Object(const Json& json, const std::string& field) {
  if (!json.is_object()) Refuse(field, "an object is wanted here.");
  return json;
}

void Store(Bot& bot, int parameter, Value value, const std::string& field) {
  const Result<void> stored = bot.SetParameter(parameter, std::move(value));
  if (!stored) Refuse(field, stored.error().what);
}

void ReadIdentity(const Json& json, int field, const std::string& key,
                  BotDocument& document) {
  switch (field) {
    case kNameIndex:
    case kFunNameField:
    case kCommentField:
      document.texts[field] = ReadText(json, key);
      break;
    case kVersionMajorField:
    case kVersionMinorField:
      document.texts[field] = ToText(ReadValue(json, key));
      break;
    case kRailColorField:
    case kArenaLordField:
      Store(document.bot, field, ReadValue(json, key), key);
      break;
    default:
      Store(document.bot, field, ReadText(json, key), key);
  }
}

void ReadParameters(const Json& json, IndexRange range, int level,
                    const std::string& field, Bot& bot) {
  std::map<std::string_view, int> places;
  for (int index = range.first; index <= range.last; ++index) {
    places.emplace(DocumentKey(index), index);
  }
  for (const auto& [key, value] : Object(json, field).items()) {
    std::string place = field;
    place += '.';
    place += key;
    const auto found = places.find(key);
    if (found == places.end()) Refuse(place, "there is no such key.");
    const int index = found->second;
    Store(bot, level == 0 ? index : LevelIndex(level, index),
          ReadValue(value, place), place);
  }
}

void ReadLevels(const Json& json, Bot& bot) {
  for (const auto& [key, value] : Object(json, "levels").items()) {
    const std::string field = "levels." + key;
    if (key != "1" && key != "4" && key != "5") {
      Refuse(field, "a bot has the levels 1, 4 and 5 only.");
    }
    ReadParameters(value, kPerLevelRange, std::stoi(key), field, bot);
  }
}

void ReadChats(const Json& json, Bot& bot) {
  std::map<std::string_view, int> types;
  for (int type = 0; type < kChatTypeCount; ++type) {
    types.emplace(ChatTypeAt(type).Key, type);
  }
  for (const auto& [key, lines] : Object(json, "chats").items()) {
    const std::string field = "chats." + key;
    const auto type = types.find(key);
    if (type == types.end()) Refuse(field, "there is no such chat type.");
    if (!lines.is_array()) Refuse(field, "a list of texts is wanted here.");
    int number = 0;
    for (const Json& line : lines) {
      bot.SetChatLine(
          type->second, number,
          ReadText(line, field + "[" + std::to_string(number) + "]"));
      ++number;
    }
  }
}

void ReadKey(const std::string& key, const Json& value, BotDocument& document) {
  for (const IdentityKey& identity : kIdentityKeys) {
    if (identity.key == key) {
      return ReadIdentity(value, identity.field, key, document);
    }
  }
  for (const SingleGroup& group : kSingleGroups) {
    if (group.key == key) {
      return ReadParameters(value, group.range, 0, key, document.bot);
    }
  }
  if (key == "levels") return ReadLevels(value, document.bot);
  if (key == "chats") return ReadChats(value, document.bot);
  Refuse(key, "there is no such key.");
}

/// Parses, and stops at a nesting that no document has before it fills the
/// memory.
Json ParseJson(std::string_view text) {
  constexpr int kMostDepth = 8;
  const auto limit = [](int depth, Json::parse_event_t event, Json& /*part*/) {
    const bool opens = event == Json::parse_event_t::object_start ||
                       event == Json::parse_event_t::array_start;
    if (opens && depth > kMostDepth) {
      throw DocumentFault{{.what = "The document is nested too deeply.",
                           .file = {},
                           .line = 0,
                           .advice = {}}};
    }
    return true;
  };
  return Json::parse(text, limit);
}

/// The message of the JSON library without its own error number and without
/// the text that it read last, which may be megabytes of anything.
std::string Reason(const nlohmann::json::exception& exception) {
  std::string_view text = exception.what();
  const std::size_t end = text.find("] ");
  if (end != std::string_view::npos) text.remove_prefix(end + 2);
  text = text.substr(0, text.find("; last read: "));
  constexpr std::size_t kMost = 200;
  return std::string(text.substr(0, kMost));
}

}  // namespace

Result<BotDocument> ReadBotDocument(std::string_view json) {
  if (json.size() > kMostDocumentBytes) {
    return Failure({.what = "The document is larger than " +
                            std::to_string(kMostDocumentBytes >> 20U) + " MiB.",
                    .file = {},
                    .line = 0,
                    .advice = "Check that it is the right one."});
  }
  try {
    BotDocument document;
    document.texts = BoxTextsOf(document.bot);
    const Json parsed = ParseJson(json);
    if (!parsed.is_object()) {
      throw DocumentFault{{.what = "The document is no JSON object.",
                           .file = {},
                           .line = 0,
                           .advice = {}}};
    }
    for (const auto& [key, value] : parsed.items()) {
      ReadKey(key, value, document);
    }
    return document;
  } catch (const DocumentFault& fault) {
    return Failure(fault.error);
  } catch (const nlohmann::json::exception& exception) {
    return Failure({.what = "This is no valid JSON: " + Reason(exception),
                    .file = {},
                    .line = 0,
                    .advice = {}});
  }
}

std::string WriteBotDocument(const Bot& bot) {
  OrderedJson json = OrderedJson::object();
  for (const IdentityKey& identity : kIdentityKeys) {
    json[std::string(identity.key)] = IdentityToJson(bot, identity.field);
  }
  OrderedJson& levels = json["levels"] = OrderedJson::object();
  for (const int level : kSkillLevels) {
    levels[std::to_string(level)] =
        ParametersToJson(bot, kPerLevelRange, level);
  }
  for (const SingleGroup& group : kSingleGroups) {
    json[std::string(group.key)] = ParametersToJson(bot, group.range, 0);
  }
  json["chats"] = ChatsToJson(bot);
  return json.dump(2) + "\n";
}

}  // namespace fragsmith
