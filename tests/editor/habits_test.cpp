#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QUrl>
#include <fstream>

#include "chat/chat_catalogue.h"
#include "editor/dialogs/find_dialog.h"
#include "editor/dialogs/open_dialog.h"
#include "session/bot_document.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "tests/editor/window_fixture.h"

namespace fragsmith {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// What makes daily work with the window bearable.
class Habits : public WindowFixture {
 protected:
  void Press(const char* control, const char* slider, Qt::Key key,
             int times = 1) {
    auto* const found =
        Find<QWidget>(control)->findChild<QWidget*>(QLatin1String(slider));
    ASSERT_NE(found, nullptr);
    found->setFocus();
    for (int time = 0; time < times; ++time) QTest::keyClick(found, key);
  }

  QString TextOf(const char* action) {
    return Find<QAction>(action)->text().remove(u'&');
  }
};

TEST_F(Habits, TakesBackEveryKindOfEditByItsName) {
  const std::string zeros = WriteBotDocument(bot());
  Press("tsBotPara_2", "sliValue_1", Qt::Key_Right, 3);
  EXPECT_EQ(TextOf("mnuUndo"), "Undo Attack skill, level 1");
  window_->current().EndStep();
  Press("tsBotPara_2", "sliValue_4", Qt::Key_Right);
  Press("osBotPara_44", "sliValue", Qt::Key_End);
  Find<QCheckBox>("chkArenalord")->click();
  Type("txtBotPara_0", "Other");
  Choose("mnuExtraChat");
  auto* const line = Find<QLineEdit>("txtChatLine");
  QTest::keyClicks(line, QStringLiteral("abc"));
  Choose("mnuCopyLevel_4_5");
  Choose("mnuNewAverage");
  EXPECT_THAT(prompts_.log, SizeIs(1));
  prompts_.confirmations = {true};
  Choose("mnuNewAverage");
  EXPECT_FALSE(is_changed());
  const std::string average = WriteBotDocument(bot());

  QStringList names;
  while (window_->current().steps().canUndo()) {
    names << TextOf("mnuUndo");
    Choose("mnuUndo");
  }
  // The linked levels went with the one that was moved, and three letters are
  // one edit. A level that is copied onto its like is none.
  EXPECT_EQ(
      names.join(u'/'),
      "Undo New bot, average/Undo Chat line/Undo Add extra chats/Undo Name/"
      "Undo Arenalord/Undo Gauntlet, usage/Undo Attack skill, level 4/"
      "Undo Attack skill, level 1");
  EXPECT_EQ(WriteBotDocument(bot()), zeros);
  EXPECT_EQ(Find<QLineEdit>("txtBotPara_0")->text(), "Bot");
  // What was saved, in this case made, last is the bot of average values.
  EXPECT_TRUE(is_changed());
  while (window_->current().steps().canRedo()) Choose("mnuRedo");
  EXPECT_EQ(WriteBotDocument(bot()), average);
  EXPECT_FALSE(is_changed());
}

TEST_F(Habits, IsUnchangedWhenUndoneBackToTheSavedBot) {
  EXPECT_FALSE(Find<QAction>("mnuUndo")->isEnabled());
  Press("osBotPara_54", "sliValue", Qt::Key_Right);
  EXPECT_TRUE(is_changed());
  Choose("mnuUndo");
  EXPECT_FALSE(is_changed());
  EXPECT_EQ(Find<QWidget>("osBotPara_54")
                ->findChild<QSlider*>(QStringLiteral("sliValue"))
                ->value(),
            0);

  // Text that is being typed goes first, and not into the bot.
  auto* const name = Find<QLineEdit>("txtBotPara_0");
  name->setFocus();
  QTest::keyClicks(name, QStringLiteral("xyz"));
  EXPECT_TRUE(is_changed());
  Choose("mnuUndo");
  EXPECT_EQ(name->text(), "Bot");
  EXPECT_FALSE(is_changed());
  EXPECT_TRUE(Find<QAction>("mnuRedo")->isEnabled());
}

TEST_F(Habits, LeavesTheUndoKeyToTheWindowInTheLineBox) {
  auto* const line = Find<QLineEdit>("txtChatLine");
  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(7);
  line->setFocus();
  QTest::keyClicks(line, QStringLiteral("abc"));
  EXPECT_EQ(bot().ChatLine(0, 0), "abc");
  QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(line->text(), "");
  EXPECT_EQ(bot().ChatLine(0, 0), "");
  QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(line->text(), "abc");
}

TEST_F(Habits, CopiesALevelAndPutsAValueBack) {
  Bot average = CreateAverageBot(SeededRandom(1));
  (void)average.SetParameter(102, 0.25);
  (void)average.SetParameter(130, std::string("fast"));
  window_->current().Replace(average, false, QStringLiteral("Load"));
  Choose("mnuCopyLevel_1_5");
  EXPECT_EQ(bot().Parameter(502), Value(0.25));
  EXPECT_EQ(bot().Parameter(530), Value(std::string("fast")));
  EXPECT_EQ(bot().Parameter(402), average.Parameter(402));
  Press("tsBotPara_2", "sliValue_5", Qt::Key_End);
  EXPECT_EQ(bot().Parameter(502), Value(1.0));
  Choose("mnuReset");
  EXPECT_EQ(bot().Parameter(502), average.Parameter(502));
}

TEST_F(Habits, SavesAgainToWhereTheBotIsAndNoticesOthersThere) {
  Type("txtBotPara_0", "Rookie");
  OnDialog<frmOpen>([](frmOpen& dialog) {
    dialog.findChild<QCheckBox*>(QStringLiteral("chkSaveStructure"))->click();
    dialog.accept();
  });
  Choose("mnuSaveAgain");
  const auto file = folder_ / "botfiles/bots/rookie_w.c";
  ASSERT_TRUE(IsFile(file));
  Press("osBotPara_44", "sliValue", Qt::Key_End);
  Choose("mnuSaveAgain");
  EXPECT_FALSE(is_changed());
  EXPECT_THAT(*ReadFile(file), HasSubstr("400"));
  EXPECT_THAT(prompts_.log, IsEmpty());

  std::ofstream(file, std::ios::app) << "// by hand\n";
  Press("osBotPara_44", "sliValue", Qt::Key_Home);
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log.back(), HasSubstr("rookie_w.c was changed by"));
  EXPECT_TRUE(is_changed());
  EXPECT_THAT(*ReadFile(file), HasSubstr("by hand"));
  prompts_.confirmations = {true};
  Choose("mnuSaveAgain");
  EXPECT_FALSE(is_changed());
  EXPECT_THAT(*ReadFile(file), testing::Not(HasSubstr("by hand")));

