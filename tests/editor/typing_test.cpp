#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QUrl>
#include <QWheelEvent>

#include "editor/controls/max_select.h"
#include "editor/dialogs/compare_dialog.h"
#include "editor/dialogs/open_dialog.h"
#include "editor/toolkit/page_table.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "tests/editor/window_fixture.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// What was typed counts, whatever comes next.
class Typing : public WindowFixture {
 protected:
  /// Types in the place of what is there; the box keeps the focus.
  void Write(const char* name, const char* text) {
    auto* const box = Find<QLineEdit>(name);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, QLatin1String(text));
  }

  void Drop(const std::filesystem::path& path) {
    QMimeData data;
    data.setUrls(
        {QUrl::fromLocalFile(QString::fromStdString(BytesFromPath(path)))});
    QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(window_.get(), &enter);
    QDropEvent dropped({}, Qt::CopyAction, &data, Qt::LeftButton,
                       Qt::NoModifier);
    QCoreApplication::sendEvent(window_.get(), &dropped);
    QCoreApplication::processEvents();
  }

  std::filesystem::path SaveOther() {
    Bot other = CreateZeroBot();
    other.Put(kNameField, std::string("Other"));
    return SaveBot(other, folder_.path(), {}, {}, prompts_).written.at(0);
  }

  QString NameBox() { return Find<QLineEdit>("txtBotPara_0")->text(); }

  /// What an assistive tool does to a button that has two states.
  static void Toggle(QWidget* button) {
    QAccessibleInterface* const interface =
        QAccessible::queryAccessibleInterface(button);
    ASSERT_NE(interface, nullptr);
    interface->actionInterface()->doAction(
        QAccessibleActionInterface::toggleAction());
  }
};

TEST_F(Typing, IsInTheBotBeforeAnyCommand) {
  Find<QCheckBox>("chkArenalord")->click();
  Choose("mnuUndo");
  for (const char* const item :
       {"mnuRedo", "mnuCopyLevel_4_5", "mnuExtraChat", "mnuFindings"}) {
    const std::string name = std::string("T") + (item + 3);
    Write("txtBotPara_0", name.c_str());
    Choose(item);
    EXPECT_EQ(bot().Name(), name) << item;
    EXPECT_EQ(NameBox().toStdString(), name) << item;
  }
  Write("txtBotPara_0", "Compared");
  ChooseAndAnswer<frmCompare>("mnuCompareAverage",
                              [](frmCompare& dialog) { dialog.reject(); });
  EXPECT_EQ(bot().Name(), "Compared");

  // One file of another bot leaves the name.
  const std::filesystem::path file = SaveOther();
  Write("txtBotPara_0", "Mixed");
  OnDialog<frmOpen>([](frmOpen& dialog) {
    dialog.findChild<QListWidget*>(QStringLiteral("filFile"))->setCurrentRow(0);
    dialog.accept();
  });
  Choose("mnuCharFile");
  EXPECT_EQ(bot().Name(), "Mixed");

  // What takes the whole bot away asks, and is taken back to what was typed.
  const auto replace = [this](const char* name, const auto& by) {
    Write("txtBotPara_0", name);
    prompts_.confirmations = {true};
    by();
    EXPECT_NE(bot().Name(), name);
    Choose("mnuUndo");
    EXPECT_EQ(bot().Name(), name);
    EXPECT_EQ(NameBox().toStdString(), name);
  };
  replace("New", [this] { Choose("mnuNewAverage"); });
  replace("Dropped", [this, &file] { Drop(file); });
  replace("Recent", [this] {
    auto* const menu = Find<QMenu>("mnuRecent");
    emit menu->aboutToShow();
    menu->actions().front()->trigger();
  });
}

