#ifndef FRAGSMITH_EDITOR_STATE_FILES_CHECKER_H_
#define FRAGSMITH_EDITOR_STATE_FILES_CHECKER_H_

#include <QObject>
#include <QTimer>
#include <optional>
#include <vector>

#include "checks/finding.h"
#include "checks/location_checks.h"
#include "editor/state/current_bot.h"

namespace fragsmith {

/// Keeps what the game will make of the files that the current bot came from,
/// as far as the bot does not show it by itself. Looks into them behind the
/// events: after a load, after a save, and when undo brings another bot back.
class FilesChecker : public QObject {
  Q_OBJECT

 public:
  FilesChecker(CurrentBot& current, QObject* parent);

  const std::vector<Finding>& findings() const { return findings_; }

  /// What is to be told of the bot in memory, given its files.
  std::vector<Finding> InMemory() const;

  /// Null where none is known.
  void SetGame(const InstalledGame* game);

  /// The files are others than before. What was said of them counts no more.
  void CheckSoon();

 signals:
  void Checked();

 private:
  void Check();

  CurrentBot& current_;
  const InstalledGame* game_ = nullptr;
  QTimer timer_;
  std::optional<LocationCheck>
      files_;  ///< Nothing until they were looked into.
  std::vector<Finding> findings_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_STATE_FILES_CHECKER_H_
