#include "trial/match_run.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <sstream>
#include <thread>
#include <utility>
#include <variant>

namespace fragsmith {
MatchRun::MatchRun(MatchRunSettings settings, MatchRunListener& listener)
    : settings_(std::move(settings)), listener_(listener) {}

MatchRun::~MatchRun() = default;

bool MatchRun::Step() {
  Fill();
  if (!end_ && in_play_.empty()) end_ = MatchRunEnd::kAllPlayed;
  if (!end_ && !listener_.Watch(Progress())) end_ = MatchRunEnd::kBrokenOff;
  return end_ || Look();
}

void MatchRun::Fill() {
  const auto jobs = static_cast<std::size_t>(std::max(settings_.jobs, 1));
  while (!end_ && in_play_.size() < jobs) {
    std::optional<Match> match = listener_.MatchAt(next_);
    if (!match) return;
    Begin(std::move(*match), next_++, 1);
  }
}

void MatchRun::Begin(Match match, int number, int attempt) {
  Result<std::unique_ptr<MatchInPlay>> begun =
      MatchInPlay::Start(std::move(match), settings_.server);
  if (begun) {
    in_play_.push_back({number, attempt, std::move(*begun)});
  } else {
    GiveUp(number, begun.error());
  }
}

MatchesInPlay MatchRun::Progress() const {
  MatchesInPlay progress;
  progress.reserve(in_play_.size());
  for (const Running& running : in_play_) {
    progress.push_back(&running.match->record());
  }
  return progress;
}

/// Deals with the matches that have ended; false when none has.
bool MatchRun::Look() {
  std::vector<Running> ended;
  std::erase_if(in_play_, [&ended](Running& running) {
    const bool has_ended = running.match->HasEnded();
    if (has_ended) ended.push_back(std::move(running));
    return has_ended;
  });
  for (Running& running : ended) {
    if (!end_) Finish(running);
  }
  return !ended.empty();
}

void MatchRun::Finish(Running& running) {
  std::variant<PlayedMatch, MatchFailure> outcome = running.match->Finish();
  running.match.reset();
  if (auto* const played = std::get_if<PlayedMatch>(&outcome)) {
    finished_.emplace(running.number, std::move(*played));
    HandOver();
    return;
  }
  const MatchFailure& failure = std::get<MatchFailure>(outcome);
  std::optional<Match> again;
  if (failure.may_go_well_again && running.attempt < settings_.attempts) {
    again = listener_.MatchAt(running.number);
  }
  if (!again) return GiveUp(running.number, failure.error);
  listener_.TakeFailure(running.number, failure.error, true);
  Begin(std::move(*again), running.number, running.attempt + 1);
}

/// Gives the listener what is next in order.
void MatchRun::HandOver() {
  auto first = finished_.begin();
  while (!end_ && first != finished_.end() && first->first == taken_) {
    const bool goes_on = listener_.Take(taken_++, std::move(first->second));
    first = finished_.erase(first);
    if (!goes_on) end_ = MatchRunEnd::kAnswered;
  }
}

void MatchRun::GiveUp(int number, const Error& error) {
  listener_.TakeFailure(number, error, false);
  end_ = MatchRunEnd::kFailed;
}

Match MatchOf(const MatchPlan& plan, int number) {
  const auto at = static_cast<std::size_t>(number);
  Match match;
  match.bots = plan.bots;
  match.map = plan.maps[at % plan.maps.size()];
  match.minutes = plan.minutes;
  match.frag_limit = plan.frag_limit;
  match.seed = static_cast<std::uint32_t>(at / plan.maps.size());
  return match;
}

std::vector<std::string> MapsIn(const std::string& text) {
  std::vector<std::string> maps;
  std::istringstream parts(text);
  for (std::string map; std::getline(parts, map, ',');) {
    if (!map.empty()) maps.push_back(map);
  }
  if (maps.empty()) maps.push_back(text);
  return maps;
}

int DefaultJobs() {
  return std::max(static_cast<int>(std::thread::hardware_concurrency()), 1);
}

MatchRunEnd RunMatches(const MatchRunSettings& settings,
                       MatchRunListener& listener) {
  MatchRun run(settings, listener);
  while (!run.end()) {
    if (!run.Step()) {
      constexpr std::chrono::milliseconds kPause(20);
      std::this_thread::sleep_for(kPause);
    }
  }
  return *run.end();
}

}  // namespace fragsmith
