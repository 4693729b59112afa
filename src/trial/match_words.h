#ifndef FRAGSMITH_TRIAL_MATCH_WORDS_H_
#define FRAGSMITH_TRIAL_MATCH_WORDS_H_

#include <cstddef>
#include <string>
#include <vector>

#include "trial/match_figures.h"
#include "trial/match_report.h"
#include "trial/tune.h"

namespace fragsmith {

// Figures and verdicts for people, the same wherever they are shown.

/// A number with so many digits behind its point, everywhere alike.
std::string Fixed(double number, int digits);

/// "3.1 (2.5 to 3.7)".
std::string Shown(const Estimate& estimate, double scale, int digits,
                  const std::string& unit);

/// "62 % (55 to 69)".
std::string ShownShare(const Estimate& share);

/// "1 match", "12 matches".
std::string MatchesText(std::size_t count);

struct ComparisonWords {
  std::string sentence;
  /// More matches may tell more.
  bool is_open = false;
};

/// What the matches say of the pairing of that number; the bots are called by
/// the names. A test that the report has for it decides.
ComparisonWords CompareInWords(const MatchReport& report, std::size_t pairing,
                               const std::vector<std::string>& names);

/// "strength 0.250: 43 % (37 to 49) in 12 matches".
std::string StepInWords(const TuneStep& step);

/// How the search for the wished share, 0 to 1, stands.
std::string TuneInWords(const Tuner& tuner, double wished_share);

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_MATCH_WORDS_H_
