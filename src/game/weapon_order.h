#ifndef FRAGSMITH_GAME_WEAPON_ORDER_H_
#define FRAGSMITH_GAME_WEAPON_ORDER_H_

#include <array>
#include <optional>
#include <vector>

#include "model/bot.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {

inline constexpr ParameterId kGauntletUsage{44};
inline constexpr ParameterId kShotgunUsage{45};
inline constexpr ParameterId kMachinegunUsage{46};
inline constexpr ParameterId kGrenadeLauncherUsage{47};
inline constexpr ParameterId kRocketLauncherUsage{48};
inline constexpr ParameterId kRailgunUsage{49};
inline constexpr ParameterId kBfgUsage{50};
inline constexpr ParameterId kLightningUsage{51};
inline constexpr ParameterId kPlasmaUsage{52};
inline constexpr ParameterId kGrappleUsage{53};

/// The weights of the weapons to fight with, in the game's own order: of equal
/// weights the first one wins.
inline constexpr std::array<ParameterId, 10> kWeaponsInGameOrder = {
    kGauntletUsage,        kMachinegunUsage,     kShotgunUsage,
    kGrenadeLauncherUsage, kRocketLauncherUsage, kLightningUsage,
    kRailgunUsage,         kPlasmaUsage,         kBfgUsage,
    kGrappleUsage};

/// A weapon and its place among all that the bot may carry.
struct WeaponRank {
  ParameterId weapon;  ///< By the weight of fighting with it.
  double weight = 0;   ///< As the game reads it; 0 is never drawn.
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
std::optional<double> WeaponReach(ParameterId weapon);

/// The weight of picking the weapon up while the bot does not have it;
/// nothing for gauntlet and grapple, which lie on no map.
std::optional<ParameterId> PickupOf(ParameterId usage);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_WEAPON_ORDER_H_
