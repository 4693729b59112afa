#include "session/draft.h"

#include <array>
#include <nlohmann/json.hpp>
#include <utility>

#include "session/bot_document_json.h"
#include "session/bot_origin_json.h"
#include "session/json_format.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

using Json = nlohmann::json;

constexpr const char* kBotKey = "bot";
constexpr const char* kOriginKey = "origin";

void WrapDocument(Json& draft) {
  Json document = std::move(draft);
  draft = Json::object();
  draft[kBotKey] = std::move(document);
}

/// A draft did not say where its bot came from.
void LeaveAsItIs(Json& /*draft*/) {}

constexpr std::array<Migration, 2> kSteps = {
    {{.from = 0, .Apply = WrapDocument}, {.from = 1, .Apply = LeaveAsItIs}}};
static_assert(HasNoGap(kSteps));

}  // namespace

Result<Draft> ReadDraft(std::string_view json, const std::string& file,
                        Notes& notes) {
  bool was_cut = false;
  const auto read = [&](Json value) {
    UnknownKeys unknown = {.are_slips = false, .file = file, .notes = notes};
    if (was_cut) {
      notes.Add({.file = file,
                 .line = 0,
                 .text = Localized("What is nested too deeply is left out.")});
    }
    BringUpToDate(value, kSteps, unknown);
    const auto bot = value.find(kBotKey);
    if (bot == value.end() || !bot->is_object()) {
      RefuseField(kBotKey, Localized("the document of a bot is wanted here."));
    }
    Draft draft = {
        .bot = UncheckedBot(BotDocumentFromJson(std::move(*bot), unknown))};
    for (const auto& [key, part] : value.items()) {
      if (key == kOriginKey) {
        draft.origin = BotOriginFromJson(part, unknown);
      } else if (key != kBotKey) {
        unknown.Meet(key, Localized("there is no such key."));
      }
    }
    return draft;
  };
  return ReadJson(json, file, read, &was_cut);
}

std::string WriteDraft(const Draft& draft) {
  nlohmann::ordered_json json = nlohmann::ordered_json::object();
  json[kFormatKey] = FormatBehind(kSteps);
  json[kBotKey] = BotDocumentToJson(draft.bot);
  json[kOriginKey] = BotOriginToJson(draft.origin);
  // A note may quote anything.
  using Handler = nlohmann::ordered_json::error_handler_t;
  return json.dump(2, ' ', false, Handler::replace) + "\n";
}

}  // namespace fragsmith