/// The texts beside the sliders can be typed into.
class TypingOfValues : public Typing {
 protected:
  /// Opens the box of a slider that has the focus.
  QLineEdit* Open(const char* control, const char* suffix = "") {
    auto* const slider = Find<QWidget>(control)->findChild<QSlider*>(
        QLatin1String("sliValue") + QLatin1String(suffix));
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_F2);
    return Find<QWidget>(control)->findChild<QLineEdit*>(
        QLatin1String("txtValue") + QLatin1String(suffix));
  }

  QLineEdit* Enter(const char* text, const char* control,
                   const char* suffix = "") {
    QLineEdit* const box = Open(control, suffix);
    QTest::keyClicks(box, QLatin1String(text));
    return box;
  }

  void TurnTo(int page) {
    Find<QTabWidget>("tbsBotPara")->setCurrentIndex(page);
    QCoreApplication::processEvents();
  }

  Value Weight() { return bot().Parameter(Id(44)); }
};

TEST_F(TypingOfValues, StoresAnyNumberInOneStep) {
  TurnTo(3);
  QLineEdit* const box = Open("osBotPara_44");
  EXPECT_EQ(box->selectedText(), "0");
  EXPECT_TRUE(box->hasFocus());
  EXPECT_EQ(box->accessibleName(), "Gauntlet usage, value");
  QTest::keyClicks(box, QStringLiteral("123.4"));
  EXPECT_EQ(Weight(), Value(0.0));
  EXPECT_TRUE(is_changed());
  QTest::keyClick(box, Qt::Key_Return);
  EXPECT_EQ(Weight(), Value(123.4));
  EXPECT_TRUE(box->isHidden());
  auto* const slider = Find<QWidget>("osBotPara_44")->findChild<QSlider*>();
  EXPECT_TRUE(slider->hasFocus());

  // A digit begins as F2 does; leaving is as good as Enter, and each is a step.
  QTest::keyClick(slider, Qt::Key_5);
  QTest::keyClicks(box, QStringLiteral("000"));
  Find<QComboBox>("cmbRail")->setFocus();
  QCoreApplication::processEvents();
  EXPECT_EQ(Weight(), Value(5000.0));
  EXPECT_TRUE(box->isHidden());
  Choose("mnuUndo");
  EXPECT_EQ(Weight(), Value(123.4));
  Choose("mnuUndo");
  EXPECT_EQ(Weight(), Value(0.0));
  EXPECT_FALSE(is_changed());

  // The mouse opens it, too; the same number is no edit.
  QTest::mouseClick(
      Find<QWidget>("osBotPara_44")->findChild<QLabel*>("lblValue"),
      Qt::LeftButton);
  EXPECT_TRUE(box->hasFocus());
  QTest::keyClicks(box, QStringLiteral("0.0"));
  QTest::keyClick(box, Qt::Key_Enter);
  EXPECT_FALSE(is_changed());
}

TEST_F(TypingOfValues, KeepsTheLevelsInOrder) {
  const auto levels = [this] {
    return std::vector<Value>{bot().Parameter({Level::k1, 2}),
                              bot().Parameter({Level::k4, 2}),
                              bot().Parameter({Level::k5, 2})};
  };
  const std::vector<Value> before = levels();
  TurnTo(0);
  QTest::keyClick(Enter("0.34", "tsBotPara_2", "_4"), Qt::Key_Return);
  EXPECT_THAT(levels(), ElementsAre(0.0, 0.34, 0.34));
  // On the slider's grid both are at one place.
  QTest::keyClick(Enter("0.36", "tsBotPara_2", "_1"), Qt::Key_Return);
  EXPECT_THAT(levels(), ElementsAre(0.36, 0.36, 0.36));
  Choose("mnuUndo");
  Choose("mnuUndo");
  EXPECT_EQ(levels(), before);
}

TEST_F(TypingOfValues, IsTakenBackByEscapeAndUndo) {
  TurnTo(3);
  QLineEdit* const box = Enter("77", "osBotPara_44");
  QTest::keyClick(box, Qt::Key_Escape);
  EXPECT_TRUE(box->isHidden());
  EXPECT_FALSE(is_changed());
  Enter("77", "osBotPara_44");
  for (int step = 0; step < 5 && !box->isHidden() && box->isModified();
       ++step) {
    Choose("mnuUndo");
  }
  EXPECT_FALSE(is_changed());
  EXPECT_EQ(Weight(), Value(0.0));
  EXPECT_FALSE(window_->current().steps().canRedo());
}

