#ifndef FRAGSMITH_SUPPORT_RANDOM_H_
#define FRAGSMITH_SUPPORT_RANDOM_H_

#include <cstdint>
#include <functional>

namespace fragsmith {

/// Gives uniformly distributed values in [0, 1).
using RandomSource = std::function<double()>;

/// A source whose values depend on the seed alone, on every platform alike.
RandomSource SeededRandom(std::uint32_t seed);

/// A source that differs from run to run.
RandomSource UnpredictableRandom();

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_RANDOM_H_
