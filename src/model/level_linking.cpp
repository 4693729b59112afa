#include "model/level_linking.h"

namespace fragsmith {

std::vector<Level> LinkLevels(LevelLinking linking, Level moved,
                              LevelNumbers& numbers) {
  std::vector<Level> changed;
  if (linking == LevelLinking::kNone) return changed;
  const int sign = linking == LevelLinking::kRising ? 1 : -1;
  // The moved level wins: the levels below may not lie above it, nor those
  // above below it.
  const double target = numbers.at(IndexOf(moved));
  const auto moves = [&](std::size_t index, bool is_above) {
    double& number = numbers.at(index);
    const double excess = sign * (is_above ? target - number : number - target);
    if (excess <= 0) return false;
    number = target;
    changed.push_back(kLevels.at(index));
    return true;
  };
  // A neighbour that stays passes nothing on, even where a loaded bot has the
  // level behind it out of order.
  for (std::size_t above = IndexOf(moved); above > 0; --above) {
    if (!moves(above - 1, false)) break;
  }
  for (std::size_t index = IndexOf(moved) + 1;
       index < kLevels.size() && moves(index, true);) {
    ++index;
  }
  return changed;
}

}  // namespace fragsmith
