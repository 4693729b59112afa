#include "editor/main_menu.h"

#include <QKeySequence>
#include <QMenu>
#include <array>
#include <vector>

namespace fragsmith {
namespace {

enum class ItemKind { kMenu, kItem, kSeparator, kEndOfMenu };

struct MenuItem {
  ItemKind kind;
  const char* name = "";
  const char* text = "";
  const char* shortcut = "";
};

constexpr MenuItem Menu(const char* name, const char* text) {
  return {ItemKind::kMenu, name, text, ""};
}
constexpr MenuItem Item(const char* name, const char* text,
                        const char* shortcut = "") {
  return {ItemKind::kItem, name, text, shortcut};
}
constexpr MenuItem kEnd = {ItemKind::kEndOfMenu, "", "", ""};

constexpr std::array kItems = {
    Menu("mFragsmith", "&Program"),
    Item("mnuOptions", "&Options", "Ctrl+,"),
    Item("mnuAbout", "&About Fragsmith"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator1", "", ""},
    Item("mnuExit", "E&xit", "Ctrl+Q"),
    kEnd,
    Menu("mnuEdit", "&Edit"),
    Item("mnuUndo", "&Undo", "Ctrl+Z"),
    Item("mnuRedo", "&Redo", "Ctrl+Shift+Z"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator2", "", ""},
    Item("mnuFind", "&Find...", "Ctrl+F"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator3", "", ""},
    Menu("mnuCopyLevel", "&Copy level"),
    Item("mnuCopyLevel_1_4", "Level &1 to level 4"),
    Item("mnuCopyLevel_1_5", "Level 1 &to level 5"),
    Item("mnuCopyLevel_4_1", "Level &4 to level 1"),
    Item("mnuCopyLevel_4_5", "&Level 4 to level 5"),
    Item("mnuCopyLevel_5_1", "Level &5 to level 1"),
    Item("mnuCopyLevel_5_4", "Level 5 t&o level 4"),
    kEnd,
    Item("mnuReset", "Re&set value", "Ctrl+R"),
    kEnd,
    Menu("mnuBot", "&Bots"),
    Menu("mnuNew", "&New bot"),
    Item("mnuNewZero", "All &zeros", "Ctrl+N"),
    Item("mnuNewAverage", "&Average", "Ctrl+Shift+N"),
    Item("mnuNewRandom", "&Random"),
    kEnd,
    Item("mnuLoad", "&Load bot", "Ctrl+O"),
    Item("mnuMake", "&Make bot files", "Ctrl+Shift+S"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator4", "", ""},
    Item("mnuSaveAgain", "&Save again", "Ctrl+S"),
    Menu("mnuRecent", "Re&cent bots"),
    kEnd,
    kEnd,
    Menu("mnuFile", "&Files"),
    Item("mnuCharFile", "Load &char file"),
    Item("mnuWeaponFile", "Load &weapon file"),
    Item("mnuitemFile", "Load &item file"),
    Item("mnuChatFile", "Load c&hat file"),
    kEnd,
    Menu("mnTool", "&Tools"),
    Item("mnuCheck", "&Check baseq3"),
    Menu("mnuList", "&Model/skin list"),
    Item("mnuModelAdd", "Add &model"),
    Item("mnuSkinAdd", "Add &skin"),
    Item("mnuModelRemove", "Remove m&odel"),
    Item("mnuSkinRemove", "Remove s&kin"),
    kEnd,
    Menu("mnuChatTools", "C&hat tools"),
    Item("mnuExtraChat", "Add &extra chats"),
    Item("mnuDeleteChats", "&Delete all chats"),
    Item("mnuSyn", "Add &synonym"),
    kEnd,
    MenuItem{ItemKind::kSeparator, "mnuSeparator5", "", ""},
    Item("mnuFindings", "&What the game will do", "F8"),
    Item("mnuTry", "&Try in game...", "F5"),
    Menu("mnuCompare", "Com&pare"),
    Item("mnuCompareAverage", "With &average values"),
    Item("mnuCompareZero", "With all &zeros"),
    Item("mnuCompareOther", "With another &bot..."),
    kEnd,
    kEnd,
};

}  // namespace

void FillMainMenu(QMenuBar& bar,
                  const std::function<void(const QString& name)>& handler) {
  std::vector<QMenu*> open;
  for (const MenuItem& item : kItems) {
    const QString name = QLatin1String(item.name);
    const QString text = QLatin1String(item.text);
    switch (item.kind) {
      case ItemKind::kMenu: {
        QMenu* const menu =
            open.empty() ? bar.addMenu(text) : open.back()->addMenu(text);
        menu->setObjectName(name);
        open.push_back(menu);
        break;
      }
      case ItemKind::kSeparator:
        open.back()->addSeparator()->setObjectName(name);
        break;
      case ItemKind::kItem: {
        QAction* const action = open.back()->addAction(text);
        action->setObjectName(name);
        action->setShortcut(QKeySequence(QLatin1String(item.shortcut)));
        QObject::connect(action, &QAction::triggered, &bar,
                         [handler, name] { handler(name); });
        break;
      }
      case ItemKind::kEndOfMenu:
        open.pop_back();
    }
  }
}

}  // namespace fragsmith
