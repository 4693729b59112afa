#ifndef FRAGSMITH_CHAT_CHAT_COMMANDS_H_
#define FRAGSMITH_CHAT_CHAT_COMMANDS_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "model/bot.h"
#include "support/random.h"

namespace fragsmith {

// What the buttons and menu items of the chat page do to a bot.

/// Where a new line of the type goes: behind the last one, but the one empty
/// line of a type that has no other is used again.
int NextFreeChatLine(const Bot& bot, int type);

/// "Add random list": a random member of the type's group in its next free
/// line. Gives the line's number.
int AddRandomChatLine(Bot& bot, int type, const RandomSource& random);

/// "Add extra chats": the same for each of the 28 types.
void AddExtraChats(Bot& bot, const RandomSource& random);

/// "Add selected list": the member takes the place of the selected line when
/// that is empty; otherwise, and without a selected line (-1), it becomes a
/// new last line. Gives the line's number.
int AddGroupMember(Bot& bot, int type, int selected_line, int group,
                   int number);

/// "New line": an empty last line. Gives its number.
int AddEmptyChatLine(Bot& bot, int type);

/// The text of the line box after "Add word" or a pointer button with so many
/// characters before the cursor. At the very start the variable takes the
/// place of the whole text. The cursor stays where it was.
std::string InsertVariable(std::string_view text, std::size_t cursor,
                           std::string_view variable);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHAT_CHAT_COMMANDS_H_
