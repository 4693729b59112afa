#ifndef FRAGSMITH_CHECKS_CHAT_FILE_CHECKS_H_
#define FRAGSMITH_CHECKS_CHAT_FILE_CHECKS_H_

#include <string_view>

#include "game/chat_reader.h"
#include "game/complaints.h"

namespace fragsmith {

/// What comes of a word list that the game does not have.
inline constexpr std::string_view kRemainsSpoken =
    ": in its place the bot speaks the remains of an earlier line. ";

/// What stands in a chat file that the game reads, but that is spoken otherwise
/// than it looks, or never. The word lists are those of the game's rnd.c.
void CheckChatFile(const GameFile& file, const GameChat& chat,
                   const IncludeLookup& game, Complaints& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_CHAT_FILE_CHECKS_H_
