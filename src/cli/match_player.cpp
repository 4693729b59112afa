#include "cli/match_player.h"

#include <algorithm>
#include <utility>

#include "support/system/console.h"
#include "support/system/interruption.h"

namespace fragsmith {

MatchPlayer::MatchPlayer(int games, CommandContext& context)
    : context_(context), is_shown_(IsErrorTerminal()), games_(games) {}

MatchPlayer::~MatchPlayer() { Clear(); }

std::optional<Match> MatchPlayer::MatchAt(int number) {
  return number < games_ ? match_at(number) : std::nullopt;
}

bool MatchPlayer::Take(int number, PlayedMatch played) {
  ++played_;
  return take(number, std::move(played));
}

void MatchPlayer::TakeFailure(int number, const Error& error,
                              bool is_played_again) {
  Clear();
  if (is_played_again) {
    context_.err << "Match " << number + 1 << " is played again.\n";
  }
  Fail(context_, error);
}

bool MatchPlayer::Watch(const MatchesInPlay& in_play) {
  if (Interruption::HasCome()) return false;
  if (!is_shown_) return true;
  int seconds = 0;
  for (const MatchRecord* const match : in_play) {
    seconds = std::max(seconds, match->seconds);
  }
  constexpr int kSecondsInMinute = 60;
  std::string text = std::to_string(played_) + " of " + std::to_string(games_) +
                     " matches played, " + std::to_string(in_play.size()) +
                     " running, minute " +
                     std::to_string(seconds / kSecondsInMinute + 1);
  if (text == shown_) return true;
  shown_ = std::move(text);
  context_.err << "\r\033[K" << shown_ << std::flush;
  return true;
}

void MatchPlayer::Clear() {
  if (!shown_.empty()) context_.err << "\r\033[K" << std::flush;
  shown_.clear();
}

void AddMatchMinutes(CLI::App& command, int& minutes) {
  command
      .add_option("--minutes", minutes,
                  "Of game time for each match; 5 without it")
      ->check(CLI::Range(1, kMaxMatchMinutes));
}

void AddMatchJobs(CLI::App& command, int& jobs) {
  constexpr int kMaxJobs = 256;
  command
      .add_option("--jobs", jobs,
                  "How many matches at once; as many as there are cores "
                  "without it")
      ->check(CLI::Range(1, kMaxJobs));
}

}  // namespace fragsmith
