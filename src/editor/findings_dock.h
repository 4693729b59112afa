#ifndef FRAGSMITH_EDITOR_FINDINGS_DOCK_H_
#define FRAGSMITH_EDITOR_FINDINGS_DOCK_H_

#include <QDockWidget>
#include <QHBoxLayout>
#include <QToolButton>
#include <vector>

#include "checks/finding.h"
#include "editor/controls/findings_view.h"

namespace fragsmith {

/// What the game will do with the bot, as a list below the pages: a click goes
/// to the control, a button puts it right.
class FindingsDock : public QDockWidget {
  Q_OBJECT

 public:
  explicit FindingsDock(QWidget* parent = nullptr);

  /// The finding that was selected stays so where it is still there.
  void ShowFindings(const std::vector<Finding>& findings);

  /// Shows or hides the list; shown, it has the focus.
  void Toggle();

  /// Stands in the status bar: the counts, and a click shows the list.
  QToolButton* counter() { return counter_; }

  /// A picture beside the list; the dock takes it over.
  void SetPicture(QWidget* picture);

 signals:
  void GoTo(const FindingPlace& place);
  void MendWanted(const FindingPlace& place, const Mend& mend);

 private:
  void GoToSelected();
  void ShowMends();
  void ShowCounts();

  FindingsView* list_;
  QHBoxLayout* columns_;
  QHBoxLayout* mends_;
  QToolButton* counter_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_FINDINGS_DOCK_H_
