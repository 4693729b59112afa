#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <filesystem>
#include <string>
#include <vector>

#include "editor/dialogs/compare_dialog.h"
#include "editor/dialogs/library_dialog.h"
#include "editor/dialogs/open_dialog.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "tests/editor/window_fixture.h"
#include "tests/support/package_maker.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class Library : public WindowFixture {
 protected:
  Library() {
    state_->settings.WorkDir = BytesFromPath(folder_ / "work");
    Save("Zyxwv", "^1Zyx^2wv");
    Save("Amyqp", "Amyqp");
    state_->InitByValues();
  }

  void Save(const std::string& name, const std::string& fun_name) {
    Bot bot = CreateZeroBot();
    bot.Put(kNameField, name);
    bot.Put(kFunNameField, fun_name);
    std::filesystem::create_directories(folder_ / "work");
    EXPECT_EQ(SaveBot(bot, folder_ / "work", {}, {}, prompts_).written.size(),
              5U);
  }

  static std::vector<std::string> Rows(const frmLibrary& dialog,
                                       int column = LibraryModel::kFunName) {
    const auto* const rows =
        dialog.findChild<QTreeView*>("lstLibrary")->model();
    std::vector<std::string> texts;
    for (int row = 0; row < rows->rowCount(); ++row) {
      texts.push_back(rows->index(row, column)
                          .data(Qt::AccessibleTextRole)
                          .toString()
                          .toStdString());
    }
    return texts;
  }

  static void Click(frmLibrary& dialog, const char* name) {
    dialog.findChild<QPushButton*>(QLatin1String(name))->click();
  }
};

TEST_F(Library, FindsSortsAndFiltersBots) {
  ChooseAndAnswer<frmLibrary>("mnuLibrary", [this](frmLibrary& dialog) {
    auto* const list = dialog.findChild<QTreeView*>("lstLibrary");
    const QAbstractItemModelTester tester(list->model());
    EXPECT_THAT(Rows(dialog), ElementsAre("Amyqp", "Zyxwv"));
    list->sortByColumn(LibraryModel::kFunName, Qt::DescendingOrder);
    EXPECT_THAT(Rows(dialog), ElementsAre("Zyxwv", "Amyqp"));
    EXPECT_EQ(list->model()->index(0, LibraryModel::kWhere).data().toString(),
              QString::fromStdString(Utf8FromPath(folder_ / "work")));
    EXPECT_FALSE(dialog.grab().isNull());
    auto* const filter = dialog.findChild<QLineEdit*>("txtLibraryFilter");
    QTest::keyClicks(filter, "ZYXW");
    EXPECT_THAT(Rows(dialog), ElementsAre("Zyxwv"));
    QTest::keyClicks(filter, "!");
    EXPECT_THAT(Rows(dialog), ElementsAre());
    EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdOpenBot")->isEnabled());
    filter->clear();
    // The menu of a row offers what the buttons do.
    list->setFocus();
    if (kIsUnix) {
      QTest::keyClick(list, Qt::Key_F10, Qt::ShiftModifier);
    } else {
      // There the system makes this of the key.
      const QPoint middle = list->viewport()->rect().center();
      QContextMenuEvent event(QContextMenuEvent::Keyboard, middle,
                              list->viewport()->mapToGlobal(middle));
      QApplication::sendEvent(list->viewport(), &event);
    }
    auto* const menu = dialog.findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->isVisible());
    ASSERT_EQ(menu->actions().size(), 4);
    EXPECT_TRUE(menu->actions().front()->isEnabled());
    EXPECT_FALSE(menu->actions().back()->isEnabled());
    menu->close();
    dialog.reject();
  });
}

TEST_F(Library, OpensABotAndDuplicatesOne) {
  ChooseAndAnswer<frmLibrary>("mnuLibrary", [](frmLibrary& dialog) {
    auto* const filter = dialog.findChild<QLineEdit*>("txtLibraryFilter");
    QTest::keyClick(filter, Qt::Key_Down);
    QTest::keyClick(filter, Qt::Key_Return);
  });
  EXPECT_EQ(bot().Name(), "Zyxwv");
  EXPECT_EQ(bot().FunName(), "^1Zyx^2wv");
  EXPECT_FALSE(is_changed());

  ChooseAndAnswer<frmLibrary>("mnuLibrary", [](frmLibrary& dialog) {
    Click(dialog, "cmdDuplicateBot");
  });
  EXPECT_EQ(bot().Name(), "Amyqp2");
  EXPECT_TRUE(is_changed());
  // It has no files: saving again asks where.
  EXPECT_TRUE(window_->current().origin().home->files.empty());
  window_->current().steps().undo();
  EXPECT_EQ(bot().Name(), "Zyxwv");
}

