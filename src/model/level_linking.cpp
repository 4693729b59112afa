#include "model/level_linking.h"

namespace fragsmith {

std::vector<int> LinkLevels(LevelLinking linking, int moved,
                            LevelPositions& positions) {
  std::vector<int> changed;
  if (linking == LevelLinking::kNone) return changed;
  const int sign = linking == LevelLinking::kRising ? 1 : -1;
  // The moved slider wins: the levels below may not lie above it, nor those
  // above below it.
  const int target = positions.at(static_cast<std::size_t>(moved));
  const auto moves = [&](int place, bool is_above) {
    int& position = positions.at(static_cast<std::size_t>(place));
    const int excess =
        sign * (is_above ? target - position : position - target);
    if (excess <= 0) return false;
    position = target;
    changed.push_back(place);
    return true;
  };
  // A neighbour that stays passes nothing on, even where a loaded bot has the
  // level behind it out of order.
  for (int place = moved - 1; place >= 0 && moves(place, false);) --place;
  for (int place = moved + 1; place < 3 && moves(place, true);) ++place;
  return changed;
}

}  // namespace fragsmith