TEST_F(TypingOfValues, IsInTheBotBeforeAnyCommand) {
  TurnTo(0);
  Enter("0.7", "tsBotPara_2", "_4");
  Choose("mnuCopyLevel_4_1");
  EXPECT_EQ(bot().Parameter({Level::k1, 2}), Value(0.7));

  // And in what is kept for a crash.
  QLineEdit* const box = Enter("0.8", "tsBotPara_2", "_5");
  window_->KeepDraft();
  EXPECT_THAT(folder_.Read("fgs.draft"), HasSubstr("0.8"));
  QTest::keyClick(box, Qt::Key_Escape);
  EXPECT_EQ(bot().Parameter({Level::k5, 2}), Value(0.7));
}

TEST_F(TypingOfValues, SaysWhyATextIsRefusedAndStopsCommands) {
  TurnTo(3);
  QLineEdit* const box = Enter("often", "osBotPara_44");
  const int height = box->height();
  for (const char* const item : {"mnuNewAverage", "mnuMake", "mnuSaveAgain",
                                 "mnuCopyLevel_4_5", "mnuFind"}) {
    TurnTo(0);
    Choose(item);
    EXPECT_TRUE(box->hasFocus()) << item;
    EXPECT_TRUE(box->isVisible()) << item;
    EXPECT_THAT(box->toolTip().toStdString(), HasSubstr("A number is wanted"));
    EXPECT_THAT(box->accessibleDescription().toStdString(),
                HasSubstr("A number is wanted"));
  }
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_EQ(box->height(), height);
  // It cannot be left, but mended or taken back.
  QTest::keyClick(box, Qt::Key_Return);
  Find<QComboBox>("cmbRail")->setFocus();
  QCoreApplication::processEvents();
  EXPECT_TRUE(box->hasFocus());
  QTest::keyClicks(box, QStringLiteral("12"));
  EXPECT_EQ(box->toolTip(), "");
  Choose("mnuCopyLevel_4_5");
  EXPECT_EQ(Weight(), Value(12.0));
}

TEST_F(TypingOfValues, CanBePutBackByAButton) {
  TurnTo(0);
  auto* const control = Find<QWidget>("tsBotPara_2");
  const auto slider = [control](const char* name) {
    return control->findChild<QSlider*>(QLatin1String(name));
  };
  const QRect place = slider("sliValue_4")->geometry();
  QTest::keyClick(Enter("0.34", "tsBotPara_2", "_5"), Qt::Key_Return);
  EXPECT_EQ(control->findChildren<QToolButton*>().size(), 1);
  QTest::keyClick(Enter("0.2", "tsBotPara_2", "_4"), Qt::Key_Return);
  auto* const button =
      control->findChild<QToolButton*>(QStringLiteral("cmdReset_4"));
  ASSERT_NE(button, nullptr);
  EXPECT_TRUE(button->isVisible());
  EXPECT_EQ(button->accessibleName().toStdString(),
            "Put Attack skill, level 4 back to 0");
  EXPECT_EQ(slider("sliValue_4")->geometry(), place);
  // Next to its slider for the Tab key.
  slider("sliValue_4")->setFocus();
  QTest::keyClick(slider("sliValue_4"), Qt::Key_Tab);
  EXPECT_TRUE(button->hasFocus());
  QTest::keyClick(button, Qt::Key_Space);
  EXPECT_EQ(bot().Parameter({Level::k4, 2}), Value(0.0));
  EXPECT_EQ(bot().Parameter({Level::k5, 2}), Value(0.34));
  EXPECT_FALSE(button->isVisible());
  EXPECT_TRUE(slider("sliValue_4")->hasFocus());
  Choose("mnuUndo");
  EXPECT_EQ(bot().Parameter({Level::k4, 2}), Value(0.2));
  EXPECT_TRUE(button->isVisible());

  // Another bot is another one to go back to.
  prompts_.confirmations = {true};
  Choose("mnuNewAverage");
  EXPECT_FALSE(button->isVisible());
}

