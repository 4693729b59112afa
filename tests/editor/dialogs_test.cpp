#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFontMetricsF>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <memory>

#include "editor/dialogs/about_dialog.h"
#include "editor/dialogs/model_dialog.h"
#include "editor/dialogs/open_dialog.h"
#include "editor/dialogs/options_dialog.h"
#include "editor/dialogs/search_progress.h"
#include "tests/editor/font_scale.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {
namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;

template <typename Widget>
Widget& Find(const QWidget& dialog, const char* name) {
  auto* const found = dialog.findChild<Widget*>(QString::fromUtf8(name));
  if (found == nullptr) throw std::out_of_range(name);
  return *found;
}

void Press(const QWidget& dialog, const char* button) {
  QTest::mouseClick(&Find<QPushButton>(dialog, button), Qt::LeftButton);
}

/// Keys of any keyboard.
void Type(QWidget& box, const QString& text) {
  for (const QChar letter : text) {
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, letter, {});
  }
}

QStringList TextsOf(const QListWidget& list) {
  QStringList texts;
  for (int row = 0; row < list.count(); ++row) texts << list.item(row)->text();
  return texts;
}

void Click(QListWidget& list, int row) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                    list.visualItemRect(list.item(row)).center());
}

/// As a user does it: a double click is two clicks.
void DoubleClick(QListWidget& list, int row) {
  Click(list, row);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                     list.visualItemRect(list.item(row)).center());
}

class OpenDialog : public testing::Test {
 protected:
  OpenDialog() {
    for (const char* file : {"ash_c.c", "ash_t.c", "ash_i.c", "ash_w.c",
                             "bee_C.C", "bee_t.c", "sub/cat_c.c"}) {
      folder_.Write(file, "");
    }
    bots_.AddBot("Bob", "Pack.pk3", true);
    bots_.AddBot("Cid", "Pack.pk3", false);
  }

  frmOpen& Open(OpenKind kind, OpenOptions options = {}) {
    dialog_ = std::make_unique<frmOpen>(
        OpenRequest{.kind = kind,
                    .folder = folder_.path(),
                    .options = options,
                    .bots = &bots_,
                    .bot_name = QStringLiteral("Ash")},
        prompts_);
    dialog_->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    return *dialog_;
  }

  QListWidget& Files() { return Find<QListWidget>(*dialog_, "filFile"); }
  QListWidget& Bots() { return Find<QListWidget>(*dialog_, "lstBots"); }

  TestFolder folder_;
  BotList bots_;
  ScriptedPrompts prompts_;
  std::unique_ptr<frmOpen> dialog_;
};

TEST_F(OpenDialog, TitleFilesAndOptionsFollowTheKind) {
  struct Row {
    OpenKind kind;
    const char* title;
    QStringList files;
    bool loads;
    bool saves;
  };
  const QStringList characteristics = {"ash_c.c", "bee_C.C"};
  const Row rows[] = {
      {OpenKind::kLoadBot, "Load bot", characteristics, true, false},
      {OpenKind::kCharacteristics, "Load bot characteristic files",
       characteristics, false, false},
      {OpenKind::kChat,
       "Load bot chat files",
       {"ash_t.c", "bee_t.c"},
       false,
       false},
      {OpenKind::kItemWeights,
       "Load bot weapon and item weights files",
       {"ash_i.c"},
       false,
       false},
      {OpenKind::kWeaponWeights,
       "Load bot weapon usage files",
       {"ash_w.c"},
       false,
       false},
      {OpenKind::kSave, "Make botfiles for Ash", characteristics, false, true},
  };
  int number = 0;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.title);
    EXPECT_EQ(static_cast<int>(row.kind), number++);
    const frmOpen& dialog = Open(row.kind);
    EXPECT_EQ(dialog.windowTitle().toStdString(), row.title);
    EXPECT_EQ(TextsOf(Files()), row.files);
    for (const char* name : {"chkLoadStructure", "chkLoadBotFile"}) {
      EXPECT_EQ(Find<QCheckBox>(dialog, name).isEnabled(), row.loads) << name;
    }
    for (const char* name : {"chkSaveStructure", "chkMakePk3"}) {
      EXPECT_EQ(Find<QCheckBox>(dialog, name).isEnabled(), row.saves) << name;
    }
    EXPECT_EQ(TextsOf(Bots()), (QStringList{"Bob            Pack.pk3"
                                            "            Yes",
                                            "Cid            Pack.pk3"
                                            "            No"}));
  }
}

