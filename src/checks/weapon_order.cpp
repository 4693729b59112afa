#include "checks/weapon_order.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "checks/game_number.h"

namespace fragsmith {

std::vector<WeaponRank> WeaponOrder(const Bot& bot,
                                    std::optional<double> distance) {
  std::vector<WeaponRank> order;
  for (const int index : kWeaponsInGameOrder) {
    const std::optional<double> reach = WeaponReach(index);
    const bool is_too_far = distance && reach && *distance > *reach;
    order.push_back(
        {.index = index, .weight = is_too_far ? 0 : NumberInGame(bot, index)});
  }
  std::stable_sort(order.begin(), order.end(),
                   [](const WeaponRank& left, const WeaponRank& right) {
                     return left.weight > right.weight;
                   });
  for (std::size_t place = 1; place < order.size(); ++place) {
    order[place].is_tied = order[place].weight > 0 &&
                           order[place].weight == order[place - 1].weight;
  }
  return order;
}

std::optional<double> WeaponReach(int index) {
  constexpr std::array<std::pair<int, double>, 6> kReach = {
      {{45, 600}, {47, 600}, {51, 768}, {46, 800}, {52, 2000}, {48, 4000}}};
  const auto* const found =
      std::find_if(kReach.begin(), kReach.end(),
                   [index](const auto& row) { return row.first == index; });
  if (found == kReach.end()) return std::nullopt;
  return found->second;
}

std::optional<int> PickupOf(int usage_index) {
  // Both rows of weapons are in the same order but for gauntlet and grapple.
  constexpr IndexRange kOnMaps = {45, 52};
  constexpr int kFirstPickup = 56;
  if (!kOnMaps.Contains(usage_index)) return std::nullopt;
  return usage_index - kOnMaps.first + kFirstPickup;
}

}  // namespace fragsmith
