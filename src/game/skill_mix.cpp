#include "game/skill_mix.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "game/number.h"
#include "model/characteristic_catalogue.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

constexpr double kHighestMixed = 4;  ///< Below it levels 1 and 4 are mixed.
constexpr double kHighestSkill = 5;

constexpr std::string_view kSnaps =
    Localizable("with bot_challenge on, the view snaps to the enemy");
constexpr std::string_view kNoRandomError =
    Localizable("no random error in direction");
constexpr std::string_view kLeads =
    Localizable("leads its target in a straight line");
constexpr std::string_view kCorners =
    Localizable("shoots where the enemy will come out");
constexpr std::string_view kSplash =
    Localizable("shoots at the floor for splash");
constexpr std::string_view kPredicts =
    Localizable("predicts the target's real path");
constexpr std::string_view kSteady =
    Localizable("keeps its accuracy when the enemy turns back");

// In the order of the catalogue, so that a parameter's rows stand together.
constexpr std::array kThresholds = {
    Threshold{2, 0.2, Localizable("moves towards the enemy and away")},
    Threshold{2, 0.3,
              Localizable("keeps aiming while it retreats or fetches items")},
    Threshold{2, 0.4, Localizable("circles around the enemy")},
    Threshold{2, 0.7, Localizable("changes its rhythm at random")},
    Threshold{3, 0.9, kSteady},
    Threshold{3, 0.95,
              Localizable("waits half its reaction time before it aims")},
    Threshold{6, kSlowestTurn,
              Localizable("turns faster than the slowest bots")},
    Threshold{7, 1, Localizable("slower makes no difference from here on")},
    Threshold{10, 0.5, Localizable("jumps by rocket")},
    Threshold{15, 0.1, Localizable("camps")},
    Threshold{15, 0.99, Localizable("camps for good")},
    Threshold{16, 0.5, Localizable("shoots at players who are typing")},
    Threshold{18, 0.8, kNoRandomError},
    Threshold{18, 0.9, kSnaps},
    Threshold{19, 0.8, kNoRandomError},
    Threshold{19, 0.9, kSnaps},
    Threshold{20, 0.8, kNoRandomError},
    Threshold{20, 0.9, kSnaps},
    Threshold{21, 0.8, kNoRandomError},
    Threshold{21, 0.9, kSnaps},
    Threshold{22, 0.8, kNoRandomError},
    Threshold{22, 0.9, kSnaps},
    Threshold{23, 0.8, kNoRandomError},
    Threshold{23, 0.9, kSnaps},
    Threshold{24, 0.8, kNoRandomError},
    Threshold{24, 0.9, kSnaps},
    Threshold{25, 0.8, kNoRandomError},
    Threshold{25, 0.9, kSnaps},
    Threshold{26, 0.4, kLeads},
    Threshold{26, 0.5, kCorners},
    Threshold{26, 0.6, kSplash},
    Threshold{26, 0.8, kPredicts},
    Threshold{26, 0.9, kSteady},
    Threshold{27, 0.4, kLeads},
    Threshold{27, 0.5, kCorners},
    Threshold{27, 0.6, kSplash},
    Threshold{27, 0.8, kPredicts},
    Threshold{27, 0.9, kSteady},
    Threshold{28, 0.4, kLeads},
    Threshold{28, 0.6, kSplash},
    Threshold{28, 0.8, kPredicts},
    Threshold{28, 0.9, kSteady},
    Threshold{29, 0.4, kLeads},
    Threshold{29, 0.5, kCorners},
    Threshold{29, 0.6, kSplash},
    Threshold{29, 0.8, kPredicts},
    Threshold{29, 0.9, kSteady},
    Threshold{30, 0.1,
              Localizable("pauses between shots, longer with the value")},
    Threshold{30, 1, Localizable("never pauses")},
};

LevelPair PairAround(double skill) {
  return kMixedLevels.at(skill < kHighestMixed ? 0 : 1);
}

std::optional<Level> LevelAt(double skill) {
  const int number = static_cast<int>(skill);
  return number == skill ? LevelOfNumber(number) : std::nullopt;
}

/// Without the game's limits.
ValueAtSkill Mix(const Bot& bot, ParameterId of_any, double skill) {
  ValueAtSkill result = {.skill = skill};
  if (const std::optional<Level> level = LevelAt(skill)) {
    const ParameterId id = of_any.At(*level);
    if (IsLeftOut(bot, id)) {
      result.origin = ValueOrigin::kDefault;
    } else if (const auto number = NumberInFile(bot.Parameter(id))) {
      result.value = number->value;
    } else {
      result.origin = ValueOrigin::kText;
    }
    return result;
  }
  const LevelPair levels = PairAround(skill);
  const ParameterId low = of_any.At(levels.lower);
  const ParameterId high = of_any.At(levels.upper);
  if (IsLeftOut(bot, low)) {
    result.origin = ValueOrigin::kDefault;
    return result;
  }
  const std::optional<WrittenNumber> lower = NumberInFile(bot.Parameter(low));
  if (!lower) {
    result.origin = ValueOrigin::kText;
    return result;
  }
  if (lower->is_whole) {
    result.origin = ValueOrigin::kLower;
    result.value = lower->value;
    return result;
  }
  if (IsLeftOut(bot, high)) {
    result.origin = ValueOrigin::kDefault;
    return result;
  }
  const std::optional<WrittenNumber> upper = NumberInFile(bot.Parameter(high));
  if (!upper || LeavesMixGap(lower->is_whole, upper->is_whole)) {
    result.origin = ValueOrigin::kNone;
    return result;
  }
  result.origin = ValueOrigin::kMixed;
  const int lowest = NumberOf(levels.lower);
  const double share = (skill - lowest) / (NumberOf(levels.upper) - lowest);
  result.value = lower->value + share * (upper->value - lower->value);
  return result;
}

}  // namespace

double UsedRange::Clamp(double value) const {
  return std::clamp(value, lowest, highest);
}

UsedRange UsedRangeOf(ParameterId id) {
  if (!id.level()) return {};
  if (id.index() == kViewFactorIndex) return {kLowestViewFactor, 1};
  if (id.index() == kViewMaxChangeIndex) return {kSlowestTurn, kFastestTurn};
  return {};
}

ValueAtSkill MixSkill(const Bot& bot, ParameterId id, double skill) {
  ValueAtSkill result = Mix(bot, id, std::clamp(skill, 1.0, kHighestSkill));
  result.used = UsedRangeOf(id).Clamp(result.value);
  return result;
}

std::vector<ValueAtSkill> MixShownSkills(const Bot& bot, ParameterId id) {
  std::vector<ValueAtSkill> values;
  values.reserve(kShownSkills.size());
  for (const double skill : kShownSkills) {
    values.push_back(MixSkill(bot, id, skill));
  }
  return values;
}

bool HasMixGap(const Bot& bot, ParameterId id, LevelPair levels) {
  const double between =
      (NumberOf(levels.lower) + NumberOf(levels.upper)) / 2.0;
  return Mix(bot, id, between).origin == ValueOrigin::kNone;
}

std::span<const Threshold> ThresholdsOf(ParameterId id) {
  if (!id.level()) return {};
  const auto [first, last] = std::equal_range(
      kThresholds.begin(), kThresholds.end(), Threshold{id.index(), 0, {}},
      [](const Threshold& left, const Threshold& right) {
        return left.index < right.index;
      });
  return {first, last};
}

bool IsReadByGame(ParameterId id) {
  return id.level() ? !kUnreadRange.Contains(id.index()) : id != kChatCpm;
}

}  // namespace fragsmith
