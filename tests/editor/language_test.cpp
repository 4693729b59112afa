#include "editor/toolkit/language.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>
#include <QMenu>
#include <QString>
#include <map>
#include <string>

#include "support/localization.h"
#include "tests/editor/window_fixture.h"

namespace fragsmith {
namespace {

/// A text of a class of ours, of a library below the window and of the toolkit.
std::string Said() {
  return (QCoreApplication::translate("fragsmith::WelcomePage", "Welcome") +
          u'|' + QCoreApplication::translate("QPlatformTheme", "Cancel"))
             .toStdString() +
         '|' + Localized("Check its permissions.");
}

TEST(Language, IsTheFirstOfTheSystem) {
  const std::string english = "Welcome|Cancel|Check its permissions.";
  EXPECT_EQ(Said(), english);
  {
    const Language german({"de-AT", "de", "en"});
    EXPECT_EQ(Said(), "Willkommen|Abbrechen|Prüfen Sie ihre Zugriffsrechte.");
  }
  EXPECT_EQ(Said(), english);
  for (const QStringList& others :
       {QStringList{"en-US", "de"}, QStringList{"fr", "de"}, QStringList{}}) {
    const Language other(others);
    EXPECT_EQ(Said(), english);
  }
}

struct SpeaksGerman {
  Language language = Language({QStringLiteral("de")});
};

class GermanWindow : private SpeaksGerman, public WindowFixture {};

TEST_F(GermanWindow, HasEachKeyOnceInAMenu) {
  EXPECT_EQ(Find<QAction>("mnuUndo")->text().left(4).toStdString(), "&Rüc");
  int keys = 0;
  for (const QMenu* const menu : window_->findChildren<QMenu*>()) {
    std::map<QString, std::string> taken;
    for (const QAction* const item : menu->actions()) {
      if (item->isSeparator() || !item->isVisible()) continue;
      const QString key =
          QKeySequence::mnemonic(item->text()).toString().toLower();
      if (key.isEmpty()) continue;
      ++keys;
      const std::string text = item->text().toStdString();
      const auto [other, is_new] = taken.emplace(key, text);
      EXPECT_TRUE(is_new) << text << " and " << other->second;
    }
  }
  EXPECT_GT(keys, 30);
}

}  // namespace
}  // namespace fragsmith
