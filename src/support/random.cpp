#include "support/random.h"

#include <random>

namespace fragsmith {

RandomSource SeededRandom(std::uint32_t seed) {
  // The standard distributions differ between libraries, the generator does
  // not: so its 32 bits are scaled by hand.
  return [generator = std::mt19937(seed)]() mutable {
    return static_cast<double>(generator()) / 4294967296.0;
  };
}

RandomSource UnpredictableRandom() {
  return SeededRandom(std::random_device{}());
}

}  // namespace fragsmith
