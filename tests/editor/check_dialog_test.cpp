#include "editor/dialogs/check_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <filesystem>
#include <string>

#include "session/presets.h"
#include "session/save_bot.h"
#include "tests/editor/window_fixture.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

class CheckDialog : public WindowFixture {
 protected:
  /// Two bots in the game's layout and one in a package; of the first the chat
  /// is broken.
  CheckDialog() {
    for (const char* const name : {"Broken", "Good"}) {
      Bot made = CreateAverageBot(state_->random);
      made.Put(kNameField, name);
      EXPECT_FALSE(
          SaveBot(made, folder_.path(), {.uses_layout = true}, {}, prompts_)
              .error);
    }
    Bot packed = CreateAverageBot(state_->random);
    packed.Put(kNameField, "Packed");
    fs::create_directories(folder_ / "packed");
    EXPECT_FALSE(SaveBot(packed, folder_ / "packed", {.makes_package = true},
                         {}, prompts_)
                     .error);
    folder_.Write("botfiles/bots/broken_t.c",
                  "chat \"Broken\"\n{\n\ttype \"game_enter\"\n\t{\n"
                  "\t\t\"hello;\n\t}\n}\n");
    prompts_.log.clear();
  }

  template <typename Function>
  void InDialog(Function function) {
    ChooseAndAnswer<frmCheck>("mnuCheckFiles", [&](frmCheck& dialog) {
      dialog_ = &dialog;
      function();
      dialog.reject();
    });
  }

  void GoTo(const fs::path& path) {
    auto* const box = dialog_->findChild<QLineEdit*>("txtFolder");
    box->setText(QString::fromStdString(path.string()));
    QTest::keyClick(box, Qt::Key_Return);
  }

  /// Marks a file; empty for none of that name.
  void Mark(const char* name) {
    auto* const files = dialog_->findChild<QListWidget*>("filFile");
    const auto found = files->findItems(QLatin1String(name), Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << name;
    files->setCurrentItem(found.front());
  }

  std::string Verdict() {
    auto* const line = dialog_->findChild<QLabel*>("lblHint");
    EXPECT_TRUE(QTest::qWaitFor(
        [line] { return !line->text().startsWith("Checking"); }));
    return line->text().toStdString();
  }

  std::string Text() {
    const auto* const model =
        dialog_->findChild<FindingsView*>("lstFound")->model();
    QString text;
    for (int row = 0; row < model->rowCount(); ++row) {
      text += model->index(row, 0).data().toString() + u'\n';
    }
    return text.toStdString();
  }

  frmCheck* dialog_ = nullptr;
};

TEST_F(CheckDialog, LooksIntoThePackagesOfAFolderWithoutFiles) {
  fs::create_directory(folder_ / "packages");
  fs::rename(folder_ / "packed/bot-Packed.pk3",
             folder_ / "packages/bot-Packed.pk3");
  InDialog([this] {
    GoTo(folder_ / "packages");
    EXPECT_THAT(Verdict(), HasSubstr("The game takes this bot"));
    EXPECT_EQ(dialog_->findChild<QComboBox*>("cmbBot")->currentText(),
              QStringLiteral("Packed (bot-Packed.pk3)"));
    EXPECT_THAT(Text(), HasSubstr("/addbot Packed 3"));
  });
}

TEST_F(CheckDialog, LooksAtAnyFileFolderOrPackageAndLoadsNothing) {
  const Bot before = bot();
  InDialog([this] {
    // The first of a folder, and the others to choose from.
    GoTo(folder_ / "botfiles/bots");
    EXPECT_THAT(Verdict(), HasSubstr("There are errors"));
    EXPECT_THAT(Text(), Not(HasSubstr("In the files")));
    EXPECT_THAT(Text(), HasSubstr("broken_t.c, line 5: "));
    auto* const names = dialog_->findChild<QComboBox*>("cmbBot");
    ASSERT_EQ(names->count(), 2);
    names->setCurrentIndex(1);
    emit names->activated(1);
    EXPECT_THAT(Verdict(), HasSubstr("The game takes this bot"));
    EXPECT_THAT(Text(), HasSubstr("type /addbot Good 3"));

    // Any file of a bot leads to it.
    for (const char* const file :
         {"broken_c.c", "broken_i.c", "broken_w.c", "broken_t.c"}) {
      Mark(file);
      EXPECT_THAT(Verdict(), HasSubstr("There are errors")) << file;
      EXPECT_EQ(names->count(), 1);
    }
    GoTo(folder_ / "scripts");
    EXPECT_THAT(Verdict(), HasSubstr("There is no bot in "));
    Mark("good.bot");
    EXPECT_THAT(Verdict(), HasSubstr("The game takes this bot"));
    EXPECT_THAT(Text(), HasSubstr("scripts/good.bot, botfiles/bots/good_c.c"));

    GoTo(folder_ / "packed");
    Mark("bot-Packed.pk3");
    EXPECT_THAT(Verdict(), HasSubstr("The game takes this bot"));
    EXPECT_THAT(Text(), HasSubstr("type /addbot Packed 3"));
    folder_.Write("packed/none.pk3", "no package");
    GoTo(folder_ / "packed");
    Mark("none.pk3");
    EXPECT_THAT(Verdict(), HasSubstr("none.pk3"));
    EXPECT_EQ(Text(), "");
  });
  EXPECT_EQ(bot(), before);
  EXPECT_FALSE(is_changed());
  EXPECT_TRUE(prompts_.log.empty());
  // It begins where it ended.
  InDialog([this] { EXPECT_EQ(dialog_->Folder(), folder_ / "packed"); });
}

}  // namespace
}  // namespace fragsmith
