#include "editor/state/files_checker.h"

#include <memory>
#include <optional>

#include "checks/bot_checks.h"
#include "checks/bot_location.h"
#include "checks/odd_values.h"
#include "session/bot_origin.h"

namespace fragsmith {

FilesChecker::FilesChecker(CurrentBot& current, QObject* parent)
    : QObject(parent), current_(current) {
  timer_.setSingleShot(true);
  timer_.setInterval(0);
  connect(&timer_, &QTimer::timeout, this, &FilesChecker::Check);
  connect(&current, &CurrentBot::OriginChanged, this, &FilesChecker::CheckSoon);
}

void FilesChecker::SetGame(const InstalledGame* game) {
  game_ = game;
  CheckSoon();
}

std::vector<Finding> FilesChecker::InMemory() const {
  const Bot& bot = current_.bot();
  const std::shared_ptr<const Bot>& saved = current_.origin().home->saved;
  std::vector<Finding> findings =
      files_ ? files_->InMemory(bot, saved != nullptr && bot == *saved)
             : CheckBot(bot, game_ == nullptr ? nullptr : &game_->data);
  TellOddValues(bot, *current_.origin().report, findings);
  return findings;
}

void FilesChecker::CheckSoon() {
  files_.reset();
  if (!findings_.empty()) {
    findings_.clear();
    emit Checked();
  }
  timer_.start();
}

void FilesChecker::Check() {
  const BotHome& home = *current_.origin().home;
  const std::optional<BotLocation> location = LocationOf(home);
  if (!location || !home.saved) return;
  files_.emplace(*location, !home.load_options.loads_description, game_);
  findings_ = files_->InFilesAlone(*home.saved);
  emit Checked();
}

}  // namespace fragsmith
