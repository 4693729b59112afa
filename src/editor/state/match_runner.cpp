#include "editor/state/match_runner.h"

#include <QGuiApplication>
#include <algorithm>
#include <string>
#include <utility>

#include "support/localization.h"

namespace fragsmith {
namespace {

constexpr int kStepMilliseconds = 20;

std::string VerdictOf(const StrengthSearch& search,
                      const std::optional<MatchRunEnd>& end) {
  const Tuner& tuner = search.tuner;
  const std::size_t matches = tuner.MatchCount();
  std::string text;
  if (end && matches == 0) {
    text = Localized("No match was played to its end.");
  } else if (end && tuner.state() == TuneState::kOpen &&
             end != MatchRunEnd::kAllPlayed) {
    text = Localized("It was broken off.");
  } else if (end) {
    text = TuneInWords(tuner, search.wished_share);
  } else {
    constexpr double kPercent = 100;
    text = Localized("Looking for the strength that takes %1 %.",
                     {Fixed(search.wished_share * kPercent, 0)});
  }
  return text + " " +
         Localized(
             matches == 1 ? Localizable("Now %1; %2 match in all.")
                          : Localizable("Now %1; %2 matches in all."),
             {StepInWords(tuner.steps().back()), std::to_string(matches)});
}

std::string ShareSoFar(const MatchSession& session) {
  const std::size_t played = session.report.played.size();
  const std::string count = std::to_string(played);
  const std::string& name = session.names.front();
  const std::string share = ShownShare(session.shares.back());
  if (session.is_until_sure()) {
    return Localized(
        played == 1
            ? Localizable("After %1 match, %2 took %3 of the points.")
            : Localizable("After %1 matches, %2 took %3 of the points."),
        {count, name, share});
  }
  return Localized(
      played == 1
          ? Localizable("After %1 match of %2, %3 took %4 of the points.")
          : Localizable("After %1 matches of %2, %3 took %4 of the points."),
      {count, std::to_string(session.games), name, share});
}

}  // namespace

std::string VerdictOf(const MatchSession& session) {
  if (session.search) return VerdictOf(*session.search, session.end);
  const std::size_t played = session.report.played.size();
  if (played == 0) {
    return session.end ? Localized("No match was played to its end.")
                       : Localized("The first matches are being played.");
  }
  const bool is_settled = session.end == MatchRunEnd::kAllPlayed ||
                          session.end == MatchRunEnd::kAnswered;
  if (is_settled) {
    return CompareInWords(session.report, 0, session.names).sentence;
  }
  const std::string broken_off =
      session.end ? Localized("It was broken off.") + " " : std::string();
  return broken_off + ShareSoFar(session) + " " +
         Localized("That is no result yet.");
}

bool MatchSession::IsOf(const std::shared_ptr<BotHome>& other) const {
  const auto is_same = [](const auto& one, const auto& another) {
    return one.first == another.first &&
           one.second.path == another.second.path &&
           one.second.entry == another.second.entry;
  };
  return home == other ||
         (!home->files.empty() &&
          std::ranges::equal(home->files, other->files, is_same));
}

MatchRunner::MatchRunner(QObject* parent) : QObject(parent) {
  timer_.setInterval(kStepMilliseconds);
  connect(&timer_, &QTimer::timeout, this, &MatchRunner::Step);
  connect(qApp, &QGuiApplication::commitDataRequest, this, &MatchRunner::Stop);
}

void MatchRunner::Start(MatchSession& session, MatchServer server, int jobs) {
  session_ = &session;
  settings_ = {.server = std::move(server), .jobs = jobs};
  Begin();
  timer_.start();
}

void MatchRunner::Begin() {
  in_play_ = 0;
  minute_ = 1;
  MatchRunListener& listener = *this;
  run_.emplace(settings_, listener);
}

void MatchRunner::Stop() {
  if (run_) End(MatchRunEnd::kBrokenOff);
}

void MatchRunner::Step() {
  const std::vector<PlayedMatch>& all = session_->report.played;
  const std::size_t played = all.size();
  const auto moved = std::pair(in_play_, minute_);
  run_->Step();
  if (all.size() != played) emit Played();
  if (std::pair(in_play_, minute_) != moved) emit Moved();
  if (run_ && run_->end()) End(*run_->end());
}

bool MatchRunner::BeginNextStrength() {
  if (!session_->search) return false;
  const StrengthSearch& search = *session_->search;
  if (search.tuner.state() != TuneState::kOpen) return false;
  Result<MatchBot> moved = search.bot_at(search.tuner.strength());
  if (!moved) {
    session_->remark = Describe(moved.error());
    return false;
  }
  session_->report.plan.bots.front() = std::move(*moved);
  session_->report.played.clear();
  session_->shares.clear();
  Begin();
  return true;
}

void MatchRunner::End(MatchRunEnd end) {
  if (end == MatchRunEnd::kAnswered && BeginNextStrength()) return;
  timer_.stop();
  run_.reset();
  session_->end = end;
  emit Ended();
}

std::optional<Match> MatchRunner::MatchAt(int number) {
  std::size_t before = 0;
  if (session_->search) {
    before = session_->search->tuner.MatchCount() -
             session_->search->tuner.steps().back().matches.size();
  }
  if (static_cast<std::size_t>(number) + before >=
      static_cast<std::size_t>(session_->games)) {
    return std::nullopt;
  }
  return MatchOf(session_->report.plan, number);
}

bool MatchRunner::Take(int /*number*/, PlayedMatch played) {
  MatchReport& report = session_->report;
  const MatchTally tally = TallyOf(played);
  report.played.push_back(std::move(played));
  session_->shares.push_back(Compare(TalliesOf(report), 0, 1).share);
  if (session_->search) return session_->search->tuner.Take(tally);
  for (SequentialTest& test : report.tests) test.Take(tally);
  return report.tests.empty() ||
         report.tests.front().settled() == Settled::kNot;
}

void MatchRunner::TakeFailure(int /*number*/, const Error& error,
                              bool /*is_played_again*/) {
  session_->remark = Describe(error);
}

bool MatchRunner::Watch(const MatchesInPlay& in_play) {
  constexpr int kSecondsInMinute = 60;
  in_play_ = in_play.size();
  minute_ = 1;
  for (const MatchRecord* const match : in_play) {
    minute_ = std::max(minute_, match->seconds / kSecondsInMinute + 1);
  }
  return true;
}

}  // namespace fragsmith
