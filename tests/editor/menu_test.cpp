#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QDialog>
#include <QDockWidget>
#include <QGuiApplication>
#include <QListWidget>
#include <QMenuBar>
#include <QResizeEvent>
#include <QSlider>
#include <QTextBrowser>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "editor/main_menu.h"
#include "editor/main_tool_bar.h"
#include "model/characteristic_catalogue.h"
#include "session/bot_document.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "tests/editor/window_fixture.h"

namespace fragsmith {
namespace {

enum class Opens { kNothing, kBox, kBoxWhenUnsaved, kBoxWithoutPlace };

struct Item {
  std::string_view name;
  bool changes_bot;
  Opens opens;
};

/// All others leave the bot alone, and open a box when they end with "...".
constexpr auto kItems = std::to_array<Item>({
    {"mnuOptions", false, Opens::kBox},
    {"mnuAbout", false, Opens::kBox},
    {"mnuExit", false, Opens::kBoxWhenUnsaved},
    {"mnuUndo", true, Opens::kNothing},
    {"mnuRedo", true, Opens::kNothing},
    {"mnuCopyLevel_1_4", true, Opens::kNothing},
    {"mnuCopyLevel_1_5", true, Opens::kNothing},
    {"mnuCopyLevel_4_1", true, Opens::kNothing},
    {"mnuCopyLevel_4_5", true, Opens::kNothing},
    {"mnuCopyLevel_5_1", true, Opens::kNothing},
    {"mnuCopyLevel_5_4", true, Opens::kNothing},
    {"mnuReset", true, Opens::kNothing},
    {"mnuNewZero", true, Opens::kBoxWhenUnsaved},
    {"mnuNewAverage", true, Opens::kBoxWhenUnsaved},
    {"mnuNew_sniper", true, Opens::kBoxWhenUnsaved},
    {"mnuNew_rusher", true, Opens::kBoxWhenUnsaved},
    {"mnuNew_camper", true, Opens::kBoxWhenUnsaved},
    {"mnuNew_all-rounder", true, Opens::kBoxWhenUnsaved},
    {"mnuNew_surprise", true, Opens::kBoxWhenUnsaved},
    {"mnuLoad", false, Opens::kBox},
    {"mnuMake", false, Opens::kBox},
    {"mnuInstall", false, Opens::kBox},
    {"mnuSaveAgain", false, Opens::kBoxWithoutPlace},
    {"mnuCharFile", false, Opens::kBox},
    {"mnuWeaponFile", false, Opens::kBox},
    {"mnuitemFile", false, Opens::kBox},
    {"mnuChatFile", false, Opens::kBox},
    {"mnuCheck", false, Opens::kBox},
    {"mnuModelAdd", false, Opens::kBox},
    {"mnuSkinAdd", false, Opens::kBox},
    {"mnuModelRemove", false, Opens::kBox},
    {"mnuSkinRemove", false, Opens::kBox},
    {"mnuExtraChat", true, Opens::kNothing},
    {"mnuDeleteChats", true, Opens::kNothing},
    {"mnuSyn", false, Opens::kBox},
    {"mnuPlayOut", false, Opens::kNothing},
    {"mnuCompareAverage", false, Opens::kBox},
    {"mnuCompareZero", false, Opens::kBox},
});

/// Chooses every item that the live window has, says Yes to each question,
/// and closes each dialog.
class Menu : public WindowFixture {
 protected:
  QStringList Items() {
    QStringList names;
    for (const QAction* const action :
         window_->menuBar()->findChildren<QAction*>()) {
      if (action->objectName().startsWith(QLatin1String("mnu")) &&
          !action->isSeparator() && action->menu() == nullptr) {
        names << action->objectName();
      }
    }
    EXPECT_GT(names.size(), 30);
    for (const Item& item : kItems) {
      EXPECT_TRUE(names.contains(QLatin1String(item.name))) << item.name;
    }
    return names;
  }

  Item Expected(const QString& name) {
    const auto* const found = std::find_if(
        kItems.begin(), kItems.end(),
        [&name](const Item& item) { return QLatin1String(item.name) == name; });
    if (found != kItems.end()) return *found;
    const bool asks =
        Find<QAction>(qPrintable(name))->text().endsWith(QLatin1String("..."));
    return {{}, false, asks ? Opens::kBox : Opens::kNothing};
  }

  /// How many boxes there were.
  std::size_t ChooseAndClose(const QString& name) {
    std::size_t dialogs = 0;
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, [&dialogs] {
      auto* const dialog =
          qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      ++dialogs;
      dialog->reject();
    });
    closing.start(0);
    prompts_.log.clear();
    prompts_.confirmations = {true, true};
    Choose(qPrintable(name));
    QCoreApplication::processEvents();
    return dialogs + prompts_.log.size();
  }

