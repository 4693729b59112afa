#include "editor/state/bot_checker.h"

#include <algorithm>

namespace fragsmith {
namespace {

/// So short that the list seems to follow at once, and long enough not to
/// check at each step of a slider that is dragged.
constexpr int kPauseMilliseconds = 40;

}  // namespace

BotChecker::BotChecker(CurrentBot& current, QObject* parent)
    : QObject(parent), files_(current, this) {
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
  connect(&files_, &FilesChecker::Checked, this, check_soon);
}

void BotChecker::ReadGame(const std::filesystem::path& game_folder) {
  files_.SetGame(nullptr);
  game_ = ReadInstalledGame(game_folder);
  files_.SetGame(installed());
  CheckNow();
}

void BotChecker::CheckNow() {
  timer_.stop();
  findings_ = files_.findings();
  const std::vector<Finding> of_bot = files_.InMemory();
  findings_.insert(findings_.end(), of_bot.begin(), of_bot.end());
  std::stable_sort(findings_.begin(), findings_.end(),
                   [](const Finding& one, const Finding& other) {
                     return one.severity < other.severity;
                   });
  emit Checked();
}

}  // namespace fragsmith
