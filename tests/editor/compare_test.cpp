#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include "editor/commands/bot_commands.h"
#include "editor/dialogs/compare_dialog.h"
#include "editor/dialogs/open_dialog.h"
#include "session/bot_document.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "tests/editor/window_fixture.h"
#include "tests/support/ids.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The rows from the top, those of closed groups too.
QModelIndexList AllRows(const QTreeView& list, const QModelIndex& parent = {}) {
  QModelIndexList rows;
  for (int row = 0; row < list.model()->rowCount(parent); ++row) {
    rows << list.model()->index(row, 0, parent);
    rows << AllRows(list, rows.back());
  }
  return rows;
}

QString TextOf(const QModelIndex& row, int column) {
  return row.siblingAtColumn(column).data().toString();
}

/// The list as it is read: a title for a group, else "What: this | other".
std::vector<std::string> RowsOf(const QTreeView& list) {
  std::vector<std::string> rows;
  for (const QModelIndex& index : AllRows(list)) {
    QString row = TextOf(index, 0);
    if (!list.model()->hasChildren(index))
      row += ": " + TextOf(index, 1) + " | " + TextOf(index, 2);
    rows.push_back(row.toStdString());
  }
  return rows;
}

class Compare : public testing::Test {
 protected:
  Compare() {
    Bot mine = CreateZeroBot();
    mine.SetChatLine(TypeAt(0), ChatLineIndex(0), "Hello");
    mine.SetChatLine(TypeAt(0), ChatLineIndex(1), "Only mine");
    other_ = mine;
    current_.Replace(mine, false, {});
    current_.ForgetSteps();
    Set(kNameField, std::string("Other"));
    Set(402, 0.5);
    Set(502, 1.0);
    Set(508, 0.25);
    Set(44, 300.0);
    Set(45, 7.0);
    other_.RemoveChatLine(TypeAt(0), ChatLineIndex(1));
    other_.SetChatLine(TypeAt(27), ChatLineIndex(0), "First");
    other_.SetChatLine(TypeAt(27), ChatLineIndex(1), "Second");
  }

  void Set(const IdNumber& parameter, const Value& value) {
    ASSERT_TRUE(other_.SetParameter(Id(parameter), value));
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

  QTreeView& list() { return Find<QTreeView>("lstDifferences"); }

  QModelIndex Row(const char* title) {
    QModelIndexList found;
    for (const QModelIndex& row : AllRows(list())) {
      if (TextOf(row, 0) == QLatin1String(title)) found << row;
    }
    EXPECT_EQ(found.size(), 1) << title;
    return found.value(0);
  }

  void Select(const char* title) { list().setCurrentIndex(Row(title)); }

  QString Current(int column = 0) {
    return TextOf(list().currentIndex(), column);
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
  EXPECT_EQ(list().model()->headerData(2, Qt::Horizontal), "Other");
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
  EXPECT_EQ(Current(1), "(none)");
  EXPECT_FALSE(Find<QPushButton>("cmdCopySelected").isEnabled());
}

TEST_F(Compare, CopiesAndTakesBackEachPart) {
  Open();
  Select("Attack skill, level 4");
  EXPECT_EQ(Copied("cmdCopySelected",
                   [](Bot& bot) { fragsmith::Set(bot, Id(402), 0.5); }),
            "Copy from Other: Attack skill, level 4");
  EXPECT_FALSE(Find<QPushButton>("cmdCopyLevel_1").isEnabled());
  EXPECT_EQ(Copied("cmdCopyLevel_5",
                   [](Bot& bot) {
                     fragsmith::Set(bot, Id(502), 1.0);
                     fragsmith::Set(bot, Id(508), 0.25);
                   }),
            "Copy from Other: level 5");
  const auto copy_usage = [](Bot& bot) {
    fragsmith::Set(bot, Id(44), 300.0);
    fragsmith::Set(bot, Id(45), 7.0);
  };
  Select("Shotgun usage");
  EXPECT_EQ(Copied("cmdCopyPage", copy_usage), "Copy from Other: Weapon usage");
  Select("Weapon usage");
  EXPECT_EQ(Copied("cmdCopySelected", copy_usage), "Copy from Other: 2 values");
  const auto copy_misc = [](Bot& bot) {
    bot.SetChatLine(TypeAt(27), ChatLineIndex(0), "First");
    bot.SetChatLine(TypeAt(27), ChatLineIndex(1), "Second");
  };
  Select("Random misc");
  EXPECT_EQ(Copied("cmdCopyPage", copy_misc), "Copy from Other: Random misc");
  EXPECT_EQ(Copied("cmdCopyChats",
                   [copy_misc](Bot& bot) {
                     bot.RemoveChatLine(TypeAt(0), ChatLineIndex(1));
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
  list().collapse(Row("Behavioural characteristics"));
  Press("cmdCopySelected");
  EXPECT_EQ(Current(), "Attack skill, level 5");
  EXPECT_TRUE(list().hasFocus());
  Press("cmdCopySelected");
  // It is closed: its rows are out of sight.
  EXPECT_EQ(Current(), "Behavioural characteristics");

  // A whole group that is gone leads nowhere: what is next was not chosen.
  Select("Shotgun usage");
  Press("cmdCopyPage");
  EXPECT_FALSE(Find<QPushButton>("cmdCopyPage").isEnabled());
}

TEST_F(Compare, BreaksLongLines) {
  QString words;
  for (int word = 0; word < 50; ++word) words += "word ";
  other_.SetChatLine(TypeAt(27), ChatLineIndex(1), words.toStdString());
  Open();
  QCoreApplication::processEvents();
  const QModelIndex type = Row("Random misc");
  const auto height = [this, &type](int row) {
    return list().visualRect(list().model()->index(row, 2, type)).height();
  };
  const QFontMetrics metrics = list().fontMetrics();
  const QRect column(0, 0, list().columnWidth(2) - 6, 1000);
  const int lines =
      (metrics.boundingRect(column, Qt::TextWordWrap, words).height() +
       metrics.leading()) /
      metrics.lineSpacing();
  EXPECT_GT(lines, 3);
  // The rows leave out what the font puts between lines.
  const int needed = lines * metrics.height();
  EXPECT_GE(height(1), needed);
  EXPECT_LT(height(0), needed / 2);
}

TEST_F(Compare, ShowsFewOfVeryManyLinesAndCopiesAll) {
  for (int line = 0; line < 30000; ++line) {
    other_.SetChatLine(TypeAt(3), ChatLineIndex(line),
                       "line " + std::to_string(line));
  }
  Open();
  EXPECT_LT(RowsOf(list()).size(), 300U);
  Select("and 29800 more");
  EXPECT_FALSE(Find<QPushButton>("cmdCopySelected").isEnabled());
  Press("cmdCopyPage");
  EXPECT_EQ(current_.bot().ChatLines(TypeAt(3)), other_.ChatLines(TypeAt(3)));
}

TEST_F(WindowFixture, LoadsABotToCompareAndKeepsTheCurrentOne) {
  Bot made = CreateZeroBot();
  Set(made, Id(0), std::string("Alpha"));
  ASSERT_EQ(SaveBot(made, folder_.path(), {}, {}, prompts_).written.size(), 5U);
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
