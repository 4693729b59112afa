#ifndef FRAGSMITH_TRIAL_MATCH_FIGURES_H_
#define FRAGSMITH_TRIAL_MATCH_FIGURES_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace fragsmith {

// What matches say of bots, and how sure that is. The unit is the match: within
// one, who leads goes on to lead, so that its frags do not count as so many
// trials. All intervals hold at 95 %.
//
// A share has Wilson's interval. Its number of points is divided by how much
// more the matches scatter than tosses of a coin would, and few matches pay by
// Student's t in place of the normal deviate. A rate has Student's interval of
// the mean over the matches, no narrower than that of a count by chance
// (Poisson). Resampling would make both too narrow for as few matches as people
// play. One match alone gives no interval.

/// What one bot did in one match.
struct BotTally {
  int score = 0;
  int frags = 0;
  int deaths = 0;
};

struct MatchTally {
  double minutes = 0;
  std::vector<BotTally> bots;  ///< In the same order in all matches.
};

struct Interval {
  double low = 0;
  double high = 0;
};

struct Estimate {
  double value = 0;
  std::optional<Interval> interval = {};
};

struct BotFigures {
  Estimate share;  ///< Of the points of all; points below 0 count as none.
  Estimate frags_a_minute;
  Estimate deaths_a_minute;
};

/// One for each bot.
std::vector<BotFigures> FiguresOf(const std::vector<MatchTally>& matches);

enum class Difference : std::uint8_t {
  kNone,  ///< None that these matches show.
  kBetter,
  kWorse,
};

struct Comparison {
  Estimate share;  ///< The first one's, of the points of the two.
  Difference difference = Difference::kNone;
};

/// Holds two of the bots against each other. A difference is one when half of
/// the points lies outside of the interval at 99 %; with several comparisons of
/// the same matches, each has to be surer, such that all are right at 99 %.
Comparison Compare(const std::vector<MatchTally>& matches, std::size_t bot,
                   std::size_t other, int comparisons = 1);

/// How far from the middle the share `confidence` of Student's distribution
/// reaches to either side; 1.96 for 0.95 and many degrees of freedom.
double StudentDeviate(double confidence, int degrees_of_freedom);

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_MATCH_FIGURES_H_
