#ifndef FRAGSMITH_MODEL_BOT_PLACE_H_
#define FRAGSMITH_MODEL_BOT_PLACE_H_

#include <compare>
#include <optional>
#include <string>
#include <variant>

#include "model/chat_line_index.h"
#include "model/chat_type_id.h"
#include "model/file_names.h"
#include "model/parameter_id.h"

namespace fragsmith {

/// The bot as a whole, where one of its parts could be meant.
struct WholeBot {
  auto operator<=>(const WholeBot&) const = default;  // NOLINT(*-use-nullptr)
};

/// The lines of a chat type, or one of them.
struct ChatPlace {
  ChatTypeId type{};
  std::optional<ChatLineIndex> line;

  auto operator<=>(const ChatPlace&) const = default;  // NOLINT(*-use-nullptr)
};

/// A file on disk, or a line in it.
struct FilePlace {
  std::string file;  ///< UTF-8, as shown.
  int line = 0;      ///< From 1; 0 for the file as a whole.
  /// What the bot has it for; nothing for what is none of its five files.
  std::optional<BotFile> kind = {};
  /// Below botfiles; empty for a file that was not looked up in the game.
  std::string game_path = {};

  auto operator<=>(const FilePlace&) const = default;  // NOLINT(*-use-nullptr)
};

/// What a finding, a step of undo or something found is about, and what the
/// window can be turned to.
using BotPlace = std::variant<WholeBot, ParameterId, ChatPlace, FilePlace>;

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_BOT_PLACE_H_
