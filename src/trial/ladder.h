#ifndef FRAGSMITH_TRIAL_LADDER_H_
#define FRAGSMITH_TRIAL_LADDER_H_

#include <cstddef>
#include <string>
#include <vector>

#include "trial/match_figures.h"
#include "trial/match_report.h"

namespace fragsmith {

/// The points of two bots in a match of theirs.
struct LadderGame {
  std::size_t bot = 0;
  std::size_t other = 0;
  double points = 0;
  double others_points = 0;
};

/// Strengths by the model of Bradley and Terry: of the points of two bots whose
/// ratings differ by d, the stronger takes 1 / (1 + 10^(-d / 400)). Each two
/// that met are given half a point each on top, so that one who never scored
/// has a rating too. The mean of all is 0. The intervals hold at 95 %, with the
/// matches as the unit as everywhere; too few matches give none.
std::vector<Estimate> RatingsOf(std::size_t bots,
                                const std::vector<LadderGame>& games);

struct LadderBot {
  std::string name;
  std::string source;
  double skill = 0;
  int matches = 0;
  int points = 0;
  Estimate rating;
};

/// All bots of the reports, which are about two bots each, the strongest first.
std::vector<LadderBot> LadderOf(const std::vector<MatchReport>& reports);

/// As an object of JSON, with a line end.
std::string WriteLadderJson(const std::vector<MatchReport>& reports);

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_LADDER_H_
