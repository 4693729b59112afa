#include "game/weapon_order.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "game/number.h"

namespace fragsmith {

std::vector<WeaponRank> WeaponOrder(const Bot& bot,
                                    std::optional<double> distance) {
  std::vector<WeaponRank> order;
  for (const ParameterId weapon : kWeaponsInGameOrder) {
    const std::optional<double> reach = WeaponReach(weapon);
    const bool is_too_far = distance && reach && *distance > *reach;
    order.push_back({.weapon = weapon,
                     .weight = is_too_far ? 0 : NumberInGame(bot, weapon)});
  }
  std::stable_sort(order.begin(), order.end(),
                   [](const WeaponRank& left, const WeaponRank& right) {
                     return left.weight > right.weight;
                   });
  for (std::size_t index = 1; index < order.size(); ++index) {
    order[index].is_tied = order[index].weight > 0 &&
                           order[index].weight == order[index - 1].weight;
  }
  return order;
}

std::optional<double> WeaponReach(ParameterId weapon) {
  constexpr std::array<std::pair<ParameterId, double>, 6> kReach = {
      {{kShotgunUsage, 600},
       {kGrenadeLauncherUsage, 600},
       {kLightningUsage, 768},
       {kMachinegunUsage, 800},
       {kPlasmaUsage, 2000},
       {kRocketLauncherUsage, 4000}}};
  const auto* const found =
      std::find_if(kReach.begin(), kReach.end(),
                   [weapon](const auto& row) { return row.first == weapon; });
  if (found == kReach.end()) return std::nullopt;
  return found->second;
}

std::optional<ParameterId> PickupOf(ParameterId usage) {
  // Both rows of weapons are in the same order but for gauntlet and grapple.
  constexpr IndexRange kOnMaps = {kShotgunUsage.index(), kPlasmaUsage.index()};
  if (!kOnMaps.Contains(usage)) return std::nullopt;
  return ParameterId(usage.index() - kOnMaps.first + kPickupRange.first);
}

}  // namespace fragsmith
