#include "session/document_edits.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "model/characteristic_catalogue.h"
#include "session/bot_difference.h"
#include "session/bot_document_json.h"
#include "session/json_format.h"
#include "support/localization.h"
#include "support/numbers.h"

namespace fragsmith {
namespace {

using Json = nlohmann::json;

/// The value in the document that the path leads to.
Json& AtPath(Json& document, const std::string& path) {
  Json* value = &document;
  std::size_t start = 0;
  while (start <= path.size()) {
    const std::size_t point = std::min(path.find('.', start), path.size());
    const std::string key = path.substr(start, point - start);
    if (!value->is_object() || !value->contains(key)) {
      RefuseField(path, Localized("there is no such key."));
    }
    value = &(*value)[key];
    start = point + 1;
  }
  if (value->is_object() || path == kFormatKey) {
    RefuseField(path, Localized("this is no value of a bot."));
  }
  return *value;
}

/// What stands there tells what is wanted: a list, a number or a text.
Json ValueFor(const Json& old, const ValueAtPath& edit, bool is_text) {
  Json parsed = Json::parse(edit.value, nullptr, false);
  if (old.is_array()) {
    if (!parsed.is_array()) {
      RefuseField(
          edit.path, Localized("a list of texts is wanted here."),
          Localized("Write it as in JSON: %1.", {R"(["a line", "another"])"}));
    }
    return parsed;
  }
  if (parsed.is_string()) return parsed;
  const std::optional<double> number = NumberFromText(edit.value);
  if (number && !is_text) return *number;
  return edit.value;
}

bool IsTextField(const std::string& path) {
  for (const char* const key :
       {"name", "gender", "funName", "model", "skin", "comment"}) {
    if (path == key) return true;
  }
  return false;
}

constexpr const char* kNumberGroups[] = {"levels", "chatCharacteristics",
                                         "weaponWeights", "itemWeights"};

bool IsNumber(const Json& value) {
  return value.is_number() ||
         (value.is_string() &&
          NumberFromText(value.get_ref<const std::string&>()).has_value());
}

/// A text of digits and perhaps a point: a number out of all bounds.
bool IsPlainNumber(const Json& value) {
  if (!value.is_string()) return false;
  const std::string text = value.get<std::string>();
  return !IsNumber(value) && text.find_first_of("0123456789") == 0 &&
         text.find_first_not_of("0123456789.") == std::string::npos &&
         std::ranges::count(text, '.') <= 1;
}

void CheckNumber(const Json& value, const std::string& path) {
  if (IsPlainNumber(value)) {
    RefuseField(path,
                Localized("this number has more digits than can be held."),
                Localized("Write a smaller one."));
  }
  if (!IsNumber(value)) {
    RefuseField(path, Localized("a number is wanted here."),
                Localized("Write it with digits and a point, such as 0.5."));
  }
}

/// What is new in a group of numbers must be one: the game has no use for a
/// text, and an empty one would be 0. What is refused gets its old value back.
void CheckNumbers(const Json& old, Json& wanted, const std::string& path,
                  std::vector<Error>& refused) {
  if (!wanted.is_object() || !old.is_object()) return;
  for (const auto& [key, value] : wanted.items()) {
    const auto known = old.find(key);
    // What is no key is told where it is read.
    if (known == old.end() || *known == value) continue;
    const std::string inner = std::string(path).append(".").append(key);
    if (known->is_object()) {
      CheckNumbers(*known, value, inner, refused);
      continue;
    }
    try {
      CheckNumber(value, inner);
    } catch (const JsonFault& fault) {
      refused.push_back(fault.error);
      value = *known;
    }
  }
}

/// In a patch a null would take the key out, and the bot would get what a new
/// one has.
void RefuseNulls(const Json& patch, const std::string& path) {
  if (patch.is_null()) {
    RefuseField(path, Localized("null is no value."),
                Localized("Leave the key out where nothing is to change."));
  }
  if (!patch.is_object()) return;
  for (const auto& [key, value] : patch.items()) {
    std::string inner = path;
    if (!inner.empty()) inner += '.';
    RefuseNulls(value, inner += key);
  }
}

/// The bot would take 0.4 for 0.
void CheckArenaLord(const Json& old, const Json& wanted) {
  std::optional<double> number;
  if (wanted.is_number()) number = wanted.get<double>();
  if (wanted.is_string()) {
    number = NumberFromText(wanted.get_ref<const std::string&>());
  }
  if (wanted == old || (number && std::trunc(*number) == *number)) return;
  RefuseField("arenaLord", Localized("a whole number is wanted here."),
              Localized("Write 1 for yes or 0 for no."));
}

/// No file has a line that says nothing.
void CheckChatLines(const Json& old, const Json& lines,
                    const std::string& path) {
  if (lines != old && lines.is_array() &&
      std::find(lines.begin(), lines.end(), "") != lines.end()) {
    RefuseField(path, Localized("a chat line is empty."),
                Localized("Leave it out; a type without lines is []."));
  }
}

/// Why values are none for a bot. Each of them gets its old value back.
std::vector<Error> PutBackRefused(const Json& old, Json& wanted) {
  std::vector<Error> refused;
  const auto check = [&refused](const Json& before, Json& value, auto test) {
    try {
      test();
    } catch (const JsonFault& fault) {
      refused.push_back(fault.error);
      value = before;
    }
  };
  for (const char* const group : kNumberGroups) {
    if (wanted.contains(group)) {
      CheckNumbers(old.at(group), wanted[group], group, refused);
    }
  }
  if (wanted.contains("arenaLord")) {
    const Json& before = old.at("arenaLord");
    Json& value = wanted["arenaLord"];
    check(before, value, [&] { CheckArenaLord(before, value); });
  }
  if (!wanted.contains("chats") || !wanted["chats"].is_object()) return refused;
  for (const auto& lines : old.at("chats").items()) {
    const Json& before = lines.value();
    Json& value = wanted["chats"][lines.key()];
    check(before, value,
          [&] { CheckChatLines(before, value, "chats." + lines.key()); });
  }
  return refused;
}

/// Why the document cannot be read.
std::optional<Error> ReadFault(const Json& json) {
  Notes untold;
  try {
    BotDocumentFromJson(json, {.are_slips = true, .file = {}, .notes = untold});
  } catch (const JsonFault& fault) {
    return fault.error;
  }
  return std::nullopt;
}

/// The same of what no bot can have at all, value by value.
void PutBackUnread(const Json& own, const Json::json_pointer& at, Json& wanted,
                   std::vector<Error>& refused) {
  const Json& old = own.at(at);
  for (const auto& [key, value] : wanted.items()) {
    const auto known = old.find(key);
    if (known == old.end() || *known == value) continue;
    if (known->is_object() && value.is_object()) {
      PutBackUnread(own, at / key, value, refused);
      continue;
    }
    Json tried = own;
    tried[at / key] = value;
    if (std::optional<Error> fault = ReadFault(tried)) {
      refused.push_back(*std::move(fault));
      value = *known;
    }
  }
}

/// Takes over in what the second document differs from the first.
void TakeDifference(const BotDocument& before, const BotDocument& after,
                    EditedBot& edited) {
  const auto take = [&](ParameterId id) {
    const Value& value = after.bot.Parameter(id);
    if (before.bot.Parameter(id) != value) edited.bot.Put(id, value);
  };
  for (const ParameterId id : kIdentityFields) take(id);
  for (const IndexRange range :
       {kChatRange, kWeaponWeightRange, kItemWeightRange}) {
    for (const int index : range) take(ParameterId(index));
  }
  for (const Level level : kLevels) {
    for (const int index : kPerLevelRange) take({level, index});
  }
  for (const ChatTypeId type : kAllChatTypes) {
    if (before.bot.ChatLines(type) != after.bot.ChatLines(type)) {
      CopyChatType(type, after.bot, edited.bot);
    }
  }
  for (const auto& [field, text] : after.texts) {
    const auto old = before.texts.find(field);
    if (old == before.texts.end() || old->second != text) {
      edited.texts.insert_or_assign(field, text);
    }
  }
}

}  // namespace

Result<EditedBot> EditByDocument(const Bot& bot, std::string_view json,
                                 const std::string& file,
                                 const std::vector<ValueAtPath>& values,
                                 Notes& notes) {
  const Json own = BotDocumentToJson(bot);
  return ReadJson(json, file, [&](const Json& patch) {
    const UnknownKeys unknown = {
        .are_slips = true, .file = file, .notes = notes};
    RefuseNulls(patch, {});
    Json wanted = own;
    wanted.merge_patch(patch);
    EditedBot edited = {bot, {}, PutBackRefused(own, wanted)};
    if (ReadFault(wanted))
      PutBackUnread(own, Json::json_pointer(), wanted, edited.refused);
    for (Error& error : edited.refused) error.file = file;
    for (const ValueAtPath& value : values) {
      Json& place = AtPath(wanted, value.path);
      place = ValueFor(place, value, IsTextField(value.path));
    }
    if (const auto refused = PutBackRefused(own, wanted); !refused.empty()) {
      throw JsonFault{refused.front()};
    }
    TakeDifference(BotDocumentFromJson(own, unknown),
                   BotDocumentFromJson(std::move(wanted), unknown), edited);
    return edited;
  });
}

}  // namespace fragsmith
