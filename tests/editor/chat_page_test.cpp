#include "editor/pages/chat_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <set>
#include <string>
#include <vector>

#include "chat/chat_catalogue.h"
#include "editor/toolkit/code_page_validator.h"
#include "tests/support/ids.h"
#include "tests/support/scripted_prompts.h"

namespace fragsmith {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr ChatTypeId kGameEntry{0};
constexpr ChatTypeId kLevelEnds{3};
constexpr ChatTypeId kHitTalking{6};
constexpr ChatTypeId kCratered{10};
constexpr ChatTypeId kPummel{21};

/// The page in a window of its own that has the focus.
class ChatPageTest : public testing::Test {
 protected:
  ChatPageTest()
      : page_(
            current_, synonyms_, [] { return 0.0; }, prompts_) {
    QObject::connect(&page_, &ChatPage::StatusText, &page_,
                     [this](const QString& text) { status_.push_back(text); });
    page_.resize(1000, 430);
    page_.show();
    page_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&page_));
  }

  void Show(const std::vector<std::vector<std::string>>& lines_of_types) {
    Bot bot;
    for (std::size_t type = 0; type < lines_of_types.size(); ++type) {
      for (std::size_t line = 0; line < lines_of_types[type].size(); ++line) {
        bot.SetChatLine(TypeAt(static_cast<int>(type)), ChatLineIndex(line),
                        lines_of_types[type][line]);
      }
    }
    current_.Replace(bot, false, QStringLiteral("Load"));
    page_.ShowBot();
  }

  QListWidget* List(const char* name) {
    return page_.findChild<QListWidget*>(QLatin1String(name));
  }
  QLineEdit* Box() { return page_.findChild<QLineEdit*>("txtChatLine"); }
  QPushButton* Button(const char* name) {
    return page_.findChild<QPushButton*>(QLatin1String(name));
  }
  void Click(const char* name) {
    QTest::mouseClick(Button(name), Qt::LeftButton);
  }
  void SelectType(ChatTypeId type) {
    List("lstChatGroups")->setCurrentRow(static_cast<int>(type));
  }
  void SelectLine(int line) { List("lstChatLines")->setCurrentRow(line); }
  int Line() { return List("lstChatLines")->currentRow(); }
  std::string BoxText() { return Box()->text().toStdString(); }

  /// Types letters that are on no English keyboard, too.
  void Type(const QString& text) {
    Box()->setFocus();
    for (const QChar letter : text) {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier,
                      letter);
      QCoreApplication::sendEvent(Box(), &press);
    }
  }

  /// The lines in the list, which must be those of the bot.
  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    for (int row = 0; row < List("lstChatLines")->count(); ++row) {
      lines.push_back(List("lstChatLines")->item(row)->text().toStdString());
    }
    EXPECT_EQ(lines, Stored(TypeAt(List("lstChatGroups")->currentRow())));
    return lines;
  }
  const std::vector<std::string>& Stored(ChatTypeId type) {
    return current_.bot().ChatLines(type);
  }

  std::vector<std::string> VisiblePointers() {
    std::vector<std::string> captions;
    for (int pointer = 0; pointer < 11; ++pointer) {
      const auto* const button = page_.findChild<QPushButton*>(
          QStringLiteral("cmdPointer_%1").arg(pointer));
      if (button->isVisible()) captions.push_back(button->text().toStdString());
    }
    return captions;
  }

  CurrentBot current_;
  SynonymList synonyms_;
  ScriptedPrompts prompts_;
  ChatPage page_;
  std::vector<QString> status_;
};