  /// Chooses an item and tells whether the window is as it was before.
  bool TryItem(const QString& name, bool has_work) {
    SCOPED_TRACE(name.toStdString());
    const Item item = Expected(name);
    const std::string before = WriteBotDocument(bot());
    const bool was_changed = is_changed();
    EXPECT_EQ(was_changed, has_work);
    const std::size_t boxes = ChooseAndClose(name);
    const bool has_changed = WriteBotDocument(bot()) != before;
    // An empty bot may be like the one that an item makes of it.
    if (has_work || !item.changes_bot) {
      EXPECT_EQ(has_changed, item.changes_bot);
    }
    if (!item.changes_bot) {
      EXPECT_LE(is_changed(), was_changed);
    }
    const bool opens = item.opens == Opens::kBox ||
                       item.opens == (has_work ? Opens::kBoxWhenUnsaved
                                               : Opens::kBoxWithoutPlace);
    EXPECT_EQ(boxes > 0, opens);
    EXPECT_EQ(window_->isVisible(), name != QLatin1String("mnuExit"));
    return !has_changed && is_changed() == was_changed && window_->isVisible();
  }

  QSlider* Slider(const char* control) {
    auto* const slider = Find<QWidget>(control)->findChild<QSlider*>(
        QStringLiteral("sliValue_1"));
    slider->setFocus();
    return slider;
  }
};

TEST_F(Menu, DoesWhatItSaysWithUnsavedWork) {
  Bot made = CreateAverageBot(SeededRandom(1));
  for (const Level level : kLevels) {
    made.Put({level, 8}, NumberOf(level) / 10.0);
  }
  made.SetChatLine(ChatTypeId{0}, ChatLineIndex(0), "Hello!");
  const SavedBot saved = SaveBot(made, folder_.path(), {}, {}, prompts_);
  ASSERT_FALSE(saved.error);
  bool is_ready = false;
  for (const QString& name : Items()) {
    if (!is_ready) {
      Open();
      window_->OpenPath(saved.written.front());
      // Something to undo and to put back, and something to redo.
      QTest::keyClick(Slider("tsBotPara_2"), Qt::Key_Right);
      QTest::keyClick(Slider("tsBotPara_3"), Qt::Key_Right);
      Choose("mnuUndo");
      Slider("tsBotPara_2");
    }
    is_ready = TryItem(name, true);
  }
}

TEST_F(Menu, DoesWhatItSaysWithAnEmptyBot) {
  bool is_ready = true;
  for (const QString& name : Items()) {
    if (!is_ready) Open();
    is_ready = TryItem(name, false);
  }
}

// What shows beside the window, and asks nothing.
TEST_F(Menu, OpensWhatStaysBesideTheWindow) {
  auto* const findings = Find<QDockWidget>("dockFindings");
  const bool was_open = findings->isVisible();
  Choose("mnuFindings");
  EXPECT_NE(findings->isVisible(), was_open);
  Choose("mnuFindings");
  EXPECT_EQ(findings->isVisible(), was_open);

  const auto chapter = [this](const char* item) {
    Choose(item);
    auto* const manual = Find<QDialog>("frmManual");
    EXPECT_TRUE(manual->isVisible()) << item;
    EXPECT_FALSE(manual->findChild<QTextBrowser*>()->toHtml().contains(
        QLatin1String("<img")));
    const auto* const current =
        manual->findChild<QListWidget*>()->currentItem();
    std::string text =
        current == nullptr ? std::string() : current->text().toStdString();
    manual->close();
    return text;
  };
  EXPECT_EQ(chapter("mnuKeyboard"), "Keyboard");
  EXPECT_EQ(chapter("mnuNews"), "What is new");
  QGuiApplication::clipboard()->clear();
  EXPECT_EQ(chapter("mnuReport"), "Report a fault");
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(
      QLatin1String("Fragsmith ")));
  EXPECT_NE(chapter("mnuManual"), "");
}

TEST(MainToolBarTest, ShowsTextsOnlyWhereAllOfThemFit) {
  QMenuBar menu;
  FillMainMenu(menu, [](const QString& /*name*/) {});
  QWidget window;
  QFont font = window.font();
  font.setPointSizeF(font.pointSizeF() * 2);
  window.setFont(font);
  MainToolBar bar(menu, &window);
  const int needed = bar.sizeHint().width();
  const auto style_at = [&bar](int width) {
    bar.resize(width, bar.sizeHint().height());
    QResizeEvent event(bar.size(), {});
    QCoreApplication::sendEvent(&bar, &event);
    return qobject_cast<QToolButton*>(
               bar.widgetForAction(bar.actions().front()))
        ->toolButtonStyle();
  };
  EXPECT_EQ(style_at(needed), Qt::ToolButtonTextBesideIcon);
  EXPECT_EQ(style_at(needed - 1), Qt::ToolButtonIconOnly);
}

}  // namespace
}  // namespace fragsmith
