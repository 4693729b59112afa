#ifndef FRAGSMITH_TRIAL_MATCH_EVIDENCE_H_
#define FRAGSMITH_TRIAL_MATCH_EVIDENCE_H_

#include <cstddef>
#include <string>
#include <vector>

#include "checks/finding.h"
#include "trial/match_report.h"
#include "trial/said_lines.h"

namespace fragsmith {

/// What matches show of something that was found in a bot before.
struct MatchEvidence {
  std::size_t finding;  ///< Its number in the list.
  bool confirms;        ///< Or the matches speak against it.
  std::string text;     ///< What was seen, UTF-8.
};

/// For those of the findings on which the matches of the report's first bot
/// throw light; the lines are that bot's. What a bot may do by chance, or
/// simply had no occasion for, speaks neither way.
std::vector<MatchEvidence> EvidenceOf(const std::vector<Finding>& findings,
                                      const MatchReport& report,
                                      SaidLines& said);

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_MATCH_EVIDENCE_H_
