#ifndef FRAGSMITH_EDITOR_STATE_MATCH_RUNNER_H_
#define FRAGSMITH_EDITOR_STATE_MATCH_RUNNER_H_

#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "checks/finding.h"
#include "editor/toolkit/program_end.h"
#include "model/bot.h"
#include "session/bot_origin.h"
#include "trial/match_report.h"
#include "trial/match_run.h"
#include "trial/match_words.h"
#include "trial/said_lines.h"
#include "trial/tune.h"

namespace fragsmith {

/// The search for the strength at which the bot takes a wished share.
struct StrengthSearch {
  double wished_share;  ///< 0 to 1.
  /// The bot of that strength, for the game.
  std::function<Result<MatchBot>(double strength)> bot_at;
  Tuner tuner;
};

/// A run of matches between a bot of the window and another one, as far as it
/// has come.
struct MatchSession {
  MatchSession(Bot played, const WordLists& words)
      : bot(std::move(played)), said(bot, words) {}

  Bot bot;  ///< As it was when the run began; the first one of the report.
  SaidLines said;
  /// What people call the two bots.
  std::vector<std::string> names;
  /// Whose bot it is, however it was edited since.
  std::shared_ptr<BotHome> home;
  /// What was found in the bot when the run began.
  std::vector<Finding> findings = {};
  /// Where it searches, the report is that of the strength that is played now.
  MatchReport report;
  std::optional<StrengthSearch> search = {};
  int games = 0;  ///< How many there are to be, or may be at most.
  /// The bot's share of the points of the two after each match.
  std::vector<Estimate> shares;
  std::string remark;              ///< Such as the last thing that went wrong.
  std::optional<MatchRunEnd> end;  ///< Nothing while it goes on.

  bool is_until_sure() const { return !report.tests.empty(); }
  std::size_t Matches() const {
    return search ? search->tuner.MatchCount() : report.played.size();
  }
  /// True for the bot that played, however it was edited or loaded anew since.
  bool IsOf(const std::shared_ptr<BotHome>& other) const;
};

/// What the matches of a run say so far, in a sentence. There is no verdict
/// before all of them were played or the test has settled it.
std::string VerdictOf(const MatchSession& session);

/// Plays runs, one at a time, beside all else that the window does. The engines
/// end with it at the latest, also when the program or the user's session ends.
class MatchRunner : public QObject, private MatchRunListener {
  Q_OBJECT

 public:
  explicit MatchRunner(QObject* parent);

  /// The session outlives the run.
  void Start(MatchSession& session, MatchServer server, int jobs);
  /// Breaks the run off; no engine runs when this returns.
  void Stop();

  bool IsRunning() const { return run_.has_value(); }
  std::size_t in_play() const { return in_play_; }
  /// Of game time, of the match that is furthest; from 1.
  int minute() const { return minute_; }

 signals:
  /// Another match was played.
  void Played();
  /// Engines begin, end or go on to the next minute.
  void Moved();
  void Ended();

 private:
  std::optional<Match> MatchAt(int number) override;
  bool Take(int number, PlayedMatch played) override;
  void TakeFailure(int number, const Error& error,
                   bool is_played_again) override;
  bool Watch(const MatchesInPlay& in_play) override;
  void Step();
  void Begin();
  void End(MatchRunEnd end);
  /// Goes on with the strength that the search asks for next; false where
  /// there is none.
  bool BeginNextStrength();

  QTimer timer_;
  MatchRunSettings settings_;
  std::optional<MatchRun> run_;
  AtProgramEnd at_program_end_{[this] { run_.reset(); }};
  MatchSession* session_ = nullptr;
  std::size_t in_play_ = 0;
  int minute_ = 1;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_STATE_MATCH_RUNNER_H_
