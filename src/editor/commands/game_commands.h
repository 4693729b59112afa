#ifndef FRAGSMITH_EDITOR_COMMANDS_GAME_COMMANDS_H_
#define FRAGSMITH_EDITOR_COMMANDS_GAME_COMMANDS_H_

#include <QObject>
#include <QWidget>

#include "checks/bot_location.h"
#include "editor/state/bot_checker.h"
#include "editor/state/current_bot.h"
#include "editor/state/program_state.h"
#include "editor/toolkit/folder_places.h"

namespace fragsmith {

/// The commands that ask what the game makes of a bot: the trial, and the check
/// of files that are not loaded.
class GameCommands : public QObject {
 public:
  /// All but the window's own parts outlive it; dialogs stand before the
  /// window.
  GameCommands(CurrentBot& current, BotChecker& checker, ProgramState& state,
               QWidget& window);

  /// The boxes have been checked.
  void TryInGame();
  void CheckFiles(const FolderPlaces& places);

 private:
  CurrentBot& current_;
  BotChecker& checker_;
  ProgramState& state_;
  QWidget& window_;
  /// Where files were last checked, empty at the start, and which bot was
  /// loaded then.
  std::filesystem::path last_folder_;
  BotLocation last_loaded_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_GAME_COMMANDS_H_
