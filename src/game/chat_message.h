#ifndef FRAGSMITH_GAME_CHAT_MESSAGE_H_
#define FRAGSMITH_GAME_CHAT_MESSAGE_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "game/lexer.h"

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

/// Reads one statement in the game's syntax, its ";" included; anything behind
/// that breaks it.
ChatMessage ReadChatMessage(std::string_view statement);

/// What becomes of a line for which the game has no room.
enum class ChatFit {
  kFits,
  kTooLong,   ///< The bot is not added.
  kOverflows  ///< The game does not notice in time and may crash.
};

/// The game's memory for one line while it is filled.
class ChatRoom {
 public:
  /// One more piece of the line.
  ChatFit Add(ChatItem::Kind kind, std::size_t size);

  /// Bytes taken so far: a variable and a list take some more than their
  /// names.
  std::size_t length() const { return length_; }

 private:
  std::size_t length_ = 0;
};

/// What becomes of the whole line, and the bytes that it takes.
struct ChatSize {
  ChatFit fit = ChatFit::kFits;
  std::size_t length = 0;
};
ChatSize SizeOf(const ChatMessage& message);

/// Reads the message that begins with the token and goes on up to its ";".
ChatMessage ReadChatMessage(GameToken token, GameLexer& lexer);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_CHAT_MESSAGE_H_
