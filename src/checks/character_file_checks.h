#ifndef FRAGSMITH_CHECKS_CHARACTER_FILE_CHECKS_H_
#define FRAGSMITH_CHECKS_CHARACTER_FILE_CHECKS_H_

#include "checks/bot_reader.h"
#include "checks/file_checks.h"
#include "game/preprocessor.h"

namespace fragsmith {

/// What there is to tell of a character file that the game can read: blocks
/// and keys that are there twice or missing, values that it takes otherwise,
/// and paths of other bots. The reader has been asked at all skills and gets
/// what is found. A file in which something stops the bot has no more to tell
/// of missing keys.
void CheckCharacterFile(const BotFileSet& files, const IncludeLookup& game,
                        bool has_cause, BotReader& reader);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_CHARACTER_FILE_CHECKS_H_
