#ifndef FRAGSMITH_TRIAL_SEQUENTIAL_TEST_H_
#define FRAGSMITH_TRIAL_SEQUENTIAL_TEST_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "trial/match_figures.h"

namespace fragsmith {

/// What a test has found out.
enum class Settled : std::uint8_t {
  kNot,    ///< Not yet.
  kAbove,  ///< The share is above the middle.
  kBelow,
  kNear,  ///< It is not as far from the middle as the margin.
};

/// Whether two bots differ, asked anew after each match and for all that at the
/// error rates that are said. Two sequential probability ratio tests run side
/// by side, of "the first one's share of the points of the two is the middle"
/// against "it is the middle and the margin", and against "the middle less the
/// margin". The first that decides for its second hypothesis settles it, or
/// both for the first one.
///
/// The ratio is that of the normal distribution of the mean, with the variance
/// of the share over the matches, made larger for few matches, and no smaller
/// than that of tosses of a coin.
class SequentialTest {
 public:
  struct Question {
    double middle = 0.5;
    double margin = 0.05;
    /// How often two that share in the middle may be told apart.
    double false_difference = 0.01;
    /// How often two that are the margin apart may be called near.
    double false_equality = 0.05;
  };

  /// Holds two bots of the matches against each other.
  SequentialTest(std::size_t bot, std::size_t other, const Question& question);

  /// Adds a match; once it is settled, nothing changes that.
  void Take(const MatchTally& match);

  Settled settled() const { return settled_; }
  std::size_t bot() const { return bot_; }
  std::size_t other() const { return other_; }
  /// How many matches it took, or has seen so far.
  int matches() const { return matches_; }

 private:
  /// The logarithm of the ratio for the share against that of the middle.
  double LogRatio(double share) const;

  std::size_t bot_;
  std::size_t other_;
  Question question_;
  Settled settled_ = Settled::kNot;
  int matches_ = 0;
  // Of the matches with points: how many, and sums.
  int counted_ = 0;
  double own_ = 0;
  double all_ = 0;
  double own_squares_ = 0;
  double own_by_all_ = 0;
  double all_squares_ = 0;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_SEQUENTIAL_TEST_H_
