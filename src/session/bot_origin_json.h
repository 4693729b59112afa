#ifndef FRAGSMITH_SESSION_BOT_ORIGIN_JSON_H_
#define FRAGSMITH_SESSION_BOT_ORIGIN_JSON_H_

#include <nlohmann/json.hpp>

#include "session/bot_origin.h"
#include "session/json_format.h"

namespace fragsmith {

/// An origin as a part of another format. What cannot be meant is left out
/// with a note: without it a bot is saved where the user says.
BotOrigin BotOriginFromJson(const nlohmann::json& json,
                            const UnknownKeys& unknown);

nlohmann::ordered_json BotOriginToJson(const BotOrigin& origin);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_BOT_ORIGIN_JSON_H_
