#ifndef FRAGSMITH_CHECKS_CHAT_MESSAGE_H_
#define FRAGSMITH_CHECKS_CHAT_MESSAGE_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "checks/game_lexer.h"

namespace fragsmith {

/// A piece of a chat line as the game keeps it.
struct ChatItem {
  enum class Kind {
    kText,
    kVariable,  ///< The situation fills it: the killer, the map ...
    kWord,      ///< A random line of the list of that name in rnd.c.
  };

  Kind kind = Kind::kText;
  std::string text;  ///< Of kText with its escapes resolved; name of kWord.
  int variable = 0;  ///< Number of a kVariable.
};

/// A chat line as the game reads it from the file. Game text.
struct ChatMessage {
  std::vector<ChatItem> items;
  /// The line breaks the file: the bot is not added.
  bool is_broken = false;
  /// A backslash with an unknown letter behind it: the text ends before it.
  bool is_cut = false;
};

/// The most that the game holds of one message.
inline constexpr std::size_t kMostEncodedBytes = 255;

/// Reads one statement in the game's syntax, its ";" included; anything behind
/// that breaks it.
ChatMessage ReadChatMessage(std::string_view statement);

/// Bytes that the message takes in the game's memory: a variable and a list
/// take some more than their names.
std::size_t EncodedLength(const ChatMessage& message);

/// Reads the message that begins with the token and goes on up to its ";".
ChatMessage ReadChatMessage(GameToken token, GameLexer& lexer);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_CHAT_MESSAGE_H_
