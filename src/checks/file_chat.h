#ifndef FRAGSMITH_CHECKS_FILE_CHAT_H_
#define FRAGSMITH_CHECKS_FILE_CHAT_H_

#include <string_view>

#include "checks/game_preprocessor.h"

namespace fragsmith {

/// Whether the game finds a chat of this name (case ignored) in the file and
/// can read it, and every other that stands in the file as far as it looks.
bool ReadGameChat(const GameFile& file, std::string_view chat_name,
                  const IncludeLookup& game, FileFindings& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_FILE_CHAT_H_
