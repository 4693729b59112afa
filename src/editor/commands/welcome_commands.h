#ifndef FRAGSMITH_EDITOR_COMMANDS_WELCOME_COMMANDS_H_
#define FRAGSMITH_EDITOR_COMMANDS_WELCOME_COMMANDS_H_

#include <QObject>
#include <filesystem>
#include <functional>
#include <vector>

#include "editor/commands/bot_commands.h"
#include "editor/panels/welcome_page.h"
#include "editor/state/program_state.h"
#include "game/game_data.h"
#include "install/program/find_games.h"

namespace fragsmith {

/// Fills the welcome page and does what is chosen on it, by the items of the
/// menu where there are such.
class WelcomeCommands : public QObject {
  Q_OBJECT

 public:
  /// All of them outlive it.
  WelcomeCommands(WelcomePage& page, BotCommands& commands, ProgramState& state,
                  std::function<void(const QString& item)> choose);

  /// Looks for games and shows what is known; no game where none was read.
  void Fill(const GameData* game);

 signals:
  /// The game's folder was set; it is to be read.
  void GameSet();

 private:
  void UseGame(const std::filesystem::path& folder);
  QString AboutGame(std::size_t bots) const;
  std::vector<WelcomePage::ListedBot> BotsOf(const GameData* game) const;

  WelcomePage& page_;
  BotCommands& commands_;
  ProgramState& state_;
  std::function<void(const QString& item)> choose_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_WELCOME_COMMANDS_H_
