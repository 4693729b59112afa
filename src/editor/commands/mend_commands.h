#ifndef FRAGSMITH_EDITOR_COMMANDS_MEND_COMMANDS_H_
#define FRAGSMITH_EDITOR_COMMANDS_MEND_COMMANDS_H_

#include <QObject>
#include <functional>

#include "checks/mend_all.h"
#include "editor/panels/findings_dock.h"
#include "editor/state/bot_checker.h"
#include "editor/state/current_bot.h"

namespace fragsmith {

/// Puts right what the list of findings tells: one finding, or many as one
/// step of undo.
class MendCommands : public QObject {
  Q_OBJECT

 public:
  MendCommands(CurrentBot& current, BotChecker& checker, QObject* parent);

  /// What is typed is stored first, by a function that is false when it is
  /// refused.
  void Attach(FindingsDock& dock, const std::function<bool()>& store_typing);

 signals:
  void StatusText(const QString& text);

 private:
  void MendMany(const QString& name, const MendChoice& choice);
  /// Nobody's work: as the new bot was made.
  bool IsUntouched(const BotPlace& place) const;

  CurrentBot& current_;
  BotChecker& checker_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_MEND_COMMANDS_H_
