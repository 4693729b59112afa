#ifndef FRAGSMITH_TRIAL_MATCH_H_
#define FRAGSMITH_TRIAL_MATCH_H_

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "support/result.h"
#include "trial/match_bots.h"
#include "trial/match_figures.h"
#include "trial/match_log.h"

namespace fragsmith {

// A match: a dedicated server of the game plays bots against each other, at
// some fifty times the speed of a real game and by the same frames of game
// time, without any network, and its log is read.

struct Match {
  std::vector<MatchBot> bots;
  std::string map;
  int minutes = 5;     ///< Of game time; 0 for no end but the frags.
  int frag_limit = 0;  ///< 0 for none.
  /// Decides which of the bots comes in first; the others follow in turn. The
  /// game itself throws dice of its own: no match can be played again.
  std::uint32_t seed = 0;
};

/// What plays it.
struct MatchServer {
  std::filesystem::path engine;
  std::filesystem::path data;  ///< Empty for the place that the engine knows.
  std::string game = "baseq3";
  /// When its log does not grow for so long, it hangs.
  std::chrono::milliseconds longest_silence = std::chrono::minutes(1);
};

struct PlayedMatch {
  std::string map;
  /// The number of a player is the place of its bot in the match.
  MatchRecord record;

  const PlayerRecord& Player(std::size_t bot) const {
    return record.players.at(static_cast<int>(bot));
  }
};

struct MatchFailure {
  Error error;
  /// An accident of the engine, and not something that comes again each time.
  bool may_go_well_again = false;
};

/// A match while it is played, in a scratch folder. When this goes, however far
/// the match has come, neither the engine nor the folder stays.
class MatchInPlay {
 public:
  static Result<std::unique_ptr<MatchInPlay>> Start(Match match,
                                                    const MatchServer& server);
  MatchInPlay(const MatchInPlay&) = delete;
  MatchInPlay& operator=(const MatchInPlay&) = delete;
  ~MatchInPlay();

  /// Reads what is new. True when the match has come to its end, or will not:
  /// the engine ended too soon, hangs, or prints without end.
  bool HasEnded();

  /// As far as it has come, with the players as the game counts them.
  const MatchRecord& record() const;

  /// To be asked once, at the end. A bot that the game does not take, or not
  /// as it is, is a failure too.
  std::variant<PlayedMatch, MatchFailure> Finish();

 private:
  class Game;

  explicit MatchInPlay(std::unique_ptr<Game> game);

  std::unique_ptr<Game> game_;
};

/// The file of commands that the server runs.
std::string MatchCommands(const Match& match);

MatchTally TallyOf(const PlayedMatch& played);

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_MATCH_H_
