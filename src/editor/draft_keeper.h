#ifndef FRAGSMITH_EDITOR_DRAFT_KEEPER_H_
#define FRAGSMITH_EDITOR_DRAFT_KEEPER_H_

#include <QObject>
#include <QTimer>
#include <filesystem>
#include <optional>

#include "editor/current_bot.h"

namespace fragsmith {

/// Keeps a copy of a bot with unsaved changes in the program folder, so that a
/// crash costs no work. The copy goes when there is nothing unsaved any more.
class DraftKeeper : public QObject {
  Q_OBJECT

 public:
  DraftKeeper(std::filesystem::path program_folder, CurrentBot& current,
              QObject* parent);

  /// The bot that an earlier run left behind; nothing when there is none or
  /// when it cannot be read. To be asked before the first edit.
  std::optional<Bot> LeftBehind() const;

  /// Removes the copy: the user let the changes go, or does not want them.
  void Discard();

  /// Writes at once what the timer still waits with.
  void SaveNow();

 private:
  void Schedule();

  std::filesystem::path file_;
  CurrentBot& current_;
  QTimer timer_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DRAFT_KEEPER_H_
