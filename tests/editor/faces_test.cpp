#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <string>

#include "editor/dialogs/faces_dialog.h"
#include "editor/models/faces_model.h"
#include "editor/state/face_store.h"
#include "support/files.h"
#include "tests/editor/window_fixture.h"

namespace fragsmith {
namespace {

/// A game with one package, and an unzip tool that finds the icons of all
/// skins but those that are called Gone, and notes each call.
class Faces : public WindowFixture {
 protected:
  Faces() {
    folder_.Write("game/quake3.exe", "");
    folder_.Write("game/baseq3/a.pk3", "");
    constexpr int kSide = 2;
    std::string icon = {0, 0, 2, 0,     0, 0,     0, 0,  0,
                        0, 0, 0, kSide, 0, kSide, 0, 24, 0x20};
    icon += std::string(kSide * kSide * 3, 'x');
    folder_.Write("tools/face.tga", icon);
    UseTool(
        "echo >>\"$(dirname \"$0\")/calls\"\n"
        "name=${3##*\\\\}\n"
        "case $name in *Gone*) exit 1 ;; esac\n"
        "cp \"$(dirname \"$0\")/face.tga\" \"$4/$name\"\n");
    state_->settings.Q3Baseq3 = BytesFromPath(folder_ / "game");
    state_->settings.WinZipDir = BytesFromPath(folder_ / "tools");
    state_->InitByValues();
  }

  void UseTool(const std::string& script) {
    folder_.WriteProgram("tools/wzunzip", "#!/bin/sh\n" + script);
  }

  void AddSkin(const std::string& model, const std::string& skin) {
    state_->lists.models.AddModelSkin(
        model, skin, "a.pk3",
        "models\\players\\" + model + "\\icon_" + skin + ".tga");
  }

  int Calls() {
    const std::string calls = folder_.Read("tools/calls");
    return static_cast<int>(std::ranges::count(calls, '\n'));
  }

  static QListView& List(const frmFaces& dialog) {
    return *dialog.findChild<QListView*>("lstFaces");
  }
  static QModelIndex Row(const frmFaces& dialog, int row) {
    return List(dialog).model()->index(row, 0);
  }
  static bool HasFace(const QModelIndex& index) {
    return index.data(Qt::DecorationRole).isValid();
  }
};

TEST_F(Faces, ReadsThoseInSightAndNoMore) {
  if (!kIsUnix) GTEST_SKIP() << "The unzip tool is a shell script.";
  state_->lists.models = {};
  for (int model = 0; model < 300; ++model) {
    AddSkin("M" + std::to_string(1000 + model), "default");
  }
  FaceStore store(*state_);
  frmFaces dialog(state_->lists.models, store, {}, window_.get());
  const QAbstractItemModelTester tester(List(dialog).model());
  dialog.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return HasFace(Row(dialog, 0)); }));
  QTest::qWait(300);
  EXPECT_FALSE(HasFace(Row(dialog, 299)));
  EXPECT_LT(Calls(), 150);
  EXPECT_EQ(Row(dialog, 7).data(Qt::AccessibleTextRole).toString(),
            QStringLiteral("M1007, skin Default"));

  List(dialog).scrollToBottom();
  EXPECT_TRUE(QTest::qWaitFor([&] { return HasFace(Row(dialog, 299)); }));
  // Those that were read stay.
  QTest::qWait(300);
  const int calls = Calls();
  List(dialog).scrollToTop();
  QTest::qWait(100);
  EXPECT_LT(Calls() - calls, 10);
}

