#ifndef FRAGSMITH_EDITOR_EDIT_COMMANDS_H_
#define FRAGSMITH_EDITOR_EDIT_COMMANDS_H_

#include <QMenuBar>
#include <QWidget>

#include "editor/current_bot.h"
#include "editor/identity_panel.h"
#include "editor/page_navigator.h"

namespace fragsmith {

/// The commands of the Edit menu: taking edits back, looking for a parameter
/// or chat line, copying the values of a level, and putting a value back.
class EditCommands : public QObject {
  Q_OBJECT

 public:
  EditCommands(CurrentBot& current, IdentityPanel& identity,
               PageNavigator& navigator, QWidget& window);

  /// Keeps the menu's items true: what would be undone, and what is possible.
  void Attach(QMenuBar& bar);

  void Undo();
  void Redo() { current_.steps().redo(); }
  void Find();

  /// All values of a level into another one.
  void CopyLevel(int from, int to);

  /// Puts back the value that the parameter had when the bot was loaded or
  /// made.
  void Reset(int parameter);
  /// The same for the slider that has the focus.
  void ResetFocused();

  /// What can be done with the parameter whose slider was clicked.
  void ShowParameterMenu(int parameter, QPoint global_place);

 private:
  void CopyParameter(int from, int to);

  CurrentBot& current_;
  IdentityPanel& identity_;
  PageNavigator& navigator_;
  QWidget& window_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_EDIT_COMMANDS_H_
