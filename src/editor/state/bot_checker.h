#ifndef FRAGSMITH_EDITOR_STATE_BOT_CHECKER_H_
#define FRAGSMITH_EDITOR_STATE_BOT_CHECKER_H_

#include <QObject>
#include <QTimer>
#include <filesystem>
#include <optional>
#include <vector>

#include "checks/bot_checks.h"
#include "checks/location_checks.h"
#include "editor/state/current_bot.h"
#include "editor/state/files_checker.h"
#include "game/game_data.h"

namespace fragsmith {

/// Keeps the list of what the game will make of the current bot, a moment
/// behind every edit, and of the files that it came from.
class BotChecker : public QObject {
  Q_OBJECT

 public:
  BotChecker(CurrentBot& current, QObject* parent);

  /// The gravest first, of them those of the files.
  const std::vector<Finding>& findings() const { return findings_; }

  /// Null while no game was read.
  const GameData* game() const { return game_ ? &game_->data : nullptr; }
  const InstalledGame* installed() const { return game_ ? &*game_ : nullptr; }

  /// Reads the installed game's lists; an empty path is no game. Takes some
  /// tenths of a second.
  void ReadGame(const std::filesystem::path& game_folder);

  /// Checks at once what the timer still waits with.
  void CheckNow();

  /// The bot was written: its files are others than before.
  void CheckFilesSoon() { files_.CheckSoon(); }

 signals:
  void Checked();

 private:
  QTimer timer_;
  std::optional<InstalledGame> game_;
  FilesChecker files_;
  std::vector<Finding> findings_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_STATE_BOT_CHECKER_H_