TEST_F(Faces, GreysWhatTheGameLacksAndTellsWhy) {
  if (!kIsUnix) GTEST_SKIP() << "The unzip tool is a shell script.";
  state_->lists.models = {};
  AddSkin("Aaa", "default");
  AddSkin("Aaa", "Gone");
  state_->lists.models.AddModelSkin("Bbb", "default", "lost.pk3", "icon.tga");
  FaceStore store(*state_);
  frmFaces dialog(state_->lists.models, store, {}, window_.get());
  dialog.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return HasFace(Row(dialog, 2)); }));
  const auto about = [&](int row) {
    return Row(dialog, row).data(Qt::AccessibleDescriptionRole).toString();
  };
  EXPECT_EQ(about(0), QString());
  EXPECT_FALSE(Row(dialog, 0).data(Qt::ForegroundRole).isValid());
  EXPECT_TRUE(about(1).contains("not found"));
  EXPECT_TRUE(about(2).contains("package"));
  EXPECT_TRUE(Row(dialog, 2).data(Qt::ForegroundRole).isValid());

  // It is looked for again the next time.
  dialog.close();
  folder_.Write("game/baseq3/lost.pk3", "");
  frmFaces again(state_->lists.models, store, {}, window_.get());
  again.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return HasFace(Row(again, 2)); }));
  EXPECT_FALSE(Row(again, 2).data(Qt::ForegroundRole).isValid());
}

TEST_F(Faces, LetTheWindowLiveWhileTheToolWorks) {
  if (!kIsUnix) GTEST_SKIP() << "The unzip tool is a shell script.";
  state_->lists.models = {};
  AddSkin("Aaa", "default");
  AddSkin("Bbb", "default");
  UseTool("sleep 3\n: >\"$(dirname \"$0\")/done\"\n");
  FaceStore store(*state_);
  frmFaces dialog(state_->lists.models, store, {}, window_.get());
  QTimer::singleShot(100, &dialog, [&dialog] {
    auto* const filter = dialog.findChild<QLineEdit*>("txtFaceFilter");
    QTest::keyClicks(filter, "BB");
    EXPECT_EQ(List(dialog).model()->rowCount(), 1);
    QTest::keyClick(filter, Qt::Key_Return);
  });
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "tools/done"));
  EXPECT_EQ(dialog.Chosen(),
            (CatalogueSelection{.modelIndex = 1, .skinIndex = 0}));
  // What was given up is not taken for missing.
  EXPECT_EQ(store.Find(state_->lists.models.models()[0].Skins[0]), nullptr);
}

TEST_F(Faces, StayWithinTheirMemory) {
  if (!kIsUnix) GTEST_SKIP() << "The unzip tool is a shell script.";
  state_->lists.models = {};
  for (const char* const skin : {"a", "b", "c"}) AddSkin("Aaa", skin);
  const std::vector<SkinEntry>& skins = state_->lists.models.models()[0].Skins;
  constexpr int kTwoFaces = 2 * 2 * 2 * 4;
  FaceStore store(*state_, kTwoFaces);
  store.Read(skins[0], {});
  store.Read(skins[1], {});
  ASSERT_NE(store.Find(skins[0]), nullptr);
  store.Read(skins[2], {});
  EXPECT_NE(store.Find(skins[0]), nullptr);
  EXPECT_EQ(store.Find(skins[1]), nullptr) << "not looked at for longest";
  EXPECT_NE(store.Find(skins[2]), nullptr);
}

TEST_F(Faces, ChooseModelAndSkinInOneStep) {
  AddSkin("Zoe", "default");
  AddSkin("Zoe", "Night");
  state_->lists.models.SortCatalogue();
  window_->FillBotDataToForm();
  const Bot before = bot();
  OnDialog<frmFaces>([](frmFaces& dialog) {
    auto* const filter = dialog.findChild<QLineEdit*>("txtFaceFilter");
    QTest::keyClicks(filter, "none such");
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible()) << "nothing to choose";
    filter->clear();
    QTest::keyClicks(filter, "zoe");
    QTest::keyClick(filter, Qt::Key_Down);
    QTest::keyClick(&List(dialog), Qt::Key_Right);
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  Find<QPushButton>("cmdChooseFace")->click();
  EXPECT_EQ(bot().Text(kModelField), "Zoe");
  EXPECT_EQ(bot().Text(kSkinField), "Night");
  EXPECT_EQ(Find<QComboBox>("cmbSkin")->currentText(), QStringLiteral("Night"));
  window_->current().steps().undo();
  EXPECT_EQ(bot(), before);

  OnDialog<frmFaces>([](frmFaces& dialog) {
    List(dialog).setCurrentIndex(Row(dialog, 0));
    dialog.reject();
  });
  Find<QPushButton>("cmdChooseFace")->click();
  EXPECT_EQ(bot(), before);
}

}  // namespace
}  // namespace fragsmith