TEST_F(ChatPageTest, ShowsTheFirstLineOfABotAndOfAType) {
  Show({{"Hi", "Ho"}, {"Bye"}});
  EXPECT_THAT(Lines(), ElementsAre("Hi", "Ho"));
  EXPECT_EQ(BoxText(), "Hi");
  EXPECT_THAT(VisiblePointers(),
              ElementsAre("Any opp", "Level title", "Any bot"));
  SelectLine(1);
  EXPECT_EQ(BoxText(), "Ho");
  SelectType(TypeAt(1));
  EXPECT_EQ(BoxText(), "Bye");
  SelectType(kPummel);
  EXPECT_THAT(VisiblePointers(), ElementsAre("Target", "Weapon used"));
  SelectType(TypeAt(26));
  EXPECT_THAT(VisiblePointers(), ElementsAre("Last victim", "Any opp"));
  EXPECT_FALSE(current_.is_changed());

  // Another bot: the type stays, its first line is selected.
  SelectType(TypeAt(0));
  SelectLine(1);
  Show({{"New", "er"}});
  EXPECT_EQ(Line(), 0);
  EXPECT_EQ(BoxText(), "New");
  EXPECT_FALSE(current_.is_changed());
}

TEST_F(ChatPageTest, StoresEachKeyInTheSelectedLine) {
  Show({{"Hi", "Ho"}});
  SelectLine(1);
  Type(QStringLiteral("!\u00e9"));
  EXPECT_THAT(Stored(kGameEntry), ElementsAre("Hi", "Ho!\xe9"));
  EXPECT_EQ(List("lstChatLines")->item(1)->text(), Box()->text());
  EXPECT_TRUE(current_.is_changed());
}

