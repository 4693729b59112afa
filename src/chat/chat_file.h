#ifndef FRAGSMITH_CHAT_CHAT_FILE_H_
#define FRAGSMITH_CHAT_CHAT_FILE_H_

#include <string>
#include <string_view>

#include "botfiles/header_comment.h"
#include "botfiles/read_report.h"
#include "model/bot.h"

namespace fragsmith {

/// The chat file of the bot: a block for each of the 28 types, also for those
/// without lines. Empty lines are left out: the game would take the bot's
/// turn to speak for nothing.
std::string WriteChatFile(const Bot& bot, const Author& author);

/// Stores the lines of a chat file in the bot, for each type from line 0 on.
/// The caller clears the chats before where old lines must not stay.
ReadReport ReadChatFile(std::string_view bytes, const std::string& file_name,
                        Bot& bot);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHAT_CHAT_FILE_H_