  // A bot that was loaded from a folder goes back there.
  window_->OpenPath(folder_ / "botfiles/bots/rookie_c.c");
  std::filesystem::remove(file);
  Choose("mnuSaveAgain");
  EXPECT_TRUE(IsFile(file));
}

TEST_F(Habits, OpensWhatIsDroppedAndRemembersIt) {
  for (const char* const name : {"Alpha", "Beta"}) {
    Bot made = CreateZeroBot();
    (void)made.SetParameter(0, std::string(name));
    std::filesystem::create_directory(folder_ / name);
    (void)SaveBot(made, folder_ / name, {.uses_layout = true}, {}, prompts_);
  }
  const auto drop = [this](const std::filesystem::path& path) {
    QMimeData data;
    data.setUrls(
        {QUrl::fromLocalFile(QString::fromStdString(BytesFromPath(path)))});
    QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(window_.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent dropped({}, Qt::CopyAction, &data, Qt::LeftButton,
                       Qt::NoModifier);
    QCoreApplication::sendEvent(window_.get(), &dropped);
    QCoreApplication::processEvents();
  };
  drop(folder_ / "Alpha");
  EXPECT_EQ(bot().Name(), "Alpha");
  drop(folder_ / "Beta/botfiles/bots/beta_c.c");
  EXPECT_EQ(bot().Name(), "Beta");
  drop(folder_ / "nothing");
  EXPECT_EQ(bot().Name(), "Beta");

  const auto recent = [this] {
    auto* const menu = Find<QMenu>("mnuRecent");
    emit menu->aboutToShow();
    QStringList names;
    for (const QAction* const action : menu->actions()) {
      names << action->text().section(u' ', 0, 0);
    }
    return names.join(u' ');
  };
  EXPECT_EQ(recent(), "beta alpha");
  EXPECT_TRUE(window_->close());
  std::filesystem::remove_all(folder_ / "Beta");
  Open();
  EXPECT_EQ(recent(), "alpha");
  Find<QMenu>("mnuRecent")->actions().front()->trigger();
  EXPECT_EQ(bot().Name(), "Alpha");
}

TEST_F(Habits, FindsAParameterOrALineAndGoesThere) {
  window_->current().EditChats({}, [](Bot& bot) {
    bot.SetChatLine(27, 1, "Where is my rocket launcher?");
  });
  const auto find = [this](const char* words) {
    OnDialog<frmFind>([words](frmFind& dialog) {
      auto* const box = dialog.findChild<QLineEdit*>(QStringLiteral("txtFind"));
      QTest::keyClicks(box, QLatin1String(words));
      QTest::keyClick(box, Qt::Key_Return);
      const auto* const hint =
          dialog.findChild<QLabel*>(QStringLiteral("lblHint"));
      EXPECT_EQ(hint->text().isEmpty(), !dialog.isVisible());
      if (dialog.isVisible()) dialog.reject();
    });
    Choose("mnuFind");
  };
  auto* const strip = Find<QTabWidget>("tbsBotPara");
  find("where rocket");
  EXPECT_EQ(strip->currentIndex(), 7);
  EXPECT_EQ(Find<QListWidget>("lstChatGroups")->currentRow(), 27);
  EXPECT_EQ(Find<QLineEdit>("txtChatLine")->text(),
            "Where is my rocket launcher?");
  find("firethrottle level 4");
  EXPECT_EQ(strip->currentIndex(), 0);
  ASSERT_NE(window_->focusWidget(), nullptr);
  EXPECT_EQ(window_->focusWidget()->accessibleName(), "Firing speed, level 4");
  find("no such thing at all");
  EXPECT_EQ(window_->focusWidget()->accessibleName(), "Firing speed, level 4");
}

}  // namespace
}  // namespace fragsmith
