#ifndef FRAGSMITH_EDITOR_BOT_CHECKER_H_
#define FRAGSMITH_EDITOR_BOT_CHECKER_H_

#include <QObject>
#include <QTimer>
#include <filesystem>
#include <optional>
#include <vector>

#include "checks/bot_checks.h"
#include "checks/game_data.h"
#include "editor/current_bot.h"

namespace fragsmith {

/// Keeps the list of what the game will make of the current bot, a moment
/// behind every edit.
class BotChecker : public QObject {
  Q_OBJECT

 public:
  BotChecker(CurrentBot& current, QObject* parent);

  /// The gravest first.
  const std::vector<Finding>& findings() const { return findings_; }

  /// Null while no game was read.
  const GameData* game() const { return game_ ? &*game_ : nullptr; }

  /// Reads the installed game's lists; an empty path is no game. Takes some
  /// tenths of a second.
  void ReadGame(const std::filesystem::path& game_folder);

  /// Checks at once what the timer still waits with.
  void CheckNow();

 signals:
  void Checked();

 private:
  CurrentBot& current_;
  QTimer timer_;
  std::optional<GameData> game_;
  std::vector<Finding> findings_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_BOT_CHECKER_H_
