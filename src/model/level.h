#ifndef FRAGSMITH_MODEL_LEVEL_H_
#define FRAGSMITH_MODEL_LEVEL_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace fragsmith {

/// A skill level that a bot describes; the game mixes the others. The value is
/// the index in arrays by level.
enum class Level : std::uint8_t { k1, k4, k5 };

/// All of them, from the weakest to the strongest.
inline constexpr std::array<Level, 3> kLevels = {Level::k1, Level::k4,
                                                 Level::k5};

/// The same as the game counts them.
inline constexpr std::array<int, kLevels.size()> kLevelNumbers = {1, 4, 5};

/// The same in words.
inline constexpr std::string_view kLevelsInWords = "the levels 1, 4 and 5";

constexpr std::size_t IndexOf(Level level) {
  return static_cast<std::size_t>(level);
}

constexpr int NumberOf(Level level) { return kLevelNumbers.at(IndexOf(level)); }

/// Nothing for a number that a bot has no level of.
constexpr std::optional<Level> LevelOfNumber(int number) {
  const auto* const found =
      std::find_if(kLevels.begin(), kLevels.end(),
                   [number](Level level) { return NumberOf(level) == number; });
  if (found == kLevels.end()) return std::nullopt;
  return *found;
}

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_LEVEL_H_
