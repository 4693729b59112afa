#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include "editor/bot_commands.h"
#include "editor/dialogs/compare_dialog.h"
#include "editor/dialogs/open_dialog.h"
#include "session/bot_document.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "tests/editor/window_fixture.h"

namespace fragsmith {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The list as it is read: a title for a group, else "What: this | other".
std::vector<std::string> RowsOf(const QTreeWidget& list) {
  std::vector<std::string> rows;
  for (QTreeWidgetItemIterator at(const_cast<QTreeWidget*>(&list));
       *at != nullptr; ++at) {
    const QTreeWidgetItem& item = **at;
    QString row = item.text(0);
    if (item.childCount() == 0)
      row += ": " + item.text(1) + " | " + item.text(2);
    rows.push_back(row.toStdString());
  }
  return rows;
}

class Compare : public testing::Test {
 protected:
  Compare() {
    Bot mine = CreateZeroBot();
    mine.SetChatLine(0, 0, "Hello");
    mine.SetChatLine(0, 1, "Only mine");
    other_ = mine;
    current_.Replace(mine, false, {});
    current_.ForgetSteps();
    Set(kNameIndex, std::string("Other"));
    Set(402, 0.5);
    Set(502, 1.0);
    Set(508, 0.25);
    Set(44, 300.0);
    Set(45, 7.0);
    other_.RemoveChatLine(0, 1);
    other_.SetChatLine(27, 0, "First");
    other_.SetChatLine(27, 1, "Second");
  }

  void Set(int parameter, const Value& value) {
    ASSERT_TRUE(other_.SetParameter(parameter, value));
  }

  void Open() {
    dialog_ = std::make_unique<frmCompare>(current_, other_, "Other");
    dialog_->show();
    QApplication::setActiveWindow(dialog_.get());
  }

  template <typename Widget>
  Widget& Find(const char* name) {
    auto* const found = dialog_->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::out_of_range(name);
    return *found;
  }

  QTreeWidget& list() { return Find<QTreeWidget>("lstDifferences"); }

