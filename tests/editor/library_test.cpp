#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <string>
#include <vector>

#include "editor/dialogs/compare_dialog.h"
#include "editor/dialogs/library_dialog.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "tests/editor/window_fixture.h"

namespace fragsmith {
namespace {

using testing::ElementsAre;

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

  static std::vector<std::string> Rows(const frmLibrary& dialog) {
    const auto* const rows =
        dialog.findChild<QTreeView*>("lstLibrary")->model();
    std::vector<std::string> texts;
    for (int row = 0; row < rows->rowCount(); ++row) {
      texts.push_back(rows->index(row, LibraryModel::kFunName)
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

}  // namespace
}  // namespace fragsmith