TEST_F(OpenDialog, WithNothingChosenOnlySavingGoesOn) {
  for (int kind = 0; kind < 5; ++kind) {
    prompts_.messages.clear();
    frmOpen& dialog = Open(static_cast<OpenKind>(kind));
    Press(dialog, "cmdOK");
    ASSERT_EQ(prompts_.messages.size(), 1U) << kind;
    const Message& message = prompts_.messages.front();
    EXPECT_EQ(message.title, "Error!!");
    EXPECT_EQ(message.text,
              "You haven't chosen anything. Press 'Cancel' if you want to "
              "exit, dummy!");
    EXPECT_EQ(message.icon, MessageIcon::kInformation);
    EXPECT_TRUE(dialog.isVisible());
  }
  prompts_.messages.clear();
  // Nothing but Enter is needed, and neither list is an answer.
  frmOpen& dialog = Open(OpenKind::kSave);
  Click(Files(), 0);
  Click(Bots(), 0);
  DoubleClick(Bots(), 0);
  EXPECT_THAT(Bots().selectedItems(), IsEmpty());
  EXPECT_TRUE(dialog.isVisible());
  QTest::keyClick(&dialog, Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_THAT(prompts_.messages, IsEmpty());
  EXPECT_EQ(dialog.Choice().folder, folder_.path());
  EXPECT_FALSE(dialog.Choice().file);
  EXPECT_FALSE(dialog.Choice().bot_of_list);
}

TEST_F(OpenDialog, TheLastOneOfFileAndBotIsChosen) {
  const frmOpen& dialog = Open(OpenKind::kChat);
  Click(Files(), 1);
  EXPECT_EQ(dialog.Choice().file, folder_ / "bee_t.c");
  Click(Bots(), 1);
  EXPECT_EQ(dialog.Choice().bot_of_list, 1U);
  EXPECT_FALSE(dialog.Choice().file);
  EXPECT_THAT(Files().selectedItems(), IsEmpty());
  Click(Files(), 0);
  EXPECT_EQ(dialog.Choice().file, folder_ / "ash_t.c");
  EXPECT_FALSE(dialog.Choice().bot_of_list);
  EXPECT_THAT(Bots().selectedItems(), IsEmpty());
  QTest::keyClick(&Bots(), Qt::Key_Down);
  EXPECT_EQ(dialog.Choice().bot_of_list, 0U);
}

TEST_F(OpenDialog, EnterAndDoubleClickAccept) {
  const auto accepts = [this](const auto& choose) {
    frmOpen& dialog = Open(OpenKind::kLoadBot);
    const QSignalSpy closed(&dialog, &QDialog::finished);
    choose();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(closed.count(), 1);
    return dialog.Choice();
  };
  EXPECT_EQ(accepts([this] { DoubleClick(Files(), 1); }).file,
            folder_ / "bee_C.C");
  EXPECT_EQ(accepts([this] { DoubleClick(Bots(), 0); }).bot_of_list, 0U);
  EXPECT_EQ(accepts([this] {
              Click(Files(), 0);
              QTest::keyClick(&Files(), Qt::Key_Return);
            }).file,
            folder_ / "ash_c.c");
  EXPECT_EQ(accepts([this] {
              Bots().setFocus();
              QTest::keyClick(&Bots(), Qt::Key_Down);
              QTest::keyClick(&Bots(), Qt::Key_Down);
              QTest::keyClick(&Bots(), Qt::Key_Return);
            }).bot_of_list,
            1U);
  EXPECT_THAT(prompts_.messages, IsEmpty());
}

TEST_F(OpenDialog, OptionsComeBackAsTheyWereLeft) {
  const OpenOptions all = {true, true, true, true};
  EXPECT_EQ(Open(OpenKind::kSave, all).Choice().options, all);
  EXPECT_EQ(Open(OpenKind::kGameFolder, all).Choice().options, all);

  frmOpen& dialog = Open(OpenKind::kLoadBot, {false, true, true, false});
  Find<QCheckBox>(dialog, "chkLoadStructure").click();
  Find<QCheckBox>(dialog, "chkLoadBotFile").click();
  EXPECT_EQ(dialog.Choice().options, (OpenOptions{true, false, true, false}));
}

TEST_F(OpenDialog, FollowsTheBrowserAndMakesFolders) {
  frmOpen& dialog = Open(OpenKind::kSave);
  prompts_.answers = {std::nullopt, "..", "a/b", "ash_c.c", "new"};
  for (int count = 0; count < 5; ++count) {
    EXPECT_EQ(dialog.Choice().folder, folder_.path());
    Press(dialog, "cmdNewFolder");
  }
  EXPECT_EQ(dialog.Choice().folder, folder_ / "new");
  EXPECT_TRUE(fs::is_directory(folder_ / "new"));
  // Each refused name, with the place and, where there is one, the reason.
  ASSERT_EQ(prompts_.messages.size(), 3U);
  for (const Message& message : prompts_.messages) {
    EXPECT_THAT(message.text, testing::HasSubstr(folder_.path().string()));
  }
}

TEST_F(OpenDialog, APathThatWasTypedIsMeant) {
  frmOpen& dialog = Open(OpenKind::kSave);
  auto& path = Find<QLineEdit>(dialog, "txtFolder");
  path.selectAll();
  QTest::keyClicks(&path, "nowhere");
  Press(dialog, "cmdOK");
  EXPECT_THAT(prompts_.log,
              ElementsAre("Fragsmith: There is no folder 'nowhere'."));
  EXPECT_TRUE(dialog.isVisible());
  QTest::keyClicks(&path, "sub");
  Press(dialog, "cmdOK");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.Choice().folder, folder_ / "sub");
}

