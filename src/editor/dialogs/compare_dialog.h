#ifndef FRAGSMITH_EDITOR_DIALOGS_COMPARE_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_COMPARE_DIALOG_H_

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QString>
#include <array>
#include <cstddef>
#include <functional>
#include <vector>

#include "editor/dialogs/compare_view.h"
#include "editor/state/current_bot.h"
#include "session/bot_difference.h"

namespace fragsmith {

/// The current bot beside another one: tells in what they differ, and copies
/// from the other one into the current one. Each copy is an edit.
class frmCompare : public QDialog {
  Q_OBJECT

 public:
  /// The title is what the user calls the other bot: "Average".
  frmCompare(CurrentBot& current, Bot other, const QString& other_title,
             QWidget* parent = nullptr);

 private:
  void MakeList();
  QLayout* MakeTop();
  QLayout* MakeButtonRows();
  QPushButton* MakeButton(const QString& text, const QString& name,
                          const std::function<void()>& press);

  /// Shows the bots as they are now; the list stays where it is.
  void ShowBots();
  void ShowButtons();

  /// The group of the current row.
  int CurrentGroup() const;
  const std::vector<BotDifference>& differences() const {
    return list_->bots().differences();
  }

  // Places in the differences, in their order.
  std::vector<std::size_t> WhichFit(
      const std::function<bool(const BotDifference&)>& fits) const;
  std::vector<std::size_t> WhichAreAtLevel(Level level) const;
  std::vector<std::size_t> WhichAreIn(int group) const;
  /// A selected group stands for all that is in it.
  std::vector<std::size_t> WhichAreSelected() const;

  void CopySelected();
  void Copy(const QString& what, const std::vector<std::size_t>& indices,
            const BotPlace& shown = {});

  CurrentBot& current_;
  const QString other_title_;
  /// What was done before the dialog came is not taken back in it.
  const int first_step_;

  QCheckBox* only_differences_;
  QLabel* count_;
  CompareView* list_;
  QPushButton* selected_ = nullptr;
  std::array<QPushButton*, kLevels.size()> levels_{};
  QPushButton* chats_ = nullptr;
  QPushButton* page_ = nullptr;
  QPushButton* undo_ = nullptr;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_COMPARE_DIALOG_H_
