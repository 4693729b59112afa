#ifndef FRAGSMITH_CLI_MATCH_TABLE_H_
#define FRAGSMITH_CLI_MATCH_TABLE_H_

#include <ostream>

#include "trial/match_report.h"

namespace fragsmith {

/// A table, and who is better, for people.
void PrintMatchTable(const MatchReport& report, std::ostream& out);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_MATCH_TABLE_H_