TEST_F(OpenDialog, APathCountsOnceItsBoxIsLeft) {
  frmOpen& dialog = Open(OpenKind::kLoadBot);
  auto& path = Find<QLineEdit>(dialog, "txtFolder");
  const auto type = [&path](const char* text) {
    path.setFocus();
    path.selectAll();
    QTest::keyClicks(&path, QLatin1String(text));
  };
  type("sub");
  Files().setFocus();
  EXPECT_EQ(dialog.Choice().folder, folder_ / "sub");
  ASSERT_EQ(Files().count(), 1);
  type("..");
  Press(dialog, "cmdOK");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.Choice().folder, folder_.path());
  // With one bot in it, the path has said which is meant; so has a file's.
  type("sub");
  Press(dialog, "cmdOK");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.Choice().file, folder_ / "sub/cat_c.c");
  dialog.show();
  type("../ash_c.c");
  Press(dialog, "cmdOK");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.Choice().file->lexically_normal(), folder_ / "ash_c.c");
  dialog.show();
  // What is chosen elsewhere does not wait for a path.
  type("nowhere");
  Click(Bots(), 0);
  Press(dialog, "cmdOK");
  EXPECT_FALSE(dialog.isVisible());
}

QImage PictureOf(QWidget& widget, const QRect& part) {
  return widget.grab(part).toImage().convertToFormat(QImage::Format_RGB32);
}

/// Where two pictures begin to differ; -1 when they are alike.
double FirstDifference(const QImage& one, const QImage& other) {
  EXPECT_EQ(one.size(), other.size());
  for (int column = 0; column < one.width(); ++column) {
    for (int line = 0; line < one.height(); ++line) {
      if (one.pixel(column, line) != other.pixel(column, line)) {
        return column / one.devicePixelRatio();
      }
    }
  }
  return -1;
}

/// Where a letter has its place that is drawn from x on: behind the gap that
/// a font leaves in front of it.
double PlaceOf(QChar letter, double x, const QFont& font) {
  return x - QFontMetricsF(font).leftBearing(letter);
}

TEST_F(OpenDialog, HeadingsStandOverTheirColumns) {
  frmOpen& dialog = Open(OpenKind::kLoadBot);
  QListWidget& list = Bots();
  const QRect line = list.visualItemRect(list.item(0));
  const QString text = list.item(0)->text();
  const QImage whole = PictureOf(*list.viewport(), line);
  const double pitch =
      QFontMetricsF(list.font()).horizontalAdvance(QString(60, u'0')) / 60;
  const struct {
    const char* label;
    const char* text;
    int column;
  } headings[] = {{"lblBot", "Bot", 0},
                  {"lblPk3File", "Pk3-file", 15},
                  {"lblBotFile", "Botfile", 35}};
  for (const auto& [name, heading, column] : headings) {
    SCOPED_TRACE(heading);
    auto& label = Find<QLabel>(dialog, name);
    EXPECT_EQ(label.text().remove(u'&'), heading);
    EXPECT_GE(label.width(), label.sizeHint().width());
    const QImage with_text = PictureOf(label, label.rect());
    label.setText({});
    const double label_place =
        label.mapTo(&dialog, QPoint()).x() -
        list.viewport()->mapTo(&dialog, QPoint()).x() +
        PlaceOf(QLatin1Char(*heading),
                FirstDifference(with_text, PictureOf(label, label.rect())),
                label.font());
    list.item(0)->setText(text.left(column));
    const double place = PlaceOf(
        text.at(column),
        FirstDifference(whole, PictureOf(*list.viewport(), line)), list.font());
    EXPECT_NEAR(place, label_place, pitch / 4);
  }
}

