#include "editor/main_menu.h"

#include <QKeySequence>
#include <QMenu>
#include <algorithm>
#include <array>
#include <vector>

namespace fragsmith {
namespace {

enum class ItemKind { kMenu, kItem, kSeparator, kKindsOfBots, kEndOfMenu };

struct MenuItem {
  ItemKind kind;
  const char* name = "";
  const char* text = "";
  const char* shortcut = "";
  const char* tool_tip = "";
};

constexpr MenuItem Menu(const char* name, const char* text) {
  return {ItemKind::kMenu, name, text, "", ""};
}
constexpr MenuItem Item(const char* name, const char* text,
                        const char* shortcut = "", const char* tool_tip = "") {
  return {ItemKind::kItem, name, text, shortcut, tool_tip};
}
constexpr MenuItem kEnd = {ItemKind::kEndOfMenu, "", "", "", ""};

constexpr std::array kItems = {
    Menu("mFragsmith", "&Program"),
    Item("mnuOptions", "&Options", "Ctrl+,"),
    Item("mnuAbout", "&About Fragsmith"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator1", "", "", ""},
    Item("mnuExit", "E&xit", "Ctrl+Q"),
    kEnd,
    Menu("mnuEdit", "&Edit"),
    Item("mnuUndo", "&Undo", "Ctrl+Z"),
    Item("mnuRedo", "&Redo", "Ctrl+Shift+Z"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator2", "", "", ""},
    Item("mnuFind", "&Find...", "Ctrl+F"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator3", "", "", ""},
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
    Item("mnuNewRandom", "&Random", "",
         "Does nothing; \"Surprise me\" below draws a bot by lot"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator6", "", "", ""},
    MenuItem{ItemKind::kKindsOfBots, "", "", "", ""},
    kEnd,
    Item("mnuLoad", "&Load bot", "Ctrl+O"),
    Item("mnuMake", "&Make bot files", "Ctrl+Shift+S"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator4", "", "", ""},
    Item("mnuSaveAgain", "&Save again", "Ctrl+S"),
    Menu("mnuRecent", "Re&cent bots"),
    kEnd,
    MenuItem{ItemKind::kSeparator, "mnuSeparator7", "", "", ""},
    Item("mnuInstall", "&Install into game", "Ctrl+I"),
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
    MenuItem{ItemKind::kSeparator, "mnuSeparator5", "", "", ""},
    Item("mnuChanges", "&Show changes..."),
    Item("mnuFindings", "&What the game will do", "F8"),
    Item("mnuTry", "&Try in game...", "F5"),
    Item("mnuPlayOut", "P&lay it out...", "F6",
         "Matches in fast time: is it better now?"),
    Item("mnuCheckFiles", "Check a bot's &files..."),
    Menu("mnuCompare", "Com&pare"),
    Item("mnuCompareAverage", "With &average values"),
    Item("mnuCompareZero", "With all &zeros"),
    Item("mnuCompareOther", "With another &bot..."),
    kEnd,
    Item("mnuLibrary", "&Bot library...", "",
         "All bots that are known of: open, duplicate, compare, remove"),
    kEnd,
    Menu("mnuHelp", "&Help"),
    Item("mnuManual", "&Manual", "F1"),
    Item("mnuWelcome", "&Welcome", "", "Games found, bots to begin with"),
    Item("mnuKeyboard", "&Keyboard"),
    Item("mnuNews", "What's &new"),
    Item("mnuReport", "&Report a fault"),
    kEnd,
};

/// Of the captions of kBotKinds, the letters that choose them.
constexpr std::array<int, kBotKinds.size()> kKindLetters = {0, 1, 0, 1, 3};

/// Menu items that do not begin with what stands in the boxes: the end asks
/// about it, undo takes it back, and what needs the whole bot in order checks
/// all boxes and says so.
constexpr std::array kItemsBeforeTyping = {
    "mnuExit", "mnuUndo", "mnuMake", "mnuSaveAgain", "mnuTry", "mnuInstall"};

}  // namespace

QString NewKindItem(BotKind kind) {
  return QStringLiteral("mnuNew_") + QString::fromUtf8(TextOf(kind).key);
}

bool TakesTypingItself(const QString& item) {
  return std::any_of(
      kItemsBeforeTyping.begin(), kItemsBeforeTyping.end(),
      [&item](const char* name) { return item == QLatin1String(name); });
}

void FillMainMenu(QMenuBar& bar,
                  const std::function<void(const QString& name)>& handler) {
  std::vector<QMenu*> open;
  const auto add = [&](const QString& name, const QString& text,
                       const QString& tool_tip) {
    QAction* const action = open.back()->addAction(text);
    action->setObjectName(name);
    // Without one of its own an item would show its text again.
    action->setToolTip(tool_tip);
    QObject::connect(action, &QAction::triggered, &bar,
                     [handler, name] { handler(name); });
    return action;
  };
  for (const MenuItem& item : kItems) {
    const QString name = QLatin1String(item.name);
    const QString text = QLatin1String(item.text);
    switch (item.kind) {
      case ItemKind::kMenu: {
        QMenu* const menu =
            open.empty() ? bar.addMenu(text) : open.back()->addMenu(text);
        menu->setObjectName(name);
        menu->setToolTipsVisible(true);
        open.push_back(menu);
        break;
      }
      case ItemKind::kSeparator:
        open.back()->addSeparator()->setObjectName(name);
        break;
      case ItemKind::kItem:
        add(name, text, QLatin1String(item.tool_tip))
            ->setShortcut(QKeySequence(QLatin1String(item.shortcut)));
        break;
      case ItemKind::kKindsOfBots:
        for (std::size_t at = 0; at < kBotKinds.size(); ++at) {
          const BotKindText& kind = TextOf(kBotKinds.at(at));
          QString caption = QString::fromUtf8(kind.caption);
          caption.insert(kKindLetters.at(at), u'&');
          add(NewKindItem(kBotKinds.at(at)), caption,
              QString::fromUtf8(kind.about));
        }
        break;
      case ItemKind::kEndOfMenu:
        open.pop_back();
    }
  }
}

}  // namespace fragsmith
