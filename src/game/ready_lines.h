#ifndef FRAGSMITH_GAME_READY_LINES_H_
#define FRAGSMITH_GAME_READY_LINES_H_

#include <string>
#include <string_view>
#include <vector>

#include "chat/chat_catalogue.h"
#include "game/word_lists.h"
#include "model/bot.h"

namespace fragsmith {

/// True for what stands for one of the game's own lines, "{{TAUNT3}}".
inline bool IsReadyMade(std::string_view line) {
  return line.starts_with("{{");
}

/// The ready-made lines for the situation that the game has and that it shows
/// whole, in editor form.
std::vector<std::string> ReadyMadeLines(ChatTypeId type,
                                        const WordLists& words);

/// A line of our own that every game can speak in the situation.
std::string_view PlainChatLine(ChatTypeId type);

/// A line that the bot can speak in the situation and does not have there yet:
/// one of the game's own, or ours.
std::string OtherChatLine(const Bot& bot, ChatTypeId type,
                          const WordLists& words);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_READY_LINES_H_
