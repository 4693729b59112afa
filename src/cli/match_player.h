#ifndef FRAGSMITH_CLI_MATCH_PLAYER_H_
#define FRAGSMITH_CLI_MATCH_PLAYER_H_

#include <functional>
#include <optional>
#include <string>

#include "cli/command.h"
#include "trial/match_run.h"

namespace fragsmith {

/// Lets matches be played for a command: shows on a terminal how far it is,
/// tells what goes wrong, and ends when the program is to end.
class MatchPlayer : public MatchRunListener {
 public:
  MatchPlayer(int games, CommandContext& context);
  ~MatchPlayer() override;

  std::function<std::optional<Match>(int number)> match_at;
  /// False when what was asked is answered.
  std::function<bool(int number, PlayedMatch played)> take;

  std::optional<Match> MatchAt(int number) override;
  bool Take(int number, PlayedMatch played) override;
  void TakeFailure(int number, const Error& error,
                   bool is_played_again) override;
  bool Watch(const MatchesInPlay& in_play) override;

 private:
  void Clear();

  CommandContext& context_;
  bool is_shown_;
  int games_;
  int played_ = 0;
  std::string shown_;
};

/// The options of how long a match is and of how many are played at once.
void AddMatchMinutes(CLI::App& command, int& minutes);
void AddMatchJobs(CLI::App& command, int& jobs);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_MATCH_PLAYER_H_