TEST_F(ChatPageTest, RefusesWhatTheGameTextCannotHold) {
  Show({{"Hi"}});
  Box()->setFocus();
  QTest::keyClick(Box(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(Box(), Qt::Key_End);
  Type(QStringLiteral("\u0416"));
  EXPECT_EQ(status_, std::vector<QString>{QLatin1String(kRefusedCharacter)});
  QApplication::clipboard()->setText(QStringLiteral("a\u2713b"));
  QTest::keyClick(Box(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(status_.size(), 2U);
  EXPECT_EQ(BoxText(), "Hi");
  EXPECT_FALSE(current_.is_changed());
  QApplication::clipboard()->setText(QStringLiteral("\u20ac"));
  QTest::keyClick(Box(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_THAT(Stored(kGameEntry), ElementsAre("Hi\x80"));
  // Lines out of a text file become one.
  QApplication::clipboard()->setText(QStringLiteral(" you\r\nthere\n"));
  QTest::keyClick(Box(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_THAT(Stored(kGameEntry), ElementsAre("Hi\x80 you there"));
  EXPECT_EQ(Box()->cursorPosition(), Box()->text().size());
}

TEST_F(ChatPageTest, KeepsOddBytesAndStillRefusesCharacters) {
  Show({{"a\x81\x01z", "\x01"}});
  Type("!");
  EXPECT_THAT(Stored(kGameEntry), ElementsAre("a\x81\x01z!", "\x01"));
  EXPECT_TRUE(status_.empty());
  Type(QStringLiteral("\u0416"));
  EXPECT_THAT(Stored(kGameEntry), ElementsAre("a\x81\x01z!", "\x01"));
  EXPECT_EQ(status_.size(), 1U);
  EXPECT_EQ(Box()->text(), QStringLiteral("a\u0081\u0001z!"));
}

TEST_F(ChatPageTest, KeepsALineThatTheBoxCannotShowWhole) {
  synonyms_.words = {"word"};
  const std::string line = "word " + std::string(70'000, 'x');
  Show({{line, "word"}});
  page_.findChild<QCheckBox*>("chkAutoSynonyms")->setChecked(true);
  Type("!");
  QTest::keyClick(Box(), Qt::Key_Return);
  Click("cmdPointer_0");
  Click("cmdAddWord");
  EXPECT_EQ(Stored(kGameEntry).front(), line);
  EXPECT_FALSE(current_.is_changed());
  SelectLine(1);
  Type("!");
  EXPECT_EQ(Stored(kGameEntry).back(), "word!");
}

TEST_F(ChatPageTest, InsertsVariablesAtTheCursor) {
  Show({{"Hello you"}});
  Box()->setCursorPosition(6);
  Click("cmdPointer_2");
  EXPECT_THAT(Lines(), ElementsAre("Hello {ANYBOTNAME}you"));
  EXPECT_EQ(Box()->cursorPosition(), 6);
  EXPECT_TRUE(Box()->hasFocus());
  EXPECT_TRUE(current_.is_changed());

  List("lstWords")->setCurrentRow(25);
  Click("cmdAddWord");
  EXPECT_THAT(Lines(), ElementsAre("Hello PROFESSION{ANYBOTNAME}you"));

  // At the very start the variable takes the place of the text.
  Box()->setCursorPosition(0);
  Click("cmdPointer_0");
  EXPECT_THAT(Lines(), ElementsAre("{RANDOMOPP}"));
  EXPECT_EQ(Box()->cursorPosition(), 0);
  QTest::keyClick(Box(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_THAT(Lines(), ElementsAre("Hello PROFESSION{ANYBOTNAME}you"));
}

TEST_F(ChatPageTest, AddsTheSelectedListLine) {
  Show({{""}});
  List("lstPreDef")->setCurrentRow(25);
  List("lstPreDefNumber")->setCurrentRow(3);
  Click("cmdAddList");
  EXPECT_THAT(Lines(), ElementsAre("{{TAUNT3}}"));
  EXPECT_EQ(BoxText(), "{{TAUNT3}}");
  EXPECT_TRUE(current_.is_changed());
  List("lstPreDef")->setFocus();
  QTest::keyClick(List("lstPreDef"), Qt::Key_Return);
  EXPECT_THAT(Lines(), ElementsAre("{{TAUNT3}}", "{{TAUNT3}}"));
  EXPECT_EQ(Line(), 0);

  Click("cmdRemoveLine");
  Click("cmdRemoveLine");
  Click("cmdAddList");
  EXPECT_THAT(Lines(), ElementsAre("{{TAUNT3}}"));
  EXPECT_EQ(Line(), 0);
  EXPECT_TRUE(Box()->isEnabled());
}

TEST_F(ChatPageTest, OffersTheNumbersOfAGroup) {
  const auto numbers = [this](int group) {
    List("lstPreDef")->setCurrentRow(group);
    QStringList texts;
    for (int row = 0; row < List("lstPreDefNumber")->count(); ++row) {
      texts << List("lstPreDefNumber")->item(row)->text();
    }
    EXPECT_EQ(List("lstPreDefNumber")->currentRow(), 0);
    return texts.join(u' ').toStdString();
  };
  EXPECT_EQ(numbers(kGuytalkGroup), "0 2");
  EXPECT_EQ(numbers(6), "0");
  EXPECT_EQ(numbers(3), "0 1 2 3 4");
}

TEST_F(ChatPageTest, AddsAndRemovesLines) {
  Show({{"a", "b", "c"}});
  SelectLine(1);
  Click("cmdRemoveLine");
  EXPECT_THAT(Lines(), ElementsAre("a", "c"));
  EXPECT_EQ(BoxText(), "c");
  EXPECT_TRUE(current_.is_changed());
  Click("cmdRemoveLine");
  EXPECT_EQ(BoxText(), "a");
  Click("cmdRemoveLine");
  EXPECT_THAT(Lines(), ElementsAre());
  EXPECT_EQ(BoxText(), "");
  EXPECT_FALSE(Box()->isEnabled());
  EXPECT_FALSE(Button("cmdAddWord")->isEnabled());
  EXPECT_FALSE(Button("cmdRemoveLine")->isEnabled());

  current_.SetChanged(false);
  Click("cmdNewLine");
  EXPECT_TRUE(current_.is_changed());
  EXPECT_TRUE(Box()->hasFocus());
  Type("new");
  EXPECT_THAT(Lines(), ElementsAre("new"));
}

TEST_F(ChatPageTest, MovesAndDoublesLines) {
  const auto press = [this](const char* name) {
    page_.findChild<QToolButton*>(QLatin1String(name))->click();
  };
  Show({{"a", "b", "c"}});
  press("cmdLineUp");  // There is nothing above.
  EXPECT_FALSE(current_.is_changed());
  press("cmdLineDown");
  EXPECT_THAT(Lines(), ElementsAre("b", "a", "c"));
  EXPECT_EQ(Line(), 1);
  press("cmdDoubleLine");
  EXPECT_THAT(Lines(), ElementsAre("b", "a", "a", "c"));
  EXPECT_EQ(Line(), 2);
  List("lstChatLines")->setFocus();
  QTest::keyClick(List("lstChatLines"), Qt::Key_Up, Qt::AltModifier);
  QTest::keyClick(List("lstChatLines"), Qt::Key_Up, Qt::AltModifier);
  EXPECT_THAT(Lines(), ElementsAre("a", "b", "a", "c"));
  EXPECT_EQ(Line(), 0);
  QTest::keyClick(List("lstChatLines"), Qt::Key_D, Qt::ControlModifier);
  EXPECT_THAT(Lines(), ElementsAre("a", "a", "b", "a", "c"));
  current_.steps().undo();
  current_.steps().undo();
  page_.ShowAgain();
  EXPECT_THAT(Lines(), ElementsAre("b", "a", "a", "c"));
}

TEST_F(ChatPageTest, TellsOfLinesAndOfWhatIsNotFilled) {
  const auto told = [this](ChatTypeId type) {
    return List("lstChatGroups")
        ->item(static_cast<int>(type))
        ->data(Qt::AccessibleDescriptionRole)
        .toString()
        .toStdString();
  };
  Bot bot;
  bot.Put(ParameterId(35), 0.4);  // Entry and exit.
  bot.Put(ParameterId(42), 0.5);  // Random chats.
  bot.Put(ParameterId(33), 1.0);  // All of them "Random misc".
  bot.SetChatLine(kGameEntry, ChatLineIndex(0), "Hi");
  current_.Replace(bot, false, QStringLiteral("Load"));
  page_.ShowBot();
  EXPECT_THAT(told(kGameEntry), HasSubstr("Lines: 1. Spoken: 40 %."));
  EXPECT_THAT(told(TypeAt(1)), HasSubstr("Lines: 0. Spoken: never."));
  EXPECT_THAT(told(TypeAt(27)), HasSubstr("Spoken: every 80 s."));
  EXPECT_THAT(told(TypeAt(26)), HasSubstr("Spoken: never."));
  Click("cmdNewLine");
  // An empty one is no line yet.
  EXPECT_THAT(told(kGameEntry), HasSubstr("Lines: 1."));
  Type(QStringLiteral("x"));
  EXPECT_THAT(told(kGameEntry), HasSubstr("Lines: 2."));

  // It is put in all the same, and told of.
  Click("cmdPointer_2");
  EXPECT_TRUE(status_.empty());
  SelectType(kPummel);
  Click("cmdNewLine");
  Click("cmdPointer_7");
  EXPECT_EQ(BoxText(), "{WEAPONUSED}");
  ASSERT_EQ(status_.size(), 1U);
  EXPECT_THAT(status_.back().toStdString(), HasSubstr("does not fill"));
}

TEST_F(ChatPageTest, DragsALineToAnotherPlaceAsOneStep) {
  Show({{"a", "b", "c", "d"}});
  SelectLine(1);
  // What the list does where a line is dropped.
  QListWidget* const lines = List("lstChatLines");
  EXPECT_EQ(lines->dragDropMode(), QAbstractItemView::InternalMove);
  EXPECT_FALSE(lines->item(0)->flags() & Qt::ItemIsDropEnabled);
  lines->model()->moveRow({}, 1, {}, 4);
  EXPECT_THAT(Lines(), ElementsAre("a", "c", "d", "b"));
  EXPECT_EQ(Line(), 3);
  EXPECT_EQ(BoxText(), "b");
  Type("!");
  lines->model()->moveRow({}, 3, {}, 0);
  EXPECT_THAT(Lines(), ElementsAre("b!", "a", "c", "d"));
  current_.steps().undo();
  current_.steps().undo();
  EXPECT_THAT(Stored(kGameEntry), ElementsAre("a", "c", "d", "b"));
  current_.steps().undo();
  EXPECT_THAT(Stored(kGameEntry), ElementsAre("a", "b", "c", "d"));
}

TEST_F(ChatPageTest, CompletesAVariableThatIsTyped) {
  Show({{"Hi "}});
  SelectType(kPummel);
  Click("cmdNewLine");
  const auto popup = [] {
    return qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
  };
  const auto press = [&popup](Qt::Key key) {
    ASSERT_NE(popup(), nullptr);
    QTest::keyClick(popup(), key);
  };
  const auto row_of = [&popup](const char* variable) {
    return popup()->model()->match(popup()->model()->index(0, 0),
                                   Qt::DisplayRole, QLatin1String(variable), 1,
                                   Qt::MatchExactly);
  };
  Type("Ha, {");
  ASSERT_NE(popup(), nullptr);
  EXPECT_EQ(popup()->currentIndex().data(), QStringLiteral("{TARGET}"));
  // What the situation does not fill is told of and cannot be taken.
  for (const char* const useless : {"{WEAPONUSED}", "{LEVELTITLE}"}) {
    const QModelIndexList rows = row_of(useless);
    ASSERT_EQ(rows.size(), 1) << useless;
    EXPECT_FALSE(rows.front().flags() & Qt::ItemIsEnabled);
    EXPECT_FALSE(
        rows.front().data(Qt::AccessibleDescriptionRole).toString().isEmpty());
  }
  press(Qt::Key_L);
  press(Qt::Key_E);
  press(Qt::Key_Return);
  EXPECT_EQ(popup(), nullptr);
  EXPECT_EQ(BoxText(), "Ha, {le");
  for (int letter = 0; letter < 3; ++letter) {
    QTest::keyClick(Box(), Qt::Key_Backspace);
  }
  Type("{");
  press(Qt::Key_T);
  press(Qt::Key_A);
  EXPECT_EQ(popup()->model()->rowCount(), 1);
  press(Qt::Key_Tab);
  EXPECT_EQ(BoxText(), "Ha, {TARGET}");
  EXPECT_TRUE(Box()->hasFocus());
  EXPECT_EQ(Box()->cursorPosition(), 12);
  current_.steps().undo();
  page_.ShowAgain();
  EXPECT_EQ(BoxText(), "Ha, {ta");

  // Escape goes on without, until the next brace.
  Box()->setFocus();
  Box()->end(false);
  Type("} {");
  press(Qt::Key_Escape);
  EXPECT_EQ(popup(), nullptr);
  Type("a");
  EXPECT_EQ(popup(), nullptr);
  Type("} {prof");
  EXPECT_EQ(popup()->model()->rowCount(), 1);
  press(Qt::Key_Enter);
  EXPECT_EQ(BoxText(), "Ha, {ta} {a} PROFESSION");
  // Two begin a ready-made line.
  Type("{{");
  EXPECT_EQ(popup(), nullptr);
}

TEST_F(ChatPageTest, TakesAVariableByTheMouseAlone) {
  Show({{"Hi "}});
  Box()->setFocus();
  Box()->end(false);
  Type("{");
  auto* const popup =
      qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
  ASSERT_NE(popup, nullptr);
  QTest::mouseClick(popup->viewport(), Qt::LeftButton, {},
                    popup->visualRect(popup->model()->index(2, 0)).center());
  EXPECT_EQ(BoxText(), "Hi {ANYBOTNAME}");
  EXPECT_FALSE(popup->isVisible());
}

TEST_F(ChatPageTest, ShowsTheReadyMadeLinesOfTheOccasion) {
  const auto remark = [this](int row) {
    return List("lstPreDefNumber")
        ->item(row)
        ->data(Qt::AccessibleDescriptionRole)
        .toString()
        .toStdString();
  };
  EXPECT_EQ(List("lstPreDef")->currentRow(), 0);
  EXPECT_EQ(remark(0), "");
  GameData game;
  game.words = WordLists::Parse(
      "DEATH_RAIL0 = {0, \" shot well.\"; \"Nice.\"; }\n"
      "KILL_RAIL1 = {\"Zap, \", 0, \"!\"; }\n");
  page_.SetGame(&game);
  constexpr ChatTypeId kDeathByRail{16};
  constexpr ChatTypeId kKillByRail{20};
  SelectType(kDeathByRail);
  EXPECT_EQ(List("lstPreDef")->currentRow(), 15);
  EXPECT_EQ(remark(0), "marla shot well.");
  EXPECT_EQ(remark(1), "(not in this game)");
  SelectType(kKillByRail);
  EXPECT_EQ(List("lstPreDef")->currentItem()->text(),
            QStringLiteral("Kills with railgun"));
  EXPECT_EQ(remark(0), "(not in this game)");
  EXPECT_EQ(remark(1), "Zap, marla!");
  // The first that the game has.
  EXPECT_EQ(List("lstPreDefNumber")->currentRow(), 1);
  List("lstPreDefNumber")->setCurrentRow(1);
  // Only another occasion changes what was chosen.
  Click("cmdNewLine");
  Click("cmdAddList");
  EXPECT_EQ(List("lstPreDefNumber")->currentRow(), 1);
  EXPECT_THAT(Lines(), ElementsAre("", "{{KILLRAIL1}}"));
  page_.SetGame(nullptr);
  EXPECT_EQ(remark(1), "");
}

TEST_F(ChatPageTest, MovesNothingWhereTheHelpIsLonger) {
  const auto* const spoken = page_.findChild<QWidget*>("picSpoken");
  for (const int width : {700, 1000}) {
    page_.resize(width, 430);
    SelectType(kGameEntry);
    // The room for the help is made once its width is known.
    QRect last;
    do {
      last = Box()->geometry();
      QTest::qWait(50);
    } while (Box()->geometry() != last);
    const QRect place = spoken->geometry();
    const QRect box = Box()->geometry();
    for (const ChatTypeId type : kAllChatTypes) {
      SelectType(type);
      Click("cmdNewLine");
      Type(QString(260, u'w'));
      QCoreApplication::processEvents();
      EXPECT_EQ(spoken->geometry(), place) << IndexOf(type);
      EXPECT_EQ(Box()->geometry(), box) << IndexOf(type);
    }
  }
}

TEST_F(ChatPageTest, TakesDeleteAsRemovalInTheListAlone) {
  Show({{"abc", "d"}});
  Box()->setFocus();
  Box()->setCursorPosition(0);
  QTest::keyClick(Box(), Qt::Key_Delete);
  EXPECT_THAT(Lines(), ElementsAre("bc", "d"));
  List("lstChatGroups")->setFocus();
  QTest::keyClick(List("lstChatGroups"), Qt::Key_Delete);
  EXPECT_THAT(Lines(), ElementsAre("bc", "d"));
  List("lstChatLines")->setFocus();
  QTest::keyClick(List("lstChatLines"), Qt::Key_Delete);
  EXPECT_THAT(Lines(), ElementsAre("d"));
  QTest::keyClick(List("lstChatLines"), Qt::Key_Return);
  EXPECT_TRUE(Box()->hasFocus());
}

TEST_F(ChatPageTest, AddsRandomLines) {
  Show({});
  SelectType(kPummel);
  Click("cmdAddRandom");
  EXPECT_THAT(Lines(), ElementsAre("{{KILLGAUNTLET0}}"));
  Click("cmdAddRandom");
  EXPECT_THAT(Lines(), ElementsAre("{{KILLGAUNTLET0}}", "{{KILLGAUNTLET0}}"));
  EXPECT_EQ(Line(), 0);
  EXPECT_TRUE(current_.is_changed());

  Show({});
  page_.AddExtraChatsToBot();
  EXPECT_TRUE(current_.is_changed());
  for (const ChatTypeId type : kAllChatTypes) {
    EXPECT_EQ(Stored(type).size(), 1U) << IndexOf(type);
  }
  EXPECT_THAT(Stored(kCratered), ElementsAre("{{DEATHFALLING0}}"));
  EXPECT_THAT(Stored(kHitTalking), ElementsAre("{{HITTALKING0}}"));
  EXPECT_EQ(BoxText(), "{{KILLGAUNTLET0}}");
  page_.AddExtraChatsToBot();
  EXPECT_EQ(Stored(kLevelEnds).size(), 2U);

  current_.SetChanged(false);
  page_.DeleteAllChats();
  EXPECT_TRUE(current_.is_changed());
  EXPECT_THAT(Lines(), ElementsAre(""));
  EXPECT_EQ(BoxText(), "");
  EXPECT_TRUE(Box()->isEnabled());
}

TEST_F(ChatPageTest, MarksSynonymsOnRequest) {
  synonyms_.words = {"hello"};
  Show({{"Hello world"}});
  Box()->setCursorPosition(5);
  Click("cmdCheckSynonyms");
  EXPECT_THAT(Lines(), ElementsAre("~Hello world"));
  EXPECT_EQ(Box()->cursorPosition(), 6);
  EXPECT_TRUE(prompts_.messages.empty());
  synonyms_ = {};
  Click("cmdCheckSynonyms");
  ASSERT_EQ(prompts_.messages.size(), 1U);
  EXPECT_EQ(prompts_.messages[0].title, "Synonym list is missing");
  EXPECT_THAT(Lines(), ElementsAre("~Hello world"));
}

TEST_F(ChatPageTest, ChecksSynonymsByItselfWhenALineIsDone) {
  synonyms_.words = {"hello"};
  Show({{"hello", "hello you"}});
  const auto leave = [this] {
    Box()->setFocus();
    QTest::mouseClick(List("lstChatLines")->viewport(), Qt::LeftButton, {},
                      List("lstChatLines")
                          ->visualItemRect(List("lstChatLines")->item(1))
                          .center());
  };
  leave();
  EXPECT_THAT(Lines(), ElementsAre("hello", "hello you"));

  SelectLine(0);
  QTest::mouseClick(page_.findChild<QCheckBox*>("chkAutoSynonyms"),
                    Qt::LeftButton);
  leave();
  // The line that was left, not the one that was clicked.
  EXPECT_THAT(Lines(), ElementsAre("~hello", "hello you"));
  EXPECT_EQ(BoxText(), "hello you");
  Box()->setFocus();
  QTest::keyClick(Box(), Qt::Key_Return);
  EXPECT_THAT(Lines(), ElementsAre("~hello", "~hello you"));
}

// The button takes the focus from the box, which marks the words first.
TEST_F(ChatPageTest, InsertsWhereTheCursorWasBeforeTheMarks) {
  synonyms_.words = {"hello", "you"};
  page_.findChild<QCheckBox*>("chkAutoSynonyms")->setChecked(true);
  const auto insert = [this](int cursor) {
    Show({{"hello you"}});
    Box()->setFocus();
    Box()->setCursorPosition(cursor);
    // Where the mouse clicks, the focus goes before the click is done.
    Button("cmdPointer_2")->setFocus();
    Click("cmdPointer_2");
    std::string text = BoxText();
    return text.insert(static_cast<std::size_t>(Box()->cursorPosition()), "|");
  };
  EXPECT_EQ(insert(9), "~hello ~you|{ANYBOTNAME}");
  EXPECT_EQ(insert(8), "~hello ~yo|{ANYBOTNAME}u");
  // A mark stays with its word.
  EXPECT_EQ(insert(6), "~hello |{ANYBOTNAME}~you");
  EXPECT_EQ(insert(2), "~he|{ANYBOTNAME}llo ~you");
  EXPECT_EQ(insert(0), "|{ANYBOTNAME}");
}

TEST_F(ChatPageTest, TellsOfAnEmptySynonymListOncePerLeaving) {
  Show({{"hello"}});
  page_.findChild<QCheckBox*>("chkAutoSynonyms")->setChecked(true);
  for (std::size_t time = 1; time <= 2; ++time) {
    Box()->setFocus();
    QTest::keyClick(Box(), Qt::Key_Return);
    List("lstChatLines")->setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(prompts_.messages.size(), time);
  }
  EXPECT_FALSE(current_.is_changed());
}

TEST_F(ChatPageTest, IsUsableByKeyboardAndScreenReader) {
  Show({{"a"}});
  std::set<QChar> keys;
  const auto take_mnemonic = [&keys](const QString& text) {
    const qsizetype mark = text.indexOf(u'&');
    if (mark < 0) return;
    EXPECT_TRUE(keys.insert(text[mark + 1].toLower()).second)
        << text.toStdString();
  };
  for (const auto* label : page_.findChildren<QLabel*>()) {
    take_mnemonic(label->text());
    const bool only_tells =
        qobject_cast<const SpokenPreview*>(label->parentWidget()) != nullptr;
    EXPECT_TRUE(label->buddy() != nullptr || only_tells)
        << label->text().toStdString();
  }
  for (const auto* button : page_.findChildren<QAbstractButton*>()) {
    take_mnemonic(button->text());
  }
  EXPECT_EQ(keys.size(), 10U);

  QStringList order;
  List("lstChatGroups")->setFocus();
  do {
    const QWidget* const focused = QApplication::focusWidget();
    order << focused->objectName();
    EXPECT_FALSE(focused->accessibleName().isEmpty() &&
                 qobject_cast<const QAbstractButton*>(focused) == nullptr)
        << focused->objectName().toStdString();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  } while (QApplication::focusWidget() != List("lstChatGroups") &&
           order.size() < 30);
  EXPECT_EQ(order.join(u' ').toStdString(),
            "lstChatGroups lstChatLines txtChatLine cmdPointer_0 cmdPointer_1 "
            "cmdPointer_2 cmdNewLine cmdRemoveLine cmdAddRandom lstPreDef "
            "lstPreDefNumber cmdAddList lstWords cmdAddWord cmdCheckSynonyms "
            "chkAutoSynonyms cmdSayAnother");
}

TEST_F(ChatPageTest, SaysWhenTheGameSpeaks) {
  const auto tip = [this](ChatTypeId type) {
    return List("lstChatGroups")
        ->item(static_cast<int>(type))
        ->toolTip()
        .toStdString();
  };
  EXPECT_THAT(tip(TypeAt(1)), HasSubstr("Never: when the bot leaves"));
  EXPECT_THAT(tip(TypeAt(23)), HasSubstr("Never: the game"));
  EXPECT_THAT(tip(kPummel), HasSubstr("&quot;Kills&quot;"));
  EXPECT_THAT(tip(kCratered), HasSubstr("&quot;Dies&quot;"));
  const auto pointer_tip = [this](ChatTypeId type) {
    SelectType(type);
    return Button("cmdPointer_7")->toolTip().toStdString();
  };
  EXPECT_THAT(pointer_tip(TypeAt(15)), HasSubstr("the weapon that was used"));
  EXPECT_THAT(pointer_tip(kPummel), HasSubstr("nothing"));
  EXPECT_THAT(page_.findChild<QLabel*>("lblWhen")->text().toStdString(),
              HasSubstr("{TARGET} is the name of the victim; {WEAPONUSED} is"));
}

TEST_F(ChatPageTest, TellsTheEndsOfALevelApartWhereItIsNarrow) {
  QListWidget* const types = List("lstChatGroups");
  const QFontMetrics letters = types->fontMetrics();
  if (letters.horizontalAdvance('i') == letters.horizontalAdvance('W')) {
    GTEST_SKIP() << "There is no font: each letter is drawn as the same box.";
  }
  const auto shown = [types](int row) {
    QListWidgetItem* const item = types->item(row);
    types->setCurrentItem(item);
    types->clearSelection();
    types->scrollToTop();
    const QRect place = types->visualItemRect(item);
    return types->viewport()->grab(place).toImage();
  };
  page_.resize(page_.minimumSizeHint().width(), 430);
  types->setFixedWidth(160);
  QCoreApplication::processEvents();
  EXPECT_NE(shown(4), shown(5));
}

}  // namespace
}  // namespace fragsmith