TEST_F(Typing, StopsACommandWhenItIsRefused) {
  const std::filesystem::path file = SaveOther();
  const auto try_all = [this](const auto& command) {
    prompts_.log.clear();
    prompts_.confirmations = {true, true};
    command();
    EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("Space error!")));
    EXPECT_EQ(bot().Name(), "Bot");
    EXPECT_EQ(NameBox(), "my bot");
    EXPECT_TRUE(Find<QLineEdit>("txtBotPara_0")->hasFocus());
  };
  Write("txtBotPara_0", "my bot");
  for (const char* const item : {"mnuNewAverage", "mnuLoad", "mnuCopyLevel_1_5",
                                 "mnuCompareAverage", "mnuFind"}) {
    try_all([this, item] { Choose(item); });
  }
  try_all([this, &file] { Drop(file); });
  // It can be taken back all the same.
  Choose("mnuUndo");
  EXPECT_EQ(NameBox(), "Bot");
  EXPECT_FALSE(is_changed());
}

TEST_F(Typing, TakesAColourCodeBackByItself) {
  auto* const box = Find<QLineEdit>("txtBotPara_2");
  const auto undo_key = [box] {
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
  };
  Write("txtBotPara_2", "ab");
  Find<QToolButton>("cmdColor_3")->click();
  EXPECT_EQ(box->text(), "ab^3");
  QTest::keyClicks(box, QStringLiteral("cd"));
  undo_key();
  EXPECT_EQ(box->text(), "ab^3");
  undo_key();
  EXPECT_EQ(box->text(), "ab");
  Find<QToolButton>("cmdColor_4")->click();
  Choose("mnuUndo");
  EXPECT_EQ(box->text(), "ab");

  // The same with a name that is in the bot already.
  Type("txtBotPara_2", "stored");
  box->setFocus();
  box->setCursorPosition(0);
  Find<QToolButton>("cmdColor_1")->click();
  EXPECT_EQ(box->text(), "^1stored");
  EXPECT_EQ(box->cursorPosition(), 2);
  undo_key();
  EXPECT_EQ(box->text(), "stored");
  EXPECT_EQ(bot().FunName(), "stored");
}

TEST_F(Typing, IsTakenBackInTheOrderInWhichItWasStored) {
  auto* const box = Find<QLineEdit>("txtBotPara_9");
  Write("txtBotPara_9", "first");
  Choose("mnuKeyboard");
  QTest::keyClicks(box, QStringLiteral("second"));
  Choose("mnuUndo");
  EXPECT_EQ(box->text(), "first");
  Choose("mnuUndo");
  EXPECT_EQ(box->text(), "");
}

TEST_F(Typing, ReplacesTheNameOfANewBot) {
  Type("txtBotPara_2", "Somebody");
  prompts_.confirmations = {true};
  Choose("mnuNewAverage");
  ASSERT_NE(window_->focusWidget(), nullptr);
  QTest::keyClicks(window_->focusWidget(), QStringLiteral("Fresh"));
  EXPECT_EQ(NameBox(), "Fresh");
  Find<QComboBox>("cmbRail")->setFocus();
  QCoreApplication::processEvents();
  EXPECT_EQ(bot().Name(), "Fresh");
}

TEST_F(Typing, ShowsTheVersionAsItIsStored) {
  Type("txtBotPara_7", " .5");
  EXPECT_EQ(Find<QLineEdit>("txtBotPara_7")->text().toStdString(),
            bot().Text(kVersionMajorField));
  EXPECT_EQ(Find<QLineEdit>("txtBotPara_7")->text(), "0.5");
  Write("txtBotPara_8", "1.");
  ChooseAndAnswer<frmOpen>("mnuMake", [](frmOpen& dialog) { dialog.reject(); });
  EXPECT_EQ(Find<QLineEdit>("txtBotPara_8")->text(), "1");
}

