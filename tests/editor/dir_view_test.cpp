#include "editor/controls/dir_view.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "support/files.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;

class DirViewTest : public testing::Test {
 protected:
  DirViewTest() {
    folder_.Write("bots/Sarge_C.C", "");
    folder_.Write("bots/anarki_c.c", "");
    folder_.Write("bots/anarki_w.c", "");
    folder_.Write("bots/deep_c.c/inner_c.c", "");
    folder_.Write("Zoo/.hidden/x", "");
    view_.SetFilter("_c.c");
    view_.SetFolder(folder_ / "bots");
  }

  std::vector<std::string> Rows(const QListWidget& list) const {
    std::vector<std::string> rows;
    rows.reserve(static_cast<std::size_t>(list.count()));
    for (int row = 0; row < list.count(); ++row) {
      rows.push_back(list.item(row)->text().toStdString());
    }
    return rows;
  }

  TestFolder folder_;
  ScriptedPrompts prompts_;
  DirView view_{prompts_};
  QListWidget& folders_ = *view_.findChild<QListWidget*>("dirFolder");
  QListWidget& files_ = *view_.findChild<QListWidget*>("filFile");
  QComboBox& drives_ = *view_.findChild<QComboBox*>("drvDrive");
  QLineEdit& path_ = *view_.findChild<QLineEdit*>("txtFolder");
};

using Strings = std::vector<std::string>;

TEST_F(DirViewTest, ListsFilesOfTheFilterIgnoringCase) {
  EXPECT_EQ(Rows(files_), (Strings{"anarki_c.c", "Sarge_C.C"}));
  EXPECT_EQ(Rows(folders_), (Strings{"..", "deep_c.c"}));
  EXPECT_EQ(path_.text().toStdString(), Utf8FromPath(folder_ / "bots"));
  view_.SetFilter("_w.c");
  EXPECT_EQ(Rows(files_), Strings{"anarki_w.c"});
  view_.SetFilter("_t.c");
  EXPECT_EQ(Rows(files_), Strings{});
}

TEST_F(DirViewTest, ChoosesAFileOnlyWhenTheUserMarksOne) {
  QSignalSpy chosen(&view_, &DirView::FileChosen);
  QSignalSpy activated(&view_, &DirView::FileActivated);
  view_.show();
  files_.setFocus();
  EXPECT_EQ(view_.ChosenFile(), std::nullopt);
  QTest::mouseClick(files_.viewport(), Qt::LeftButton, {},
                    files_.visualItemRect(files_.item(1)).center());
  EXPECT_EQ(chosen.count(), 1);
  EXPECT_EQ(view_.ChosenFile(), folder_ / "bots/Sarge_C.C");
  QTest::keyClick(&files_, Qt::Key_Up);
  QTest::keyClick(&files_, Qt::Key_Return);
  EXPECT_EQ(chosen.count(), 2);
  EXPECT_EQ(activated.count(), 1);
  EXPECT_EQ(view_.ChosenFile(), folder_ / "bots/anarki_c.c");
  view_.ClearChoice();
  EXPECT_EQ(view_.ChosenFile(), std::nullopt);
  view_.SetFolder(folder_ / "Zoo");
  EXPECT_EQ(view_.ChosenFile(), std::nullopt);
  EXPECT_EQ(chosen.count(), 2);
}

TEST_F(DirViewTest, WalksThroughFoldersByKeyboardAndMouse) {
  // Enter on "..", then on Zoo, behind the folder that was left.
  QTest::keyClick(&folders_, Qt::Key_Return);
  EXPECT_EQ(view_.Folder(), folder_.path());
  EXPECT_EQ(Rows(folders_), (Strings{"..", "bots", "Zoo"}));
  EXPECT_EQ(folders_.currentItem()->text(), QString("bots"));
  QTest::keyClick(&folders_, Qt::Key_Down);
  QTest::keyClick(&folders_, Qt::Key_Enter);
  EXPECT_EQ(view_.Folder(), folder_ / "Zoo");
  EXPECT_EQ(Rows(folders_), (Strings{"..", ".hidden"}));
  QTest::keyClick(&folders_, Qt::Key_Backspace);
  EXPECT_EQ(view_.Folder(), folder_.path());

  view_.show();
  const QPoint bots = folders_.visualItemRect(folders_.item(1)).center();
  QTest::mouseClick(folders_.viewport(), Qt::LeftButton, {}, bots);
  QTest::mouseDClick(folders_.viewport(), Qt::LeftButton, {}, bots);
  EXPECT_EQ(view_.Folder(), folder_ / "bots");

  path_.setText("../Zoo/.hidden/");
  QTest::keyClick(&path_, Qt::Key_Return);
  EXPECT_EQ(view_.Folder(), folder_ / "Zoo/.hidden");
  path_.setText("nowhere");
  QTest::keyClick(&path_, Qt::Key_Return);
  EXPECT_EQ(view_.Folder(), folder_ / "Zoo/.hidden");
  view_.SetFolder(view_.Folder());
}