  void Select(const char* title) {
    const auto found =
        list().findItems(title, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(found.size(), 1) << title;
    list().setCurrentItem(found.front());
  }

  void Press(const char* button) {
    QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
  }

  /// Copies, and says how the edit is called; it must be exactly this change.
  QString Copied(const char* button, const std::function<void(Bot&)>& change) {
    const std::string before = WriteBotDocument(current_.bot());
    const std::vector<std::string> rows = RowsOf(list());
    Bot expected = current_.bot();
    change(expected);
    Press(button);
    EXPECT_EQ(WriteBotDocument(current_.bot()), WriteBotDocument(expected));
    EXPECT_NE(RowsOf(list()), rows);
    QString name = current_.steps().undoText();
    Press("cmdUndo");
    EXPECT_EQ(WriteBotDocument(current_.bot()), before);
    EXPECT_EQ(RowsOf(list()), rows);
    return name;
  }

  CurrentBot current_;
  Bot other_;
  std::unique_ptr<frmCompare> dialog_;
};

TEST_F(Compare, ShowsTheDifferencesByGroup) {
  Open();
  EXPECT_EQ(list().headerItem()->text(2), "Other");
  EXPECT_THAT(
      RowsOf(list()),
      ElementsAre(
          "Identity", "Name: Bot | Other", "General characteristics",
          "Attack skill, level 4: 0 | 0.5", "Attack skill, level 5: 0 | 1",
          "Behavioural characteristics", "Croucher, level 5: 0 | 0.25",
          "Weapon usage", "Gauntlet usage: 0 | 300", "Shotgun usage: 0 | 7",
          "Chat texts", "Game entry", "Line 2: Only mine | (none)",
          "Random misc", "Line 1: (none) | First", "Line 2: (none) | Second"));
  EXPECT_EQ(Find<QLabel>("lblCount").text(), "9 differences");

  Find<QCheckBox>("chkOnlyDifferences").click();
  // Ten fields, 29 parameters at three levels and 50 others; the groups and
  // the chat lines.
  EXPECT_EQ(RowsOf(list()).size(), 10U + 87U + 50U + 8U + 6U);
  Select("Comment");
  EXPECT_EQ(list().currentItem()->text(1), "(none)");
  EXPECT_FALSE(Find<QPushButton>("cmdCopySelected").isEnabled());
}

TEST_F(Compare, CopiesAndTakesBackEachPart) {
  Open();
  Select("Attack skill, level 4");
  EXPECT_EQ(Copied("cmdCopySelected",
                   [](Bot& bot) { (void)bot.SetParameter(402, 0.5); }),
            "Copy from Other: Attack skill, level 4");
  EXPECT_FALSE(Find<QPushButton>("cmdCopyLevel_1").isEnabled());
  EXPECT_EQ(Copied("cmdCopyLevel_5",
                   [](Bot& bot) {
                     (void)bot.SetParameter(502, 1.0);
                     (void)bot.SetParameter(508, 0.25);
                   }),
            "Copy from Other: level 5");
  const auto copy_usage = [](Bot& bot) {
    (void)bot.SetParameter(44, 300.0);
    (void)bot.SetParameter(45, 7.0);
  };
  Select("Shotgun usage");
  EXPECT_EQ(Copied("cmdCopyPage", copy_usage), "Copy from Other: Weapon usage");
  Select("Weapon usage");
  EXPECT_EQ(Copied("cmdCopySelected", copy_usage), "Copy from Other: 2 values");
  const auto copy_misc = [](Bot& bot) {
    bot.SetChatLine(27, 0, "First");
    bot.SetChatLine(27, 1, "Second");
  };
  Select("Random misc");
  EXPECT_EQ(Copied("cmdCopyPage", copy_misc), "Copy from Other: Random misc");
  EXPECT_EQ(Copied("cmdCopyChats",
                   [copy_misc](Bot& bot) {
                     bot.RemoveChatLine(0, 1);
                     copy_misc(bot);
                   }),
            "Copy from Other: all chats");
  // Taking back ends where the dialog began.
  EXPECT_FALSE(Find<QPushButton>("cmdUndo").isEnabled());

  list().selectAll();
  Press("cmdCopySelected");
  EXPECT_EQ(WriteBotDocument(current_.bot()), WriteBotDocument(other_));
  EXPECT_THAT(RowsOf(list()), IsEmpty());
  EXPECT_EQ(Find<QLabel>("lblCount").text(), "No differences");
  EXPECT_FALSE(Find<QPushButton>("cmdCopyPage").isEnabled());
}

TEST_F(Compare, GoesOnWithTheNextRow) {
  Open();
  Select("Attack skill, level 4");
  list()
      .findItems("Behavioural characteristics", Qt::MatchExactly)
      .front()
      ->setExpanded(false);
  Press("cmdCopySelected");
  EXPECT_EQ(list().currentItem()->text(0), "Attack skill, level 5");
  EXPECT_TRUE(list().hasFocus());
  Press("cmdCopySelected");
  // It is closed: its rows are out of sight.
  EXPECT_EQ(list().currentItem()->text(0), "Behavioural characteristics");

  // A whole group that is gone leads nowhere: what is next was not chosen.
  Select("Shotgun usage");
  Press("cmdCopyPage");
  EXPECT_FALSE(Find<QPushButton>("cmdCopyPage").isEnabled());
}

TEST_F(Compare, BreaksLongLines) {
  QString words;
  for (int word = 0; word < 50; ++word) words += "word ";
  other_.SetChatLine(27, 1, words.toStdString());
  Open();
  QCoreApplication::processEvents();
  const QTreeWidgetItem* const type =
      list()
          .findItems("Random misc", Qt::MatchExactly | Qt::MatchRecursive)
          .front();
  const int needed =
      list()
          .fontMetrics()
          .boundingRect(QRect(0, 0, list().columnWidth(2) - 6, 1000),
                        Qt::TextWordWrap, words)
          .height();
  EXPECT_GT(needed, 3 * list().fontMetrics().lineSpacing());
  EXPECT_GE(list().visualItemRect(type->child(1)).height(), needed);
  EXPECT_LT(list().visualItemRect(type->child(0)).height(), needed / 2);
}

TEST_F(Compare, ShowsFewOfVeryManyLinesAndCopiesAll) {
  for (int line = 0; line < 30000; ++line) {
    other_.SetChatLine(3, line, "line " + std::to_string(line));
  }
  Open();
  EXPECT_LT(RowsOf(list()).size(), 300U);
  Select("and 29800 more");
  EXPECT_FALSE(Find<QPushButton>("cmdCopySelected").isEnabled());
  Press("cmdCopyPage");
  EXPECT_EQ(current_.bot().ChatLines(3), other_.ChatLines(3));
}

TEST_F(WindowFixture, LoadsABotToCompareAndKeepsTheCurrentOne) {
  Bot made = CreateZeroBot();
  (void)made.SetParameter(0, std::string("Alpha"));
  (void)SaveBot(made, folder_.path(), {}, {}, prompts_);
  Type("txtBotPara_0", "Rookie");
  BotCommands commands(window_->current(), *state_, *window_);
  const auto answer = [this, &commands](bool accepts) {
    OnDialog<frmOpen>([accepts](frmOpen& dialog) {
      auto* const files =
          dialog.findChild<QListWidget*>(QStringLiteral("filFile"));
      files->setCurrentRow(0);
      accepts ? dialog.accept() : dialog.reject();
    });
    return commands.LoadToCompare();
  };
  EXPECT_FALSE(answer(false));
  const auto loaded = answer(true);
  ASSERT_TRUE(loaded);
  EXPECT_EQ(loaded->first.Name(), "Alpha");
  EXPECT_EQ(loaded->second, "Alpha");
  EXPECT_EQ(bot().Name(), "Rookie");
  EXPECT_TRUE(is_changed());
  EXPECT_THAT(prompts_.log, IsEmpty());
}

}  // namespace
}  // namespace fragsmith
