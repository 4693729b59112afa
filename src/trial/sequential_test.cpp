#include "trial/sequential_test.h"

#include <algorithm>
#include <cmath>

namespace fragsmith {
namespace {

/// Fewer do not show how much they scatter.
constexpr int kFewestMatches = 8;
/// In the variance, the number of matches is the smaller by this, and not by
/// the usual 1: a scatter that few matches show too small must not settle
/// anything.
constexpr int kLostMatches = 7;
constexpr double kPartOfErrors = 0.4;

}  // namespace

SequentialTest::SequentialTest(std::size_t bot, std::size_t other,
                               const Question& question)
    : bot_(bot), other_(other), question_(question) {}

void SequentialTest::Take(const MatchTally& match) {
  if (settled_ != Settled::kNot) return;
  ++matches_;
  const double own = std::max(match.bots[bot_].score, 0);
  const double all = own + std::max(match.bots[other_].score, 0);
  if (all <= 0) return;
  ++counted_;
  own_ += own;
  all_ += all;
  own_squares_ += own * own;
  own_by_all_ += own * all;
  all_squares_ += all * all;
  if (counted_ < kFewestMatches) return;

  // Each of the two tests has its half of the errors, and a little less since
  // the variance is estimated.
  const double alpha = question_.false_difference * kPartOfErrors;
  const double beta = question_.false_equality;
  const double for_difference = std::log((1 - beta) / alpha);
  const double for_equality = std::log(beta / (1 - alpha));
  const double above = LogRatio(question_.middle + question_.margin);
  const double below = LogRatio(question_.middle - question_.margin);
  if (above >= for_difference) {
    settled_ = Settled::kAbove;
  } else if (below >= for_difference) {
    settled_ = Settled::kBelow;
  } else if (above <= for_equality && below <= for_equality) {
    settled_ = Settled::kNear;
  }
}

double SequentialTest::LogRatio(double share) const {
  const double found = own_ / all_;
  const double half_way = (share + question_.middle) / 2;
  const double squares =
      own_squares_ - 2 * found * own_by_all_ + found * found * all_squares_;
  const double scatter = squares * counted_ / (counted_ - kLostMatches);
  const double chance = all_ * half_way * (1 - half_way);
  const double variance = std::max(scatter, chance) / (all_ * all_);
  return (share - question_.middle) * (found - half_way) / variance;
}

}  // namespace fragsmith