TEST_F(DirViewTest, ShowsTheNearestFolderThatExists) {
  view_.SetFolder(folder_ / "Zoo/gone/deeper/");
  EXPECT_EQ(view_.Folder(), folder_ / "Zoo");
  const fs::path root = fs::absolute("/");
  view_.SetFolder(root);
  EXPECT_EQ(view_.Folder(), root);
  QTest::keyClick(&folders_, Qt::Key_Backspace);
  EXPECT_EQ(view_.Folder(), root);
}

#ifndef _WIN32
TEST_F(DirViewTest, EntersFoldersWhoseNamesAreNoUnicode) {
  const fs::path odd = folder_.path() / "Zoo" / "b\xF6se";
  folder_.Write("Zoo/b\xF6se/\xFC_c.c", "");
  view_.SetFolder(odd.parent_path());
  folders_.setCurrentRow(2);
  QTest::keyClick(&folders_, Qt::Key_Return);
  EXPECT_EQ(view_.Folder(), odd);
  files_.setCurrentRow(0);
  EXPECT_EQ(view_.ChosenFile(), odd / "\xFC_c.c");
  // The path box cannot say it, but Enter there still reads it anew.
  folder_.Write("Zoo/b\xF6se/new_c.c", "");
  QTest::keyClick(&path_, Qt::Key_Return);
  EXPECT_EQ(view_.Folder(), odd);
  EXPECT_EQ(files_.count(), 2);
}
#endif

TEST_F(DirViewTest, TellsOfADriveThatCannotBeRead) {
  const fs::path gone = folder_ / "gone";
  view_.SetDrives({folder_.path(), gone, folder_ / "Zoo"});
  view_.show();
  EXPECT_EQ(drives_.currentIndex(), 0) << "the drive that holds the folder";
  drives_.setFocus();
  QTest::keyClick(&drives_, Qt::Key_Down);
  ASSERT_EQ(prompts_.messages.size(), 1U);
  EXPECT_EQ(prompts_.messages[0].title, "Disk error");
  EXPECT_EQ(prompts_.messages[0].text,
            "Can't access drive " + Utf8FromPath(gone));
  EXPECT_EQ(prompts_.messages[0].icon, MessageIcon::kInformation);
  EXPECT_EQ(view_.Folder(), folder_ / "bots");
  EXPECT_EQ(drives_.currentIndex(), 0);
  QTest::keyClick(&drives_, Qt::Key_End);
  EXPECT_EQ(view_.Folder(), folder_ / "Zoo");
  EXPECT_EQ(drives_.currentIndex(), 2) << "the nearest drive above";
  EXPECT_EQ(prompts_.messages.size(), 1U);
}

TEST_F(DirViewTest, ShowsDrivesWhereThereAreSeveral) {
  view_.show();
  view_.SetDrives({folder_.path()});
  EXPECT_FALSE(drives_.isVisible());
  view_.SetDrives({folder_.path(), folder_ / "Zoo"});
  EXPECT_TRUE(drives_.isVisible());
}

TEST_F(DirViewTest, LeadsToThePlacesThatAreThere) {
  const auto button = [this](const char* name) {
    return view_.findChild<QToolButton*>(QLatin1String(name));
  };
  EXPECT_EQ(button("cmdPlaceGame"), nullptr);
  EXPECT_EQ(button("cmdPlaceRecent"), nullptr);
  view_.SetPlaces({.game = folder_ / "Zoo",
                   .working = folder_ / "gone",
                   .recent = {folder_ / "bots/deep_c.c", folder_ / "gone",
                              folder_.path()}});
  EXPECT_EQ(button("cmdPlaceWorking"), nullptr);
  view_.show();
  button("cmdPlaceGame")->setFocus();
  QTest::keyClick(button("cmdPlaceGame"), Qt::Key_Space);
  EXPECT_EQ(view_.Folder(), folder_ / "Zoo");
  EXPECT_EQ(Rows(folders_), (Strings{"..", ".hidden"}));
  const QList<QAction*> recent = button("cmdPlaceRecent")->menu()->actions();
  ASSERT_EQ(recent.size(), 2);
  recent.front()->trigger();
  EXPECT_EQ(view_.Folder(), folder_ / "bots/deep_c.c");
  EXPECT_EQ(Rows(files_), Strings{"inner_c.c"});
  EXPECT_NE(button("cmdPlaceHome"), nullptr);
}

TEST_F(DirViewTest, HidesTheFilesWhereAFolderIsWanted) {
  view_.SetFilesVisible(false);
  view_.show();
  EXPECT_FALSE(files_.isVisible());
  EXPECT_TRUE(folders_.isVisible());
}

}  // namespace
}  // namespace fragsmith
