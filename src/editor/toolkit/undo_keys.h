#ifndef FRAGSMITH_EDITOR_TOOLKIT_UNDO_KEYS_H_
#define FRAGSMITH_EDITOR_TOOLKIT_UNDO_KEYS_H_

#include <QLineEdit>

namespace fragsmith {

/// Text boxes keep the keys of undo and redo to themselves. With this one the
/// keys go to the window; kWhileModified leaves them to the box while its text
/// is modified, that is, not in the bot yet.
enum class UndoOfBox { kNever, kWhileModified };
void LeaveUndoToWindow(QLineEdit& box, UndoOfBox own = UndoOfBox::kNever);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_UNDO_KEYS_H_