TEST(OptionsDialog, GivesBackByIndexWhatItWasGiven) {
  ScriptedPrompts prompts;
  frmOptions dialog(prompts);
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Fragsmith options"));
  EXPECT_EQ(dialog.GetOptionValue(6), "000");
  // Bytes that are no text: a folder in another encoding, names of the game.
  const std::string values[] = {"/q3/\xE9", "/work", "/zip", "J\xF6rg \x81",
                                "a@b.c",    "http:", "17"};
  for (int index = 0; index < 7; ++index) {
    dialog.SetOptionValue(index, values[index]);
  }
  for (int index = 0; index < 7; ++index) {
    EXPECT_EQ(dialog.GetOptionValue(index), values[index]) << index;
  }
  EXPECT_EQ(Find<QLabel>(dialog, "lblOption_6").text(), QStringLiteral("17"));

  dialog.show();
  Find<QTabWidget>(dialog, "tabOptions").setCurrentIndex(1);
  auto& name = Find<QLineEdit>(dialog, "txtOption_3");
  EXPECT_EQ(name.text().left(4), QStringLiteral("J\u00F6rg"));
  name.selectAll();
  Type(name, QStringLiteral("Zo\u00EB"));
  EXPECT_EQ(dialog.GetOptionValue(3), "Zo\xEB");
  EXPECT_EQ(Find<QLabel>(dialog, "lblHint").text(), QString());
  Type(name, QStringLiteral("\u0416"));
  EXPECT_EQ(dialog.GetOptionValue(3), "Zo\xEB");
  EXPECT_NE(Find<QLabel>(dialog, "lblHint").text(), QString());
}

TEST(OptionsDialog, SaysWhichValuesTheFileWouldCut) {
  ScriptedPrompts prompts;
  frmOptions dialog(prompts);
  const QLabel& hint = Find<QLabel>(dialog, "lblHint");
  dialog.SetOptionValue(1, "/a,b");
  dialog.SetOptionValue(5, "x,");
  EXPECT_TRUE(hint.text().startsWith(
      QStringLiteral("Default working directory, Web page: ")));
  dialog.SetOptionValue(1, "/ab");
  EXPECT_TRUE(hint.text().startsWith(QStringLiteral("Web page: ")));
  dialog.SetOptionValue(5, "x");
  EXPECT_EQ(hint.text(), QString());
}

TEST(OptionsDialog, SaysThatWithoutANameNothingOfTheAuthorIsWritten) {
  ScriptedPrompts prompts;
  frmOptions dialog(prompts);
  const QLabel& hint = Find<QLabel>(dialog, "lblNoName");
  for (const int index : {4, 5}) {
    EXPECT_EQ(hint.text(), QString());
    dialog.SetOptionValue(index, "x");
    EXPECT_TRUE(
        hint.text().startsWith(QStringLiteral("Without a name neither")));
    dialog.SetOptionValue(3, "Maker");
    EXPECT_EQ(hint.text(), QString());
    dialog.SetOptionValue(index, "");
    dialog.SetOptionValue(3, "");
  }
}

class OptionsSearch : public testing::Test {
 protected:
  frmOpen& Browse(int index) {
    dialog_.show();
    Press(dialog_, qPrintable(QStringLiteral("cmdSearch_%1").arg(index)));
    return Find<frmOpen>(dialog_, "frmOpen");
  }

  TestFolder folder_;
  ScriptedPrompts prompts_;
  frmOptions dialog_{prompts_};
};

TEST_F(OptionsSearch, EachButtonFillsItsField) {
  const char* titles[] = {"Set Q3 folder", "Set working folder",
                          "Set WinZip folder"};
  fs::create_directory(folder_ / "sub");
  for (int index = 0; index < 3; ++index) {
    dialog_.SetOptionValue(index, folder_.path().string());
    frmOpen& browser = Browse(index);
    EXPECT_EQ(browser.windowTitle().toStdString(), titles[index]);
    EXPECT_TRUE(browser.isModal());
    EXPECT_EQ(browser.Choice().folder, folder_.path());
    EXPECT_FALSE(Find<QListWidget>(browser, "filFile").isVisible());
    // The first line leads up, the second is the folder.
    auto& folders = Find<QListWidget>(browser, "dirFolder");
    QTest::keyClick(&folders, Qt::Key_Down);
    QTest::keyClick(&folders, Qt::Key_Return);
    EXPECT_TRUE(browser.isVisible());
    Press(browser, "cmdOK");
    EXPECT_EQ(dialog_.GetOptionValue(index), (folder_ / "sub").string());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(dialog_.findChildren<frmOpen*>(), IsEmpty());
  }
  EXPECT_TRUE(dialog_.isVisible());
}

