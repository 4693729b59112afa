#ifndef FRAGSMITH_GAME_SKILL_MIX_H_
#define FRAGSMITH_GAME_SKILL_MIX_H_

#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "game/complaints.h"
#include "model/bot.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {

/// The skills that a picture of a characteristic shows.
inline constexpr std::array<double, 9> kShownSkills = {1,   1.5, 2,   2.5, 3,
                                                       3.5, 4,   4.5, 5};

/// Two levels between which the game mixes.
struct LevelPair {
  Level lower;
  Level upper;
};
inline constexpr std::array<LevelPair, 2> kMixedLevels = {
    {{Level::k1, Level::k4}, {Level::k4, Level::k5}}};

/// How the game comes by the value of a characteristic at some skill.
enum class ValueOrigin {
  kLevel,    ///< That of the bot's level itself.
  kMixed,    ///< In proportion between two levels.
  kLower,    ///< Whole numbers are not mixed: that of the lower level.
  kNone,     ///< A fraction below and a whole number above: the game has 0.
  kText,     ///< A text where a number belongs: the game has 0.
  kDefault,  ///< Left out of the file: the game's default character decides.
};

/// A characteristic at some skill.
struct ValueAtSkill {
  double skill = 0;
  ValueOrigin origin = ValueOrigin::kLevel;
  double value = 0;  ///< Before the game's limits; 0 where there is none.
  double used = 0;   ///< After them.
};

/// The range into which the game forces a value at each use.
struct UsedRange {
  double lowest = 0;
  double highest = 1;

  double Clamp(double value) const;
};

/// Degrees per second. The game has 1 to the fastest, and then turns no bot
/// slower than the slowest.
inline constexpr double kSlowestTurn = 240;
inline constexpr double kFastestTurn = 1800;
inline constexpr double kLowestViewFactor = 0.01;

/// Those of each level that no known game reads.
inline constexpr IndexRange kUnreadRange = {11, 14};

/// A value at which the bot begins to act otherwise.
struct Threshold {
  int index;  ///< In the characteristic catalogue.
  double value;
  /// What holds from there on, in English; Localized() shows it.
  std::string_view text;
};

// Of a characteristic that each level has, these take the parameter of any
// level.

/// The range of a characteristic.
UsedRange UsedRangeOf(ParameterId id);

/// The value of a per-level characteristic at any skill from 1 to 5, by the
/// game's rules. Skills outside are taken as the nearest of these.
ValueAtSkill MixSkill(const Bot& bot, ParameterId id, double skill);

/// The values at kShownSkills.
std::vector<ValueAtSkill> MixShownSkills(const Bot& bot, ParameterId id);

/// Between two levels the game mixes numbers with a "." only. Where both lack
/// it the lower one counts, but a fraction below and a whole number above
/// leave no value at all.
constexpr bool LeavesMixGap(bool is_lower_whole, bool is_upper_whole) {
  return !is_lower_whole && is_upper_whole;
}

/// No menu offers the skills between 4 and 5.
constexpr Severity SeverityOfMixGap(LevelPair levels) {
  return levels.lower == Level::k1 ? Severity::kError : Severity::kHint;
}

/// True when the skills between the levels have no value at all.
bool HasMixGap(const Bot& bot, ParameterId id, LevelPair levels);

/// The thresholds of a characteristic, from low to high; empty where its
/// effect is smooth.
std::span<const Threshold> ThresholdsOf(ParameterId id);

/// False for what no known game reads. Such a value is kept for those who play
/// with other game code.
bool IsReadByGame(ParameterId id);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_SKILL_MIX_H_
