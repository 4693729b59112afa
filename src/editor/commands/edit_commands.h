#ifndef FRAGSMITH_EDITOR_COMMANDS_EDIT_COMMANDS_H_
#define FRAGSMITH_EDITOR_COMMANDS_EDIT_COMMANDS_H_

#include <QMenuBar>
#include <QWidget>

#include "editor/pages/page_navigator.h"
#include "editor/panels/typed_text.h"
#include "editor/state/current_bot.h"

namespace fragsmith {

/// The commands of the Edit menu: taking edits back, looking for a parameter
/// or chat line, copying the values of a level, and putting a value back.
class EditCommands : public QObject {
  Q_OBJECT

 public:
  EditCommands(CurrentBot& current, TypedText& typed_text,
               PageNavigator& navigator, QWidget& window);

  /// Keeps the menu's items true: what would be undone, and what is possible.
  void Attach(QMenuBar& bar);

  void Undo();
  void Redo() { current_.steps().redo(); }
  void Find();

  /// All values of a level into another one.
  void CopyLevel(Level from, Level to);

  /// Puts back the value that the parameter had when the bot was loaded or
  /// made.
  void Reset(ParameterId parameter);
  /// The same for the slider that has the focus.
  void ResetFocused();

  /// What can be done with the parameter whose slider was clicked.
  void ShowParameterMenu(ParameterId parameter, QPoint global_place);

 private:
  void CopyParameter(ParameterId from, ParameterId to);

  CurrentBot& current_;
  TypedText& typed_text_;
  PageNavigator& navigator_;
  QWidget& window_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_EDIT_COMMANDS_H_
