#ifndef FRAGSMITH_CHECKS_BOT_CHECKS_H_
#define FRAGSMITH_CHECKS_BOT_CHECKS_H_

#include <span>
#include <string>
#include <vector>

#include "checks/check_context.h"
#include "checks/finding.h"
#include "game/game_data.h"
#include "model/bot.h"
#include "session/bot_file.h"

namespace fragsmith {

/// All checks of a bot, in the order in which their findings come.
std::span<const Check> BotChecks();

/// The check whose findings have this id; null for a finding of files alone.
const Check* FindCheck(std::string_view id);

/// What the game will make of the bot once it is saved. Without a game's data
/// a hint says what was not looked at. Quick enough to follow every edit.
std::vector<Finding> CheckBot(const Bot& bot, const GameData* game);

/// The kind of file in which the place of a finding comes to stand.
BotFile KindOfPlace(const BotPlace& place);

/// The bot's file in which the place of a finding comes to stand.
std::string FileOfPlace(const Bot& bot, const BotPlace& place);

/// The chat line that a finding is about, for lists: "Bot kills (negative)",
/// line 3. Empty for what is about none; then the finding's text says it.
std::string ChatPlaceText(const BotPlace& place);

/// "error", "warning" or "hint".
std::string_view SeverityWord(Severity severity);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_BOT_CHECKS_H_
