#include "editor/main_tool_bar.h"

#include <QAction>
#include <algorithm>
#include <array>

#include "editor/toolkit/line_icon.h"

namespace fragsmith {
namespace {

enum class Look { kWithText, kIconAlone };

/// A button; one without a name is a line between two groups.
struct Tool {
  const char* name = "";
  LineIcon icon = LineIcon::kNew;
  /// By the names that desktops give their icons; empty where they have none.
  const char* theme_icon = "";
  const char* text = "";
  Look look = Look::kWithText;
};

constexpr std::array kTools = {
    Tool{"mnuNew", LineIcon::kNew, "document-new",
         QT_TRANSLATE_NOOP("MainToolBar", "New")},
    Tool{"mnuLoad", LineIcon::kLoad, "document-open",
         QT_TRANSLATE_NOOP("MainToolBar", "Load")},
    Tool{"mnuSaveAgain", LineIcon::kSaveAgain, "document-save",
         QT_TRANSLATE_NOOP("MainToolBar", "Save again")},
    Tool{"mnuMake", LineIcon::kMake, "document-export",
         QT_TRANSLATE_NOOP("MainToolBar", "Make")},
    Tool{},
    Tool{"mnuUndo", LineIcon::kUndo, "edit-undo",
         QT_TRANSLATE_NOOP("MainToolBar", "Undo"), Look::kIconAlone},
    Tool{"mnuRedo", LineIcon::kRedo, "edit-redo",
         QT_TRANSLATE_NOOP("MainToolBar", "Redo"), Look::kIconAlone},
    Tool{},
    Tool{"mnuFind", LineIcon::kFind, "edit-find",
         QT_TRANSLATE_NOOP("MainToolBar", "Find")},
    Tool{"mnuInstall", LineIcon::kInstall, "system-software-install",
         QT_TRANSLATE_NOOP("MainToolBar", "Install")},
    Tool{"mnuTry", LineIcon::kTry, "media-playback-start",
         QT_TRANSLATE_NOOP("MainToolBar", "Try in game")},
    Tool{"mnuPlayOut", LineIcon::kPlayOut, "media-seek-forward",
         QT_TRANSLATE_NOOP("MainToolBar", "Play it out"), Look::kIconAlone},
    Tool{"mnuManual", LineIcon::kHelp, "help-contents",
         QT_TRANSLATE_NOOP("MainToolBar", "Help")},
};

/// Icons of two hands in one bar would look torn.
bool HasWholeTheme() {
  return std::ranges::all_of(kTools, [](const Tool& tool) {
    return *tool.name == '\0' ||
           QIcon::hasThemeIcon(QLatin1String(tool.theme_icon));
  });
}

/// The item of the menu, or what stands for a menu in it.
QAction* ActionOf(QMenuBar& menu, const QString& name) {
  if (auto* const action = menu.findChild<QAction*>(name)) return action;
  return menu.findChild<QMenu*>(name)->menuAction();
}

constexpr int kMinWidthForTexts = 800;

}  // namespace

MainToolBar::MainToolBar(QMenuBar& menu, QWidget* parent)
    : QToolBar(tr("Tools"), parent) {
  setObjectName(QStringLiteral("tbrMain"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  const int side = fontMetrics().height() * 5 / 4;
  setIconSize({side, side});
  const bool has_theme = HasWholeTheme();
  for (const Tool& tool : kTools) {
    if (*tool.name == '\0') {
      addSeparator();
      continue;
    }
    QAction* const action = ActionOf(menu, QLatin1String(tool.name));
    action->setIcon(has_theme ? QIcon::fromTheme(QLatin1String(tool.theme_icon))
                              : MakeLineIcon(tool.icon));
    action->setIconVisibleInMenu(false);
    action->setIconText(tr(tool.text));
    addAction(action);
    auto* const button = qobject_cast<QToolButton*>(widgetForAction(action));
    if (action->menu() != nullptr) {
      button->setPopupMode(QToolButton::InstantPopup);
    }
    if (tool.look == Look::kWithText) with_text_.push_back(button);
  }
  // Not all languages and fonts are content with the usual width.
  ShowTexts(true);
  width_for_texts_ = std::max(kMinWidthForTexts, sizeHint().width());
}

void MainToolBar::ShowTexts(bool is_wanted) {
  for (QToolButton* const button : with_text_) {
    button->setToolButtonStyle(is_wanted ? Qt::ToolButtonTextBesideIcon
                                         : Qt::ToolButtonIconOnly);
  }
}

void MainToolBar::resizeEvent(QResizeEvent* event) {
  QToolBar::resizeEvent(event);
  ShowTexts(width() >= width_for_texts_);
}

}  // namespace fragsmith
