#include "editor/state/match_runner.h"

#include <QGuiApplication>
#include <algorithm>
#include <utility>

namespace fragsmith {
namespace {

constexpr int kStepMilliseconds = 20;

std::string VerdictOf(const StrengthSearch& search,
                      const std::optional<MatchRunEnd>& end) {
  const Tuner& tuner = search.tuner;
  const std::size_t matches = tuner.MatchCount();
  std::string text;
  if (end && matches == 0) {
    text = "No match was played to its end.";
  } else if (end && tuner.state() == TuneState::kOpen &&
             end != MatchRunEnd::kAllPlayed) {
    text = "It was broken off.";
  } else if (end) {
    text = TuneInWords(tuner, search.wished_share);
  } else {
    constexpr double kPercent = 100;
    text = "Looking for the strength that takes " +
           Fixed(search.wished_share * kPercent, 0) + " %.";
  }
  text += " Now " + StepInWords(tuner.steps().back());
  return text + "; " + MatchesText(matches) + " in all.";
}

}  // namespace

std::string VerdictOf(const MatchSession& session) {
  if (session.search) return VerdictOf(*session.search, session.end);
  const std::size_t played = session.report.played.size();
  if (played == 0) {
    return session.end ? "No match was played to its end."
                       : "The first matches are being played.";
  }
  const bool is_settled = session.end == MatchRunEnd::kAllPlayed ||
                          session.end == MatchRunEnd::kAnswered;
  if (is_settled) {
    return CompareInWords(session.report, 0, session.names).sentence;
  }
  std::string text = session.end ? "It was broken off. " : "";
  text += "After " + MatchesText(played);
  if (!session.is_until_sure()) text += " of " + std::to_string(session.games);
  return text + ", " + session.names.front() + " took " +
         ShownShare(session.shares.back()) +
         " of the points. That is no result yet.";
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
