#ifndef FRAGSMITH_CHECKS_CHAT_FILE_CHECKS_H_
#define FRAGSMITH_CHECKS_CHAT_FILE_CHECKS_H_

#include "game/chat_reader.h"
#include "game/complaints.h"

namespace fragsmith {

/// What stands in a chat file that the game reads, but that is spoken otherwise
/// than it looks, or never. The word lists are those of the game's rnd.c.
void CheckChatFile(const GameFile& file, const GameChat& chat,
                   const IncludeLookup& game, Complaints& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_CHAT_FILE_CHECKS_H_
