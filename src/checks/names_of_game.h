#ifndef FRAGSMITH_CHECKS_NAMES_OF_GAME_H_
#define FRAGSMITH_CHECKS_NAMES_OF_GAME_H_

#include <optional>
#include <string_view>

#include "checks/file_checks.h"
#include "game/game_data.h"
#include "game/game_files.h"

namespace fragsmith {

// Which bots of the game win over one whose files lie somewhere: in its
// package, or loose without one.

/// Of which package the game takes the character file in place of this bot's;
/// null when it takes the bot's own. Loose files come before packages.
const GamePackage* ShadowingPackage(const GameData& game, std::string_view name,
                                    const std::optional<GamePackage>& package);

/// The bots of the game's list win, and so may those of its packages. The list
/// is not the game's where the bot brings one that hides it.
void TakeNamesOfGame(const GameData& game,
                     const std::optional<GamePackage>& package, bool hides_list,
                     BotFileSet& files);

/// Where no game is known: the bots of the original one.
void TakeStandardNames(bool is_packed, BotFileSet& files);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_NAMES_OF_GAME_H_
