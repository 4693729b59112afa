#ifndef FRAGSMITH_EDITOR_CONTROLS_FINDINGS_VIEW_H_
#define FRAGSMITH_EDITOR_CONTROLS_FINDINGS_VIEW_H_

#include <QListWidget>
#include <cstddef>
#include <set>
#include <string_view>
#include <vector>

#include "checks/finding.h"

namespace fragsmith {

/// A list of findings. Many of one kind stand in one row, until the user
/// unfolds them with a double click or the right arrow key.
class FindingsView : public QListWidget {
  Q_OBJECT

 public:
  explicit FindingsView(QWidget* parent = nullptr);

  /// What was selected stays so where it is still there.
  void ShowFindings(const std::vector<Finding>& findings);

  const std::vector<Finding>& findings() const { return findings_; }

  /// The selected one, of a folded row the first; null for none.
  const Finding* Selected() const;

  /// How many there are of the kind of the selected one, when they are so many
  /// that they can stand in one row; otherwise 0.
  std::size_t FoldableCount() const;
  bool IsFolded() const;
  /// Unfolds the kind of the selected finding, or folds it again.
  void Fold(bool is_folded);

 signals:
  /// Another finding is selected, or the selected one was folded.
  void SelectionShown();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void FillRows(const Finding& selected);

  std::vector<Finding> findings_;
  std::vector<std::size_t> rows_;  ///< The finding that each row shows.
  std::set<std::string_view> unfolded_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_FINDINGS_VIEW_H_
