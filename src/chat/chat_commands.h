#ifndef FRAGSMITH_CHAT_CHAT_COMMANDS_H_
#define FRAGSMITH_CHAT_CHAT_COMMANDS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/bot.h"
#include "support/random.h"

namespace fragsmith {

// What the buttons and menu items of the chat page do to a bot.

/// Where a new line of the type goes: behind the last one, but the one empty
/// line of a type that has no other is used again.
ChatLineIndex NextFreeChatLine(const Bot& bot, ChatTypeId type);

/// "Add random list": a random member of the type's group in its next free
/// line. Gives that line.
ChatLineIndex AddRandomChatLine(Bot& bot, ChatTypeId type,
                                const RandomSource& random);

/// "Add extra chats": the same for each of the 28 types.
void AddExtraChats(Bot& bot, const RandomSource& random);

/// "Add selected list": the member takes the place of the selected line when
/// that is empty; otherwise, and without a selected line, it becomes a new last
/// line. Gives the line.
ChatLineIndex AddGroupMember(Bot& bot, ChatTypeId type,
                             std::optional<ChatLineIndex> selected_line,
                             int group, int number);

/// "New line": an empty last line, which it gives.
ChatLineIndex AddEmptyChatLine(Bot& bot, ChatTypeId type);

/// Moves a line to the place of another; those between make room.
void MoveChatLine(Bot& bot, ChatTypeId type, ChatLineIndex line,
                  ChatLineIndex to);

/// Puts a copy of the line in a place behind it.
void DoubleChatLine(Bot& bot, ChatTypeId type, ChatLineIndex line,
                    ChatLineIndex behind);

/// What stands in the line box, and how many characters before its cursor.
struct LineText {
  std::string text;
  std::size_t cursor = 0;

  bool operator==(const LineText&) const = default;
};

/// The line box after "Add word" or a pointer button: the variable at the
/// cursor, which then stands before it. At the very start the variable takes
/// the place of the whole text. A "~" stays with the word that it marks.
LineText InsertVariable(const LineText& line, std::string_view variable);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHAT_CHAT_COMMANDS_H_
