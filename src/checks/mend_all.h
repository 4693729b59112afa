#ifndef FRAGSMITH_CHECKS_MEND_ALL_H_
#define FRAGSMITH_CHECKS_MEND_ALL_H_

#include <functional>

#include "checks/finding.h"
#include "game/game_data.h"
#include "model/bot.h"
#include "session/bot_origin.h"

namespace fragsmith {

/// The mend that is to be made of those of a finding; null for none.
using MendChoice = std::function<const Mend*(const Finding&)>;

/// The first one that is safe.
const Mend* SafeMend(const Finding& finding);

/// The first one, which is what most would choose. For a bot in which nothing
/// is anybody's work yet.
const Mend* FirstMend(const Finding& finding);

/// Makes the chosen mends until nothing is left that has one: a mend may bring
/// what another one puts right. Gives how many were made. What the load read
/// otherwise than the game becomes the game's first.
int MendAll(Bot& bot, const GameData* game, const MendChoice& choice,
            const LoadReport& report = {});

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_MEND_ALL_H_
