#ifndef FRAGSMITH_MODEL_LEVEL_LINKING_H_
#define FRAGSMITH_MODEL_LEVEL_LINKING_H_

#include <array>
#include <vector>

namespace fragsmith {

/// How the three levels of a parameter are kept in order: in most a better
/// level has the higher value, in the reaction time the lower one.
enum class LevelLinking {
  kNone = 0,
  kRising = 1,   ///< level 1 <= level 4 <= level 5
  kFalling = 2,  ///< level 1 >= level 4 >= level 5
};

/// Slider positions of the levels 1, 4 and 5.
using LevelPositions = std::array<int, 3>;

/// Moves the neighbours of the slider that the user moved (its place in
/// LevelPositions) as far as the order needs; a neighbour that was moved
/// moves its own neighbour. Gives the places that changed, nearest first.
std::vector<int> LinkLevels(LevelLinking linking, int moved,
                            LevelPositions& positions);

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_LEVEL_LINKING_H_
