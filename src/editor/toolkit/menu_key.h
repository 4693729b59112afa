#ifndef FRAGSMITH_EDITOR_TOOLKIT_MENU_KEY_H_
#define FRAGSMITH_EDITOR_TOOLKIT_MENU_KEY_H_

#include <QObject>

namespace fragsmith {

/// Lets Shift+F10 open what a right click opens, as the menu key does, where
/// the toolkit does not by itself. For as long as the parent is there.
void OpenMenusByShiftF10(QObject* parent);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_MENU_KEY_H_
