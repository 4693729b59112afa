#ifndef FRAGSMITH_TRIAL_TUNE_H_
#define FRAGSMITH_TRIAL_TUNE_H_

#include <cstdint>
#include <optional>
#include <vector>

#include "model/bot.h"
#include "trial/match_figures.h"
#include "trial/sequential_test.h"

namespace fragsmith {

// A bot is made as strong as wished: its three levels are moved towards a weak
// or a strong end until it takes the wished share of the points against an
// opponent.

/// What a parameter of a level is at the two ends.
struct StrengthEnds {
  int index;  ///< In the catalogue.
  double weak;
  double strong;
};

/// What decides how well a bot fights; its manners stay as they are.
const std::vector<StrengthEnds>& AllStrengthEnds();

/// The bot with all levels moved: -1 is the weak end, 0 the bot as it is, 1 the
/// strong end. A value that lies beyond an end stays, and so does what is no
/// number; of one that is left to the game, its usual value is moved.
Bot WithStrength(const Bot& bot, double strength);

/// Moves the bot as one was moved that it has been. What was edited since is
/// newer and stays: that is given back.
std::vector<ParameterId> TakeStrengthOf(const Bot& before, double strength,
                                        Bot& bot);

enum class TuneState : std::uint8_t {
  kOpen,        ///< More matches are needed.
  kFound,       ///< The share is the wished one, within the margin.
  kOutOfReach,  ///< Not even the end takes it, or is so weak.
  kTooFine,     ///< The share leaps where the values hardly differ.
};

/// The matches at one strength.
struct TuneStep {
  double strength = 0;
  Settled settled = Settled::kNot;
  std::vector<MatchTally> matches = {};

  Estimate Share() const { return Compare(matches, 0, 1).share; }
};

/// The shares in a hundred that may be wished for: nearer to all or nothing
/// hardly any number of matches tells one from another.
inline constexpr int kMinWishedShare = 10;
inline constexpr int kMaxWishedShare = 90;
/// How near to the wished share is near enough, unless somebody says otherwise,
/// in a hundred; and how many matches are played for it at most.
inline constexpr int kTuneMargin = 5;
inline constexpr int kMaxTuneMatches = 1000;

/// Looks for the strength: first the bot as it is, then the end on the side
/// that is wanted, then half way between. Each step is a sequential test.
class Tuner {
 public:
  Tuner(double wished_share, double margin);

  /// Of the bot in the next match.
  double strength() const { return steps_.back().strength; }

  /// Takes a match of the bot at that strength, the first one, against the
  /// opponent. False when the strength is another one then, or no more matches
  /// are needed.
  bool Take(const MatchTally& match);

  TuneState state() const { return state_; }
  const std::vector<TuneStep>& steps() const { return steps_; }
  /// Those of all steps.
  std::size_t MatchCount() const;

 private:
  void EndStep();
  void Begin(double strength);

  SequentialTest::Question question_;
  std::optional<SequentialTest> test_;
  double weaker_ = -1;
  double stronger_ = 1;
  bool has_ends_ = false;
  TuneState state_ = TuneState::kOpen;
  std::vector<TuneStep> steps_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_TUNE_H_
