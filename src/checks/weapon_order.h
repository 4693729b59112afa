#ifndef FRAGSMITH_CHECKS_WEAPON_ORDER_H_
#define FRAGSMITH_CHECKS_WEAPON_ORDER_H_

#include <array>
#include <optional>
#include <vector>

#include "model/bot.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {

/// The weights of the weapons to fight with (catalogue indices), in the
/// game's own order: of equal weights the first one wins.
inline constexpr std::array<int, 10> kWeaponsInGameOrder = {44, 46, 45, 47, 48,
                                                            51, 49, 52, 50, 53};

inline constexpr int kGauntletUsage = 44;
inline constexpr int kMachinegunUsage = 46;

/// A weapon and its place among all that the bot may carry.
struct WeaponRank {
  int index = 0;      ///< In the characteristic catalogue.
  double weight = 0;  ///< As the game reads it; 0 is never drawn.
  /// Has the weight of the one before it and is drawn only without that.
  bool is_tied = false;
};

/// All weapons, the one that the bot likes best first; those that it never
/// draws come last. With a distance (in map units; a player is 56 tall), what
/// does not reach so far weighs nothing, as in OpenArena's data.
std::vector<WeaponRank> WeaponOrder(
    const Bot& bot, std::optional<double> distance = std::nullopt);

/// How far OpenArena's bots use the weapon, in map units; nothing for one
/// without a limit.
std::optional<double> WeaponReach(int index);

/// The weight of picking the weapon up while the bot does not have it;
/// nothing for gauntlet and grapple, which lie on no map.
std::optional<int> PickupOf(int usage_index);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_WEAPON_ORDER_H_
