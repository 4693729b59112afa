#include "editor/toolkit/undo_keys.h"

#include <QKeyEvent>

namespace fragsmith {
namespace {

class KeyPasser : public QObject {
 public:
  KeyPasser(QLineEdit& box, UndoOfBox own)
      : QObject(&box), box_(box), own_(own) {
    box.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride ||
        (own_ == UndoOfBox::kWhileModified && box_.isModified() &&
         box_.isUndoAvailable())) {
      return QObject::eventFilter(watched, event);
    }
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (!key->matches(QKeySequence::Undo) &&
        !key->matches(QKeySequence::Redo)) {
      return QObject::eventFilter(watched, event);
    }
    // Not accepted, the key is looked up among the window's shortcuts.
    event->ignore();
    return true;
  }

 private:
  QLineEdit& box_;
  UndoOfBox own_;
};

}  // namespace

void LeaveUndoToWindow(QLineEdit& box, UndoOfBox own) {
  new KeyPasser(box, own);
}

}  // namespace fragsmith
