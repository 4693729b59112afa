#include "editor/state/match_runner.h"

#include <QGuiApplication>
#include <algorithm>
#include <utility>

namespace fragsmith {
namespace {

constexpr int kStepMilliseconds = 20;

}  // namespace

std::string VerdictOf(const MatchSession& session) {
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

MatchRunner::MatchRunner(QObject* parent) : QObject(parent) {
  timer_.setInterval(kStepMilliseconds);
  connect(&timer_, &QTimer::timeout, this, &MatchRunner::Step);
  connect(qApp, &QGuiApplication::commitDataRequest, this, &MatchRunner::Stop);
}

void MatchRunner::Start(MatchSession& session, MatchServer server, int jobs) {
  session_ = &session;
  in_play_ = 0;
  minute_ = 1;
  MatchRunListener& listener = *this;
  run_.emplace(MatchRunSettings{.server = std::move(server), .jobs = jobs},
               listener);
  timer_.start();
}

void MatchRunner::Stop() {
  if (run_) End(MatchRunEnd::kBrokenOff);
}

void MatchRunner::Step() {
  const std::size_t played = session_->report.played.size();
  const auto moved = std::pair(in_play_, minute_);
  run_->Step();
  if (session_->report.played.size() != played) emit Played();
  if (std::pair(in_play_, minute_) != moved) emit Moved();
  if (run_ && run_->end()) End(*run_->end());
}

void MatchRunner::End(MatchRunEnd end) {
  timer_.stop();
  run_.reset();
  session_->end = end;
  emit Ended();
}

std::optional<Match> MatchRunner::MatchAt(int number) {
  if (number >= session_->games) return std::nullopt;
  return MatchOf(session_->report.plan, number);
}

bool MatchRunner::Take(int /*number*/, PlayedMatch played) {
  MatchReport& report = session_->report;
  const MatchTally tally = TallyOf(played);
  report.played.push_back(std::move(played));
  session_->shares.push_back(Compare(TalliesOf(report), 0, 1).share);
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