TEST_F(OptionsSearch, ModesAreThoseOfTheBrowserAndCancelChangesNothing) {
  for (int mode = -1; mode < 10; ++mode) {
    dialog_.SetFolderFromBrowser(std::to_string(mode), mode);
  }
  EXPECT_EQ(dialog_.GetOptionValue(0), "6");
  EXPECT_EQ(dialog_.GetOptionValue(1), "8");
  EXPECT_EQ(dialog_.GetOptionValue(2), "7");
  // A folder that is not there: the browser begins at the root.
  frmOpen& browser = Browse(0);
  EXPECT_EQ(browser.Choice().folder, QDir::rootPath().toStdString());
  Press(browser, "cmdCancel");
  EXPECT_EQ(dialog_.GetOptionValue(0), "6");
}

TEST(ModelDialog, TakesANameOnly) {
  ScriptedPrompts prompts;
  frmModelDialog dialog(prompts);
  dialog.show();
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Add model"));
  QTest::keyClick(&dialog, Qt::Key_Return);
  EXPECT_THAT(prompts.log, ElementsAre("Error: No name is bad name"));
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_FALSE(dialog.CreatesRedAndBlue());
  auto& name = Find<QLineEdit>(dialog, "txtName");
  Type(name, QStringLiteral("n\u0416\u00E9"));
  Find<QCheckBox>(dialog, "chkRedBlue").click();
  QTest::keyClick(&name, Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.Name(), "n\xE9");
  EXPECT_TRUE(dialog.CreatesRedAndBlue());
}

TEST(SearchWindow, CountsAndCanBeCancelledWhileItsOwnerIsDisabled) {
  QWidget owner;
  frmSearchBaseQ3 window(&owner);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Please stand by"));
  EXPECT_EQ(Find<QLabel>(window, "lblSearch").text(),
            QStringLiteral("Browising BaseQ3..."));
  owner.show();
  window.show();
  owner.setEnabled(false);
  EXPECT_FALSE(window.isModal());
  const auto& bar = Find<QProgressBar>(window, "barProgress");
  EXPECT_EQ(bar.maximum(), 0);
  window.ShowProgress(0, 3000);
  window.ShowProgress(3000, 3000);
  EXPECT_EQ(bar.value(), 3000);
  EXPECT_EQ(Find<QLabel>(window, "lblProgress").text(),
            QStringLiteral("3000 of 3000 packages"));
  EXPECT_FALSE(window.WasCancelled());
  // What runs has to see it before the window may go.
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_TRUE(window.WasCancelled());
  EXPECT_TRUE(window.isVisible());
  frmSearchBaseQ3 second(&owner);
  second.show();
  Press(second, "cmdCancel");
  EXPECT_TRUE(second.WasCancelled());
}

/// What a label or button shows is whole.
void ExpectNothingCut(QWidget& dialog) {
  SCOPED_TRACE(dialog.windowTitle().toStdString());
  EXPECT_LE(dialog.sizeHint().width(), WithThisFont(1024));
  EXPECT_LE(dialog.sizeHint().height(), 700);
  dialog.show();
  dialog.resize(dialog.minimumSizeHint());
  QApplication::processEvents();
  for (QWidget* const widget : dialog.findChildren<QWidget*>()) {
    const auto* const label = qobject_cast<QLabel*>(widget);
    if (label == nullptr && qobject_cast<QAbstractButton*>(widget) == nullptr) {
      continue;
    }
    if (!widget->isVisible()) continue;
    EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
        << widget->objectName().toStdString();
    const int height = label != nullptr && label->wordWrap()
                           ? label->heightForWidth(label->width())
                           : widget->minimumSizeHint().height();
    EXPECT_GE(widget->height(), height) << widget->objectName().toStdString();
  }
}

TEST(Dialogs, FitTheScreenAndCutNothing) {
  ScriptedPrompts prompts;
  const BotList bots = BotList::Standard();
  for (int kind = 0; kind <= 8; ++kind) {
    frmOpen dialog({.kind = static_cast<OpenKind>(kind),
                    .folder = "/",
                    .options = {},
                    .bots = &bots,
                    .bot_name = QStringLiteral("Ash")},
                   prompts);
    ExpectNothingCut(dialog);
  }
  frmOptions options(prompts);
  for (int index = 0; index < 6; ++index) options.SetOptionValue(index, ",");
  ExpectNothingCut(options);
  frmModelDialog model(prompts);
  ExpectNothingCut(model);
  frmSearchBaseQ3 search;
  ExpectNothingCut(search);
  frmAbout about;
  ExpectNothingCut(about);
}

}  // namespace
}  // namespace fragsmith