TEST_F(Library, ComparesABotWithTheCurrentOne) {
  const Bot before = bot();
  int compared = 0;
  QTimer closer;
  QObject::connect(&closer, &QTimer::timeout, [&compared] {
    auto* const dialog =
        qobject_cast<frmCompare*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    ++compared;
    dialog->close();
  });
  closer.start(10);
  ChooseAndAnswer<frmLibrary>("mnuLibrary", [](frmLibrary& dialog) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>("txtLibraryFilter"), "zyxw");
    Click(dialog, "cmdCompareBot");
  });
  EXPECT_EQ(compared, 1);
  EXPECT_EQ(bot(), before);
}

TEST_F(Library, TellsWhatTheGameWillDoWithEachBot) {
  const std::string weights = folder_.Read("work/zyxwv_w.c");
  folder_.Write("work/zyxwv_w.c", weights.substr(0, weights.size() / 2));
  std::string told;
  ChooseAndAnswer<frmLibrary>("mnuLibrary", [&](frmLibrary& dialog) {
    const auto findings = [&dialog] {
      return Rows(dialog, LibraryModel::kFindings);
    };
    EXPECT_THAT(findings(),
                ElementsAre("Not looked at yet", "Not looked at yet"));
    EXPECT_TRUE(QTest::qWaitFor([&findings] {
      return !testing::Value(findings(),
                             testing::Contains("Not looked at yet"));
    }));
    EXPECT_THAT(findings(),
                ElementsAre(Not(HasSubstr("error")), HasSubstr("error")));
    auto* const list = dialog.findChild<QTreeView*>("lstLibrary");
    // The gravest first.
    list->sortByColumn(LibraryModel::kFindings, Qt::AscendingOrder);
    EXPECT_THAT(Rows(dialog), ElementsAre("Zyxwv", "Amyqp"));
    const QModelIndex first = list->model()->index(0, LibraryModel::kFindings);
    EXPECT_FALSE(first.data(Qt::DecorationRole).value<QPixmap>().isNull());
    told = findings().front();
    EXPECT_THAT(told, HasSubstr(first.data().toString().toStdString()));
    list->setCurrentIndex(first);
    Click(dialog, "cmdOpenBot");
  });
  ASSERT_EQ(bot().Name(), "Zyxwv");
  const auto* const counter = Find<QToolButton>("cmdFindings");
  EXPECT_TRUE(QTest::qWaitFor([&] {
    return counter->accessibleName().endsWith(QString::fromStdString(told));
  })) << told
      << " and " << counter->accessibleName().toStdString();
}

TEST_F(Library, ChecksBotsBetweenEventsAndOnlyWhileItIsThere) {
  constexpr int kBots = 300;
  FaceStore faces(*state_);
  int checked = 0;
  std::vector<std::size_t> places;
  frmLibrary dialog(std::vector<LibraryBot>(kBots),
                    {.check =
                         [&](std::size_t place) {
                           ++checked;
                           places.push_back(place);
                           return FindingCounts();
                         },
                     .remove = {}},
                    faces);
  dialog.show();
  auto* const list = dialog.findChild<QTreeView*>("lstLibrary");
  EXPECT_TRUE(QTest::qWaitFor([&] { return checked >= 3; }));
  EXPECT_LT(checked, kBots / 2);
  // What comes into sight comes next.
  list->scrollToBottom();
  places.clear();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !places.empty(); }));
  EXPECT_GT(places.front(), kBots / 2U);
  dialog.close();
  const int until_then = checked;
  QTest::qWait(50);
  EXPECT_EQ(checked, until_then);
  EXPECT_LT(checked, kBots);
}

/// A game with two packages of ours, of which one has more in it.
class LibraryOfGame : public Library {
 protected:
  LibraryOfGame() {
    const std::filesystem::path packages = folder_ / "game/baseq3";
    folder_.WriteProgram("game/quake3.exe", "");
    folder_.Write("game/baseq3/pak0.pk3", MakeZip({{"a", "b"}}));
    folder_.Write("game/baseq3/mine.pk3",
                  MakeZipOfNames({"botfiles/bots/Thirdq_c.c"}));
    for (const char* const name : {"Packed", "Other"}) {
      Bot bot = CreateZeroBot();
      bot.Put(kNameField, name);
      std::filesystem::create_directories(folder_ / "made");
      EXPECT_FALSE(
          SaveBot(bot, folder_ / "made", {.makes_package = true}, {}, prompts_)
              .error);
    }
    for (const char* const name : {"bot-Packed.pk3", "bot-Other.pk3"}) {
      std::filesystem::rename(folder_ / "made" / name, packages / name);
    }
    folder_.Write("game/baseq3/bot-Other.pk3",
                  MakeZipOfNames({"botfiles/bots/Other_c.c", "readme.txt"}));
    folder_.WriteProgram("tools/wzunzip",
                         "#!/bin/sh\nname=${3##*[\\\\/]}\ncp '" +
                             (folder_ / "made").string() +
                             "'/$(echo \"$name\" | tr P p) \"$4/$name\"\n");
    state_->settings.Q3Baseq3 = BytesFromPath(folder_ / "game");
    state_->settings.WinZipDir = BytesFromPath(folder_ / "tools");
    state_->InitByValues();
    Choose("mnuCheck");
    prompts_.log.clear();
  }

