#ifndef FRAGSMITH_TESTS_EDITOR_WINDOW_FIXTURE_H_
#define FRAGSMITH_TESTS_EDITOR_WINDOW_FIXTURE_H_

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <memory>
#include <utility>

#include "editor/frm_main.h"
#include "editor/state/program_state.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {

/// The whole window over a program folder of the test's own, with a script
/// in the place of the user at its boxes.
class WindowFixture : public testing::Test {
 protected:
  WindowFixture() { Open(); }

  void Open() {
    window_.reset();
    state_ = std::make_unique<ProgramState>(
        ProgramFolders{folder_.path(), folder_.path()}, prompts_,
        SeededRandom(1));
    window_ = std::make_unique<frmMain>(*state_);
    window_->show();
    window_->FinishStart();
    // All fields are in sight.
    Find<QAbstractButton>("cmdMore")->setChecked(true);
    // Shortcuts and the leaving of boxes need the window to be the active one.
    QApplication::setActiveWindow(window_.get());
    QCoreApplication::processEvents();
  }

  template <typename Widget>
  Widget* Find(const char* name) {
    auto* const found = window_->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) ADD_FAILURE() << "no " << name;
    return found;
  }

  void Choose(const char* name) {
    // A dialog that nobody expects would keep the test for ever.
    QTimer guard;
    QObject::connect(&guard, &QTimer::timeout, [name] {
      if (QWidget* const dialog = QApplication::activeModalWidget()) {
        ADD_FAILURE() << name << " waits for an answer";
        dialog->close();
      }
    });
    constexpr int kPatienceMilliseconds = 10'000;
    guard.start(kPatienceMilliseconds);
    Find<QAction>(name)->trigger();
  }

  /// Chooses an item that opens a dialog, and runs a function on that.
  template <typename Dialog, typename Function>
  void ChooseAndAnswer(const char* name, Function function) {
    bool is_answered = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&is_answered, function] {
      auto* const dialog =
          qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || std::exchange(is_answered, true)) return;
      function(*dialog);
    });
    timer.start(0);
    Choose(name);
    EXPECT_TRUE(is_answered) << name;
  }

  /// Types into a box in the place of what is there, and leaves it.
  void Type(const char* name, const char* text) {
    auto* const box = Find<QLineEdit>(name);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, QLatin1String(text));
    Find<QComboBox>("cmbRail")->setFocus();
    QCoreApplication::processEvents();
  }

  const Bot& bot() { return window_->current().bot(); }
  bool is_changed() { return window_->current().is_changed(); }

  /// Runs a function on the next modal dialog.
  template <typename Dialog, typename Function>
  void OnDialog(Function function) {
    QTimer::singleShot(0, qApp, [function] {
      auto* const dialog =
          qobject_cast<Dialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      function(*dialog);
    });
  }

  TestFolder folder_;
  ScriptedPrompts prompts_;
  std::unique_ptr<ProgramState> state_;
  std::unique_ptr<frmMain> window_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_EDITOR_WINDOW_FIXTURE_H_