TEST_F(Typing, MarksTheSynonymsOfALineThatIsSavedAtOnce) {
  state_->synonyms.words = {"hello"};
  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(7);
  Find<QCheckBox>("chkAutoSynonyms")->setChecked(true);
  const auto type = [this] {
    auto* const line = Find<QLineEdit>("txtChatLine");
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, QStringLiteral("hello you"));
    EXPECT_EQ(bot().ChatLine(TypeAt(0), ChatLineIndex(0)), "hello you");
  };
  type();
  ChooseAndAnswer<frmOpen>("mnuMake", [](frmOpen& dialog) { dialog.accept(); });
  EXPECT_THAT(folder_.Read("bot_t.c"), HasSubstr("~hello you"));
  type();
  Choose("mnuSaveAgain");
  EXPECT_THAT(folder_.Read("bot_t.c"), HasSubstr("~hello you"));
}

TEST_F(Typing, IsNotTheOnlyWayToSetAButton) {
  Toggle(Find<QRadioButton>("opGender_1"));
  EXPECT_EQ(bot().Text(Id(1)), "female");
  Toggle(Find<QRadioButton>("opGender_2"));
  EXPECT_EQ(bot().Text(Id(1)), "it");
  Toggle(Find<QCheckBox>("chkArenalord"));
  EXPECT_EQ(bot().Parameter(kArenaLordField), Value(1.0));
  // Showing a bot, as undo does, is no choice.
  Choose("mnuUndo");
  Choose("mnuUndo");
  EXPECT_EQ(bot().Text(Id(1)), "male");
  EXPECT_TRUE(Find<QRadioButton>("opGender_0")->isChecked());
  EXPECT_TRUE(window_->current().steps().canRedo());

  auto* const slider = Find<QWidget>("osBotPara_44")->findChild<QSlider*>();
  auto* const scale = Find<MaxSelect>("mseSelect_0");
  Toggle(scale->findChild<QRadioButton*>(QStringLiteral("opScale_2")));
  slider->setFocus();
  QTest::keyClick(slider, Qt::Key_End);
  EXPECT_EQ(bot().Parameter(Id(44)), Value(1000.0));
}

TEST_F(Typing, GoesWithoutAVariableThatIsTakenBack) {
  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(kChatPage);
  Find<QPushButton>("cmdNewLine")->click();
  auto* const box = Find<QLineEdit>("txtChatLine");
  QTest::keyClicks(box, QStringLiteral("hello "));
  Find<QPushButton>("cmdPointer_2")->click();
  EXPECT_EQ(box->text(), "hello {ANYBOTNAME}");
  Choose("mnuUndo");
  EXPECT_EQ(box->text(), "hello ");
}

TEST_F(Typing, IsNotDoneByAWheelThatPasses) {
  const auto turn = [](QComboBox& box) {
    QWheelEvent event(QPointF(5, 5), box.mapToGlobal(QPointF(5, 5)), {},
                      QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&box, &event);
    return event.isAccepted();
  };
  Find<QLineEdit>("txtBotPara_0")->setFocus();
  const auto boxes = window_->findChildren<QComboBox*>();
  EXPECT_GE(boxes.size(), 4);
  for (QComboBox* const box : boxes) {
    const int index = box->currentIndex();
    EXPECT_FALSE(turn(*box)) << box->objectName().toStdString();
    EXPECT_EQ(box->currentIndex(), index) << box->objectName().toStdString();
    EXPECT_FALSE(box->hasFocus());
  }
  EXPECT_FALSE(is_changed());
  auto* const rail = Find<QComboBox>("cmbRail");
  rail->setFocus();
  EXPECT_TRUE(turn(*rail));
  EXPECT_EQ(bot().Parameter(kRailColorField), Value(0.0));
}

}  // namespace
}  // namespace fragsmith
