#ifndef FRAGSMITH_GAME_GAME_LOOKUP_H_
#define FRAGSMITH_GAME_GAME_LOOKUP_H_

#include <filesystem>

#include "game/preprocessor.h"

namespace fragsmith {

/// Looks up what a bot's files include: in the installed game, whose packages
/// are opened at the first question, or among StandInGameFile where the folder
/// is empty or holds no game. The player's own folder beside it may be empty.
IncludeLookup GameLookUp(const std::filesystem::path& game_folder,
                         const std::filesystem::path& players_folder = {});

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_GAME_LOOKUP_H_
