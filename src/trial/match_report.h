#ifndef FRAGSMITH_TRIAL_MATCH_REPORT_H_
#define FRAGSMITH_TRIAL_MATCH_REPORT_H_

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "support/notes.h"
#include "support/result.h"
#include "trial/match.h"
#include "trial/match_run.h"
#include "trial/sequential_test.h"

namespace fragsmith {

/// What is told of matches that were played between the same bots.
struct MatchReport {
  MatchPlan plan;
  std::vector<std::string> sources;  ///< Of the bots, as they were given.
  std::vector<PlayedMatch> played;   ///< At least one.
  /// One for each two of the bots where it was played until the question was
  /// settled; else none.
  std::vector<SequentialTest> tests = {};
};

/// Two of the bots, by their places.
struct Pairing {
  std::size_t bot;
  std::size_t other;
};

/// Each two of so many bots.
std::vector<Pairing> PairingsOf(std::size_t bots);

/// All matches of one bot, added up.
struct BotSums {
  int score = 0;
  int suicides = 0;
  int falls = 0;
  Counts kills;
  Counts deaths;
  Counts killed_by;  ///< By name.
  Counts items;
  Counts awards;
  Counts said;
};

BotSums SumsOf(const MatchReport& report, std::size_t bot);

/// For each item that the bot took, how many seconds of game time it played for
/// one.
std::map<std::string, double> SecondsPerItem(const MatchReport& report,
                                             std::size_t bot);

std::vector<MatchTally> TalliesOf(const MatchReport& report);

/// As an object of JSON, with a line end. The events are many.
std::string WriteMatchJson(const MatchReport& report, bool with_events);

/// Reads what was written with the events, any number of objects behind each
/// other: one report for each. What is not known of them is noted; the name of
/// the file is for that and for errors.
Result<std::vector<MatchReport>> ReadMatchJson(std::string_view text,
                                               const std::string& file,
                                               Notes& notes);

/// Puts the reports together that are about the same bots, skills and minutes,
/// in the order in which they first come.
std::vector<MatchReport> Merged(std::vector<MatchReport> reports);

/// A line for each bot of each match, below a line with the names of the
/// columns.
std::string WriteMatchCsv(const MatchReport& report);

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_MATCH_REPORT_H_
