#ifndef FRAGSMITH_EDITOR_CONTROLS_FINDINGS_VIEW_H_
#define FRAGSMITH_EDITOR_CONTROLS_FINDINGS_VIEW_H_

#include <QListView>
#include <cstddef>
#include <functional>
#include <vector>

#include "checks/finding.h"
#include "editor/controls/finding_delegate.h"
#include "editor/models/findings_model.h"

namespace fragsmith {

/// A list of findings. Many of one kind stand in one row, until the user
/// unfolds them with a double click or the right arrow key. What can be put
/// right has a button in its row, which the space bar presses.
class FindingsView : public QListView {
  Q_OBJECT

 public:
  explicit FindingsView(QWidget* parent = nullptr);

  /// What was selected stays so where it is still there, and what is in sight
  /// stays in its place.
  void ShowFindings(const std::vector<Finding>& findings);

  void SetOfFilesAlone() { model_->SetOfFilesAlone(); }

  const std::vector<Finding>& findings() const { return model_->findings(); }

  /// Without the buttons, for a list that mends nothing.
  void HideButtons() { setItemDelegate(new QStyledItemDelegate(this)); }

  /// The selected one, of a folded row the first; null for none.
  const Finding* Selected() const;

  /// How many there are of the kind of the selected one, when they are so many
  /// that they can stand in one row; otherwise 0.
  std::size_t FoldableCount() const;
  bool IsFolded() const;
  /// Unfolds the kind of the selected finding, or folds it again.
  void Fold(bool is_folded);

  /// Does what the button of the selected row does.
  void PressSelected();

 signals:
  /// Another finding is selected, or the selected one was folded.
  void SelectionShown();
  /// The button of a row was pressed that stands for one finding.
  void MendPressed(const fragsmith::Finding& finding);
  /// The same where it stands for all of a kind.
  void MendKindPressed(std::string_view id);

 protected:
  void currentChanged(const QModelIndex& current,
                      const QModelIndex& previous) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int start,
                            int end) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  void ChangeRows(const std::function<void()>& change);

  /// The row whose button is there; invalid for none.
  QModelIndex ButtonAt(const QPoint& point) const;
  void Press(const QModelIndex& index);

  FindingsModel* model_;
  FindingDelegate* delegate_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_FINDINGS_VIEW_H_
