#ifndef FRAGSMITH_EDITOR_COMMANDS_INSTALL_COMMANDS_H_
#define FRAGSMITH_EDITOR_COMMANDS_INSTALL_COMMANDS_H_

#include <QObject>
#include <QString>

#include "editor/state/bot_checker.h"
#include "editor/state/current_bot.h"
#include "editor/state/program_state.h"

namespace fragsmith {

/// Puts the bot into the game as a package, and tells how to meet it there.
class InstallCommands : public QObject {
  Q_OBJECT

 public:
  InstallCommands(CurrentBot& current, BotChecker& checker, ProgramState& state,
                  QObject* parent);

  void Install();

 signals:
  void StatusText(const QString& text);
  void TryWanted();

 private:
  /// Why the game will not take the bot; empty where it does.
  std::string GameRefusal() const;
  void Refuse(const std::string& text);
  void Offer(const std::string& text);

  CurrentBot& current_;
  BotChecker& checker_;
  ProgramState& state_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_INSTALL_COMMANDS_H_
