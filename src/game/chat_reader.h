#ifndef FRAGSMITH_GAME_CHAT_READER_H_
#define FRAGSMITH_GAME_CHAT_READER_H_

#include <string>
#include <string_view>
#include <vector>

#include "game/preprocessor.h"
#include "support/text.h"

namespace fragsmith {

/// A line of a chat type: its words as the game takes them, which tell lines
/// apart, and where it stands, its ";" included.
struct GameChatLine {
  std::string words;
  TextSpan span;
};

struct GameChatType {
  std::string name;
  TextSpan open;   ///< Its "{".
  TextSpan close;  ///< Its "}".
  std::vector<GameChatLine> lines;
};

/// What the game finds under the name that it looks for.
struct GameChat {
  TextSpan open;  ///< The "{" of the last such chat.
  std::vector<GameChatType> types;
  /// Of a chat with another name that was passed over; empty without one.
  std::string other_name;
};

/// Whether the game finds a chat of this name (case ignored) in the file and
/// can read it, and every other that stands in the file as far as it looks.
bool ReadGameChat(const GameFile& file, std::string_view chat_name,
                  const IncludeLookup& game, Complaints& findings,
                  GameChat* chat = nullptr);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_CHAT_READER_H_