  /// The name of the row, whatever else the library has.
  static void Select(frmLibrary& dialog, const char* name) {
    auto* const filter = dialog.findChild<QLineEdit*>("txtLibraryFilter");
    filter->clear();
    QTest::keyClicks(filter, QLatin1String(name));
  }

  static bool CanRemove(frmLibrary& dialog) {
    return dialog.findChild<QPushButton*>("cmdRemoveBot")->isEnabled();
  }

  std::vector<std::string> Packages() {
    std::vector<std::string> names;
    for (const auto& file : ListFiles(folder_ / "game/baseq3", "")) {
      names.push_back(file.string());
    }
    return names;
  }

  std::string Status() {
    return window_->statusBar()->currentMessage().toStdString();
  }
};

TEST_F(LibraryOfGame, RemovesThePackageOfABotAndNothingElse) {
  const std::vector<std::string> before = Packages();
  ChooseAndAnswer<frmLibrary>("mnuLibrary", [&](frmLibrary& dialog) {
    // Of others, and of no package at all.
    for (const char* const name : {"Thirdq", "Amyqp"}) {
      Select(dialog, name);
      ASSERT_EQ(Rows(dialog).size(), 1U) << name;
      EXPECT_FALSE(CanRemove(dialog)) << name;
    }
    Select(dialog, "bot-Other");
    EXPECT_TRUE(CanRemove(dialog));
    Click(dialog, "cmdRemoveBot");
    EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("has other files")));
    Select(dialog, "bot-Packed");
    // Nobody says yes.
    Click(dialog, "cmdRemoveBot");
    EXPECT_THAT(prompts_.log.back(),
                AllOf(HasSubstr("want to remove"), HasSubstr("bot-Packed.pk3"),
                      Not(HasSubstr("stays open"))));
    EXPECT_EQ(Packages(), before);
    EXPECT_EQ(Rows(dialog).size(), 1U);
    prompts_.confirmations = {true};
    Click(dialog, "cmdRemoveBot");
    EXPECT_THAT(Rows(dialog), IsEmpty());
    Select(dialog, "");
    EXPECT_EQ(Rows(dialog).size(), 4U);
    dialog.reject();
  });
  EXPECT_THAT(Packages(), ElementsAre("bot-Other.pk3", "mine.pk3", "pak0.pk3"));
  EXPECT_THAT(Status(), HasSubstr("bot-Packed.pk3 was removed from"));
  EXPECT_FALSE(state_->lists.bots.Find("Packed"));
  EXPECT_TRUE(state_->lists.bots.Find("Thirdq"));
}

TEST_F(LibraryOfGame, KeepsTheBotThatIsOpenWhenItsPackageIsRemoved) {
  if (!kIsUnix) GTEST_SKIP() << "The unzip tool is a shell script.";
  window_->OpenPath(folder_ / "game/baseq3/bot-Packed.pk3");
  ASSERT_EQ(bot().Name(), "Packed");
  ASSERT_FALSE(is_changed());
  // It may be out of sight in the steps of undo, too.
  window_->OpenPath(folder_ / "work/amyqp_c.c");
  const Bot other = bot();
  const auto remove = [this] {
    prompts_.confirmations = {true};
    ChooseAndAnswer<frmLibrary>("mnuLibrary", [](frmLibrary& dialog) {
      Select(dialog, "bot-Packed");
      Click(dialog, "cmdRemoveBot");
      dialog.reject();
    });
    EXPECT_FALSE(IsFile(folder_ / "game/baseq3/bot-Packed.pk3"));
  };
  const auto is_unsaved = [this] {
    EXPECT_EQ(bot().Name(), "Packed");
    EXPECT_TRUE(is_changed());
    EXPECT_TRUE(window_->current().origin().home->files.empty());
  };
  const std::string package = folder_.Read("game/baseq3/bot-Packed.pk3");
  remove();
  EXPECT_EQ(bot(), other);
  EXPECT_FALSE(is_changed());
  EXPECT_THAT(prompts_.log.back(), Not(HasSubstr("stays open")));
  Choose("mnuUndo");
  is_unsaved();

  folder_.Write("game/baseq3/bot-Packed.pk3", package);
  Choose("mnuCheck");
  prompts_.confirmations = {true};
  window_->OpenPath(folder_ / "game/baseq3/bot-Packed.pk3");
  ASSERT_FALSE(is_changed());
  prompts_.log.clear();
  remove();
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("stays open")));
  is_unsaved();
  EXPECT_THAT(Status(), HasSubstr("was removed"));
  // Closing asks, and saving again asks where.
  window_->close();
  EXPECT_THAT(prompts_.log.back(), HasSubstr("without saving"));
  EXPECT_TRUE(window_->isVisible());
  ChooseAndAnswer<frmOpen>("mnuSaveAgain",
                           [](frmOpen& dialog) { dialog.reject(); });
}

}  // namespace
}  // namespace fragsmith
