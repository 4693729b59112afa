#ifndef FRAGSMITH_SESSION_BOT_DOCUMENT_JSON_H_
#define FRAGSMITH_SESSION_BOT_DOCUMENT_JSON_H_

#include <nlohmann/json.hpp>
#include <string>

#include "session/bot_document.h"
#include "session/json_format.h"

namespace fragsmith {

/// The document as a part of another format. A fault is thrown, see ReadJson.
BotDocument BotDocumentFromJson(nlohmann::json json, UnknownKeys unknown);

nlohmann::ordered_json BotDocumentToJson(const Bot& bot);

/// The bot with the texts of its boxes, checked or not.
Bot UncheckedBot(BotDocument document);

/// A single value as documents hold it.
nlohmann::ordered_json ValueToJson(const Value& value);
Value ValueFromJson(const nlohmann::json& json, const std::string& field);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_BOT_DOCUMENT_JSON_H_
