#ifndef FRAGSMITH_EDITOR_MAIN_MENU_H_
#define FRAGSMITH_EDITOR_MAIN_MENU_H_

#include <QAction>
#include <QMenuBar>
#include <QString>
#include <functional>

#include "game/bot_kinds.h"

namespace fragsmith {

/// The item that makes a new bot of the kind.
QString NewKindItem(BotKind kind);

/// True for the items that do not begin with what stands in the boxes.
bool TakesTypingItself(const QString& item);

/// Fills the menu bar with the program's menus. Items and menus have their
/// names as object names; each item calls the handler with its name when it
/// is chosen.
void FillMainMenu(QMenuBar& bar,
                  const std::function<void(const QString& name)>& handler);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MAIN_MENU_H_
