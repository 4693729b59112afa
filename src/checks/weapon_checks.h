#ifndef FRAGSMITH_CHECKS_WEAPON_CHECKS_H_
#define FRAGSMITH_CHECKS_WEAPON_CHECKS_H_

#include <optional>

#include "game/complaints.h"
#include "game/preprocessor.h"
#include "game/weight_reader.h"

namespace fragsmith {

// What the game makes of a file of weapon weights that it has read.

/// That a bot has nothing to begin a fight with, as an error; nothing for one
/// that has, or may have from code of a game that is not known.
std::optional<Complaint> NoWeaponAtStart(const GameFile& file,
                                         const WeightsRead& read,
                                         bool is_game_known);

/// Weights of weapons that the game does not have by these names.
void CheckWeaponNames(const GameFile& file, const WeightsRead& read,
                      const IncludeLookup& game, Complaints& complaints);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_WEAPON_CHECKS_H_
