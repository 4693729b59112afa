#ifndef FRAGSMITH_EDITOR_DIALOGS_COMPARE_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_COMPARE_DIALOG_H_

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QString>
#include <QTreeWidget>
#include <array>
#include <cstddef>
#include <functional>
#include <vector>

#include "checks/bot_difference.h"
#include "editor/current_bot.h"

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

  /// Shows the bots as they are now; the place in the list stays.
  void ShowBots();
  void FillList();
  void AddParameters(int group);
  void AddLines();
  QTreeWidgetItem* AddGroup(int group, QTreeWidgetItem* parent);
  /// The place is that of the difference; kNone where the bots are equal.
  void AddRow(int group, int place, const QStringList& texts,
              QTreeWidgetItem* parent);
  void ShowButtons();

  /// The group of the current row.
  int CurrentGroup() const;

  // Places in the differences, in their order.
  std::vector<std::size_t> WhichFit(
      const std::function<bool(const BotDifference&)>& fits) const;
  std::vector<std::size_t> WhichAreAtLevel(int level) const;
  std::vector<std::size_t> WhichAreIn(int group) const;
  /// A selected group stands for all that is in it.
  std::vector<std::size_t> WhichAreSelected() const;

  void CopySelected();
  void Copy(const QString& what, const std::vector<std::size_t>& places,
            const FindingPlace& shown = {});

  CurrentBot& current_;
  const Bot other_;
  const QString other_title_;
  /// What was done before the dialog came is not taken back in it.
  const int first_step_;
  /// Of the current bot, at the left, to the other one.
  std::vector<BotDifference> differences_;

  QCheckBox* only_differences_;
  QLabel* count_;
  QTreeWidget* list_;
  QPushButton* selected_ = nullptr;
  std::array<QPushButton*, kSkillLevels.size()> levels_{};
  QPushButton* chats_ = nullptr;
  QPushButton* page_ = nullptr;
  QPushButton* undo_ = nullptr;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_COMPARE_DIALOG_H_
