#ifndef FRAGSMITH_MODEL_LEVEL_LINKING_H_
#define FRAGSMITH_MODEL_LEVEL_LINKING_H_

#include <array>
#include <vector>

#include "model/level.h"

namespace fragsmith {

/// How the three levels of a parameter are kept in order: in most a better
/// level has the higher value, in the reaction time the lower one.
enum class LevelLinking {
  kNone = 0,
  kRising = 1,   ///< level 1 <= level 4 <= level 5
  kFalling = 2,  ///< level 1 >= level 4 >= level 5
};

/// Values by level.
using LevelNumbers = std::array<double, kLevels.size()>;

/// Moves the neighbours of the level that the user changed as far as the order
/// needs; a neighbour that was moved moves its own neighbour. Gives the levels
/// that changed, nearest first.
std::vector<Level> LinkLevels(LevelLinking linking, Level moved,
                              LevelNumbers& numbers);

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_LEVEL_LINKING_H_
