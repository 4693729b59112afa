#ifndef FRAGSMITH_TRIAL_MATCH_RUN_H_
#define FRAGSMITH_TRIAL_MATCH_RUN_H_

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "support/result.h"
#include "trial/match.h"

namespace fragsmith {

// Several matches, side by side. Which they are, and what becomes of them, is
// the listener's; all of it is called in the caller's own thread.

/// What all matches between the same bots have in common.
struct MatchPlan {
  std::vector<MatchBot> bots;
  std::vector<std::string> maps;  ///< At least one.
  int minutes = 5;                ///< Of game time; 0 for no end but the frags.
  int frag_limit = 0;             ///< 0 for none.
};

/// The match of the number, from 0 on. The maps go round, and on each the bots
/// come in by turns.
Match MatchOf(const MatchPlan& plan, int number);

/// The maps of a text that has commas between them; the text itself where it
/// names none.
std::vector<std::string> MapsIn(const std::string& text);

/// How many are played at most until it is sure whether bots differ, unless
/// somebody says otherwise.
inline constexpr int kMaxUntilSure = 500;
/// Of game time, the longest match.
inline constexpr int kMaxMatchMinutes = 600;

struct MatchRunSettings {
  MatchServer server;
  int jobs = 1;  ///< How many matches are played at once.
  /// How often a match is begun whose engine dies, hangs or babbles.
  int attempts = 3;
};

/// As many as the processor plays without slowing one another down.
int DefaultJobs();

/// Matches that are being played, as far as they have come. None is null; they
/// are good during the call that gives them.
using MatchesInPlay = std::vector<const MatchRecord*>;

class MatchRunListener {
 public:
  MatchRunListener() = default;
  MatchRunListener(const MatchRunListener&) = delete;
  MatchRunListener& operator=(const MatchRunListener&) = delete;
  virtual ~MatchRunListener() = default;

  /// The match of the number, from 0 on; nothing when there are no more.
  virtual std::optional<Match> MatchAt(int number) = 0;

  /// Comes in the order of the numbers, whichever was over first: who stops
  /// when the figures are clear must not see the short matches before the long
  /// ones. False ends the run: what was asked is answered.
  virtual bool Take(int number, PlayedMatch played) = 0;

  /// The match went wrong. When it is not played again, the run ends.
  virtual void TakeFailure(int number, const Error& error,
                           bool is_played_again) = 0;

  /// Is asked some fifty times a second; false breaks the run off.
  virtual bool Watch(const MatchesInPlay& in_play) = 0;
};

enum class MatchRunEnd : std::uint8_t {
  kAllPlayed,
  kAnswered,   ///< The listener needs no more.
  kBrokenOff,  ///< The listener wants no more.
  kFailed,     ///< The listener was told why.
};

/// Matches that are played as their owner has time for them. When this goes, no
/// engine runs and no scratch folder is left.
class MatchRun {
 public:
  /// The listener outlives it.
  MatchRun(MatchRunSettings settings, MatchRunListener& listener);
  MatchRun(const MatchRun&) = delete;
  MatchRun& operator=(const MatchRun&) = delete;
  ~MatchRun();

  /// Does what is to be done just now. False when it was nothing, and there is
  /// time for a pause.
  bool Step();

  /// Nothing as long as there is more to be done.
  const std::optional<MatchRunEnd>& end() const { return end_; }

 private:
  struct Running {
    int number = 0;
    int attempt = 1;
    std::unique_ptr<MatchInPlay> match;
  };

  void Fill();
  void Begin(Match match, int number, int attempt);
  MatchesInPlay Progress() const;
  bool Look();
  void Finish(Running& running);
  void HandOver();
  void GiveUp(int number, const Error& error);

  const MatchRunSettings settings_;
  MatchRunListener& listener_;
  std::vector<Running> in_play_;
  std::map<int, PlayedMatch> finished_;
  int next_ = 0;
  int taken_ = 0;
  std::optional<MatchRunEnd> end_;
};

/// Plays until there are no more matches or the listener says so. At the end no
/// engine runs and no scratch folder is left, whatever the end.
MatchRunEnd RunMatches(const MatchRunSettings& settings,
                       MatchRunListener& listener);

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_MATCH_RUN_H_
