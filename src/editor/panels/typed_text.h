#ifndef FRAGSMITH_EDITOR_PANELS_TYPED_TEXT_H_
#define FRAGSMITH_EDITOR_PANELS_TYPED_TEXT_H_

#include <QObject>
#include <vector>

#include "editor/controls/value_box.h"
#include "editor/pages/chat_page.h"
#include "editor/pages/page_strip.h"
#include "editor/pages/parameter_page.h"
#include "editor/panels/identity_panel.h"
#include "editor/state/current_bot.h"

namespace fragsmith {

/// What stands in the boxes of the window and is not in the bot yet, wherever
/// they are.
class TypedText : public QObject {
  Q_OBJECT

 public:
  /// Keeps references to all of them.
  TypedText(CurrentBot& current, IdentityPanel& identity, ChatPage& chat_page,
            PageStrip& strip, QObject* parent);

  /// Stores it as if the boxes were left, which comes before any command.
  /// False when a text is refused: the user was told, and the box has the
  /// focus.
  bool Store();
  /// The same with a check of all boxes, before the bot goes into files.
  bool StoreAll();

  bool IsAny() const;
  /// Takes back the last that was typed.
  void Undo();

  /// The bot with what will be stored.
  Bot WithIt() const;

 signals:
  void Typed();
  /// Why a value was refused.
  void StatusText(const QString& text);

 private:
  std::vector<ValueBox*> Boxes() const;
  bool StoreValues();

  CurrentBot& current_;
  IdentityPanel& identity_;
  ChatPage& chat_page_;
  PageStrip& strip_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PANELS_TYPED_TEXT_H_
