#include "editor/bot_checker.h"

#include <algorithm>

#include "checks/game_files.h"

namespace fragsmith {
namespace {

/// So short that the list seems to follow at once, and long enough not to
/// check at each step of a slider that is dragged.
constexpr int kPauseMilliseconds = 40;

}  // namespace

BotChecker::BotChecker(CurrentBot& current, QObject* parent)
    : QObject(parent), current_(current) {
  timer_.setSingleShot(true);
  timer_.setInterval(kPauseMilliseconds);
  connect(&timer_, &QTimer::timeout, this, &BotChecker::CheckNow);
  const auto check_soon = [this] {
    if (!timer_.isActive()) timer_.start();
  };
  connect(&current, &CurrentBot::ParameterEdited, this, check_soon);
  connect(&current, &CurrentBot::ChatsEdited, this, check_soon);
  connect(&current, &CurrentBot::Replaced, this, check_soon);
  connect(&current, &CurrentBot::Stepped, this, check_soon);
}

void BotChecker::ReadGame(const std::filesystem::path& game_folder) {
  game_.reset();
  if (!game_folder.empty()) {
    const GameFiles files = GameFiles::Open(game_folder);
    if (files.is_game()) game_ = ReadGameData(files);
  }
  CheckNow();
}

void BotChecker::CheckNow() {
  timer_.stop();
  findings_ = CheckBot(current_.bot(), game());
  std::stable_sort(findings_.begin(), findings_.end(),
                   [](const Finding& one, const Finding& other) {
                     return one.severity < other.severity;
                   });
  emit Checked();
}

}  // namespace fragsmith
