#ifndef FRAGSMITH_INPLACE_LINES_THERE_H_
#define FRAGSMITH_INPLACE_LINES_THERE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "game/chat_reader.h"
#include "inplace/file_reading.h"
#include "model/bot.h"
#include "model/chat_type_id.h"

namespace fragsmith {

/// A line of a chat file that our reader takes for one of a type.
struct LineThere {
  std::string text;
  TextSpan span;
  /// Of the block that the game uses for the type; nothing for a line that has
  /// to stay, as it stands anywhere else.
  std::optional<std::size_t> in_game;
  TextSpan statement;
  std::string why_fixed;
  /// The game's name of another block in which the game has it.
  std::string elsewhere;
};

/// The lines that our reader has of the type, in the order of the file.
std::vector<LineThere> LinesThere(const FileReading& reading, ChatTypeId type);

/// The block that the game uses for a type: its last one.
std::optional<std::size_t> UsedBlock(const GameChat& chat,
                                     std::string_view key);

/// Gives the bot the lines of the type that stand in the blocks of others and
/// that it lacks: for one who gives the lines of a type as a whole, and does
/// not mean to take something from these blocks. Returns which.
std::vector<LineThere> AddLinesElsewhere(const FileReading& reading,
                                         ChatTypeId type, Bot& after);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_LINES_THERE_H_
