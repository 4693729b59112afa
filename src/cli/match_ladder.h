#ifndef FRAGSMITH_CLI_MATCH_LADDER_H_
#define FRAGSMITH_CLI_MATCH_LADDER_H_

#include <ostream>
#include <vector>

#include "trial/match_report.h"

namespace fragsmith {

/// A report without matches for each two of the bots of a plan.
std::vector<MatchReport> PairsOf(const MatchReport& all);

/// The match of the number, from 0 on: each two meet once before any meet
/// again, and then with the other one first.
Match LadderMatch(const std::vector<MatchReport>& pairs, int number);

/// The table of all bots of the reports, the strongest first. Reports without
/// matches do not count.
void PrintLadder(const std::vector<MatchReport>& reports, std::ostream& out);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_MATCH_LADDER_H_
