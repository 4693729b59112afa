#include "editor/main_menu.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QMenu>
#include <algorithm>
#include <array>
#include <vector>

#include "support/localization.h"

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
    Menu("mnuEdit", QT_TRANSLATE_NOOP("MainMenu", "&Edit")),
    Item("mnuUndo", QT_TRANSLATE_NOOP("MainMenu", "&Undo"), "Ctrl+Z"),
    Item("mnuRedo", QT_TRANSLATE_NOOP("MainMenu", "&Redo"), "Ctrl+Shift+Z"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator2", "", "", ""},
    Item("mnuFind", QT_TRANSLATE_NOOP("MainMenu", "&Find..."), "Ctrl+F"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator3", "", "", ""},
    Menu("mnuCopyLevel", QT_TRANSLATE_NOOP("MainMenu", "&Copy level")),
    Item("mnuCopyLevel_1_4",
         QT_TRANSLATE_NOOP("MainMenu", "Level &1 to level 4")),
    Item("mnuCopyLevel_1_5",
         QT_TRANSLATE_NOOP("MainMenu", "Level 1 &to level 5")),
    Item("mnuCopyLevel_4_1",
         QT_TRANSLATE_NOOP("MainMenu", "Level &4 to level 1")),
    Item("mnuCopyLevel_4_5",
         QT_TRANSLATE_NOOP("MainMenu", "&Level 4 to level 5")),
    Item("mnuCopyLevel_5_1",
         QT_TRANSLATE_NOOP("MainMenu", "Level &5 to level 1")),
    Item("mnuCopyLevel_5_4",
         QT_TRANSLATE_NOOP("MainMenu", "Level 5 t&o level 4")),
    kEnd,
    Item("mnuReset", QT_TRANSLATE_NOOP("MainMenu", "Re&set value"), "Ctrl+R"),
    kEnd,
    Menu("mnuBot", "&Bots"),
    Menu("mnuNew", "&New bot"),
    Item("mnuNewZero", "All &zeros", "Ctrl+N"),
    Item("mnuNewAverage", "&Average", "Ctrl+Shift+N"),
    Item("mnuNewRandom", "&Random", "",
         QT_TRANSLATE_NOOP(
             "MainMenu",
             "Does nothing; \"Surprise me\" below draws a bot by lot")),
    MenuItem{ItemKind::kSeparator, "mnuSeparator6", "", "", ""},
    MenuItem{ItemKind::kKindsOfBots, "", "", "", ""},
    kEnd,
    Item("mnuLoad", "&Load bot", "Ctrl+O"),
    Item("mnuMake", "&Make bot files", "Ctrl+Shift+S"),
    MenuItem{ItemKind::kSeparator, "mnuSeparator4", "", "", ""},
    Item("mnuSaveAgain", QT_TRANSLATE_NOOP("MainMenu", "&Save again"),
         "Ctrl+S"),
    Menu("mnuRecent", QT_TRANSLATE_NOOP("MainMenu", "Re&cent bots")),
    kEnd,
    MenuItem{ItemKind::kSeparator, "mnuSeparator7", "", "", ""},
    Item("mnuInstall", QT_TRANSLATE_NOOP("MainMenu", "&Install into game"),
         "Ctrl+I"),
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
    Item("mnuChanges", QT_TRANSLATE_NOOP("MainMenu", "&Show changes...")),
    Item("mnuFindings", QT_TRANSLATE_NOOP("MainMenu", "&What the game will do"),
         "F8"),
    Item("mnuTry", QT_TRANSLATE_NOOP("MainMenu", "&Try in game..."), "F5"),
    Item("mnuPlayOut", QT_TRANSLATE_NOOP("MainMenu", "P&lay it out..."), "F6",
         QT_TRANSLATE_NOOP("MainMenu",
                           "Matches in fast time: is it better now?")),
    Item("mnuCheckFiles",
         QT_TRANSLATE_NOOP("MainMenu", "Check a bot's &files...")),
    Menu("mnuCompare", QT_TRANSLATE_NOOP("MainMenu", "Com&pare")),
    Item("mnuCompareAverage",
         QT_TRANSLATE_NOOP("MainMenu", "With &average values")),
    Item("mnuCompareZero", QT_TRANSLATE_NOOP("MainMenu", "With all &zeros")),
    Item("mnuCompareOther",
         QT_TRANSLATE_NOOP("MainMenu", "With another &bot...")),
    kEnd,
    Item("mnuLibrary", QT_TRANSLATE_NOOP("MainMenu", "&Bot library..."), "",
         QT_TRANSLATE_NOOP(
             "MainMenu",
             "All bots that are known of: open, duplicate, compare, remove")),
    kEnd,
    Menu("mnuHelp", QT_TRANSLATE_NOOP("MainMenu", "&Help")),
    Item("mnuManual", QT_TRANSLATE_NOOP("MainMenu", "&Manual"), "F1"),
    Item("mnuWelcome", QT_TRANSLATE_NOOP("MainMenu", "&Welcome"), "",
         QT_TRANSLATE_NOOP("MainMenu", "Games found, bots to begin with")),
    Item("mnuKeyboard", QT_TRANSLATE_NOOP("MainMenu", "&Keyboard")),
    Item("mnuNews", QT_TRANSLATE_NOOP("MainMenu", "What's &new")),
    Item("mnuReport", QT_TRANSLATE_NOOP("MainMenu", "&Report a fault")),
    kEnd,
};

/// Menu items that do not begin with what stands in the boxes: the end asks
/// about it, undo takes it back, and what needs the whole bot in order checks
/// all boxes and says so.
constexpr std::array kItemsBeforeTyping = {
    "mnuExit", "mnuUndo", "mnuMake", "mnuSaveAgain", "mnuTry", "mnuInstall"};

/// In the user's language where the text is one of ours.
QString Translated(const char* text) {
  return *text == '\0' ? QString()
                       : QCoreApplication::translate("MainMenu", text);
}

/// The caption with the key of the first letter that chooses no other item of
/// the menu.
QString WithKey(const QString& caption, const QMenu& menu) {
  QString taken;
  for (const QAction* const action : menu.actions()) {
    const QString text = action->text();
    taken += text.mid(text.indexOf(u'&') + 1, 1);
  }
  for (qsizetype at = 0; at < caption.size(); ++at) {
    const QChar letter = caption.at(at);
    if (letter.isLetter() && !taken.contains(letter, Qt::CaseInsensitive)) {
      return QString(caption).insert(at, u'&');
    }
  }
  return caption;
}

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
    const QString text = Translated(item.text);
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
        add(name, text, Translated(item.tool_tip))
            ->setShortcut(QKeySequence(QLatin1String(item.shortcut)));
        break;
      case ItemKind::kKindsOfBots:
        for (const BotKind kind : kBotKinds) {
          const BotKindText& kind_text = TextOf(kind);
          const auto caption =
              QString::fromStdString(Localized(kind_text.caption));
          add(NewKindItem(kind), WithKey(caption, *open.back()),
              QString::fromStdString(Localized(kind_text.about)));
        }
        break;
      case ItemKind::kEndOfMenu:
        open.pop_back();
    }
  }
}

}  // namespace fragsmith
