#include "trial/tune.h"

#include <array>
#include <cmath>

#include "game/skill_mix.h"
#include "model/characteristic_catalogue.h"
#include "model/level.h"

namespace fragsmith {
namespace {

constexpr int kAimSkillIndex = 3;
constexpr int kAlertnessIndex = 17;
constexpr int kMachinegunAccuracyIndex = 18;

/// What the game's default character has for accuracies and aiming skills that
/// a bot leaves out, by level.
double UsualValue(Level level, int index) {
  constexpr std::array<double, kLevels.size()> kMachinegun = {0.3, 0.5, 0.7};
  constexpr std::array<double, kLevels.size()> kOthers = {0.3, 0.75, 1};
  return (index == kMachinegunAccuracyIndex ? kMachinegun : kOthers)
      .at(IndexOf(level));
}

}  // namespace

const std::vector<StrengthEnds>& AllStrengthEnds() {
  static const std::vector<StrengthEnds> kEnds = [] {
    // One of 0 would be left to the game.
    constexpr double kLeast = 0.01;
    std::vector<StrengthEnds> all = {
        {kAttackSkillIndex, kLeast, 1},
        {kAimSkillIndex, kLeast, 1},
        {kViewFactorIndex, kLowestViewFactor, 1},
        {kViewMaxChangeIndex, kSlowestTurn, kFastestTurn},
        {kReactionTimeIndex, 1, 0},
        {kAlertnessIndex, kLeast, 1},
    };
    for (const int index : kOptionalRange) {
      if (index != kFireThrottleIndex) all.push_back({index, kLeast, 1});
    }
    return all;
  }();
  return kEnds;
}

Bot WithStrength(const Bot& bot, double strength) {
  Bot moved = bot;
  for (const StrengthEnds& ends : AllStrengthEnds()) {
    for (const Level level : kLevels) {
      const ParameterId id(level, ends.index);
      std::optional<double> own = ToNumber(bot.Parameter(id));
      if (!own || strength == 0) continue;
      if (*own <= 0 && kOptionalRange.Contains(ends.index)) {
        own = UsualValue(level, ends.index);
      }
      const double end = strength > 0 ? ends.strong : ends.weak;
      const bool is_upwards = (ends.strong > ends.weak) == (strength > 0);
      if (is_upwards ? *own >= end : *own <= end) continue;
      constexpr double kSteps = 1000;
      const double value = *own + std::abs(strength) * (end - *own);
      moved.Put(id, std::round(value * kSteps) / kSteps);
    }
  }
  return moved;
}

std::vector<ParameterId> TakeStrengthOf(const Bot& before, double strength,
                                        Bot& bot) {
  const Bot moved = WithStrength(before, strength);
  std::vector<ParameterId> kept;
  for (const StrengthEnds& ends : AllStrengthEnds()) {
    for (const Level level : kLevels) {
      const ParameterId id(level, ends.index);
      if (bot.Parameter(id) == before.Parameter(id)) {
        bot.Put(id, moved.Parameter(id));
      } else {
        kept.push_back(id);
      }
    }
  }
  return kept;
}

Tuner::Tuner(double wished_share, double margin) {
  question_.middle = wished_share;
  question_.margin = margin;
  Begin(0);
}

bool Tuner::Take(const MatchTally& match) {
  if (state_ != TuneState::kOpen) return false;
  TuneStep& step = steps_.back();
  step.matches.push_back(match);
  test_->Take(match);
  step.settled = test_->settled();
  if (step.settled == Settled::kNot) return true;
  EndStep();
  return false;
}

std::size_t Tuner::MatchCount() const {
  std::size_t count = 0;
  for (const TuneStep& step : steps_) count += step.matches.size();
  return count;
}

void Tuner::Begin(double strength) {
  steps_.push_back({.strength = strength});
  test_.emplace(0, 1, question_);
}

void Tuner::EndStep() {
  const double tried = strength();
  const Settled settled = steps_.back().settled;
  if (settled == Settled::kNear) {
    state_ = TuneState::kFound;
    return;
  }
  const bool is_too_strong = settled == Settled::kAbove;
  if (tried == (is_too_strong ? -1 : 1)) {
    state_ = TuneState::kOutOfReach;
    return;
  }
  if (std::abs(tried) < 1) {
    (is_too_strong ? stronger_ : weaker_) = tried;
    if (!has_ends_) {
      has_ends_ = true;
      Begin(is_too_strong ? -1 : 1);
      return;
    }
  }
  constexpr double kFinest = 1.0 / 64;
  if (stronger_ - weaker_ < kFinest) {
    state_ = TuneState::kTooFine;
    return;
  }
  Begin((weaker_ + stronger_) / 2);
}

}  // namespace fragsmith
