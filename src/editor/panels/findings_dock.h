#ifndef FRAGSMITH_EDITOR_PANELS_FINDINGS_DOCK_H_
#define FRAGSMITH_EDITOR_PANELS_FINDINGS_DOCK_H_

#include <QDockWidget>
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>
#include <optional>
#include <string_view>
#include <vector>

#include "checks/finding.h"
#include "editor/controls/findings_view.h"

namespace fragsmith {

/// What the game will do with the bot, as a list beside the pages: a click goes
/// to the control, a button in its row puts it right. What stands around the
/// list keeps its place and size, whatever is selected.
class FindingsDock : public QDockWidget {
  Q_OBJECT

 public:
  explicit FindingsDock(QWidget* parent = nullptr);

  /// The finding that was selected stays so where it is still there. A bot
  /// that is in no file yet can be made ready as a whole.
  void ShowFindings(const std::vector<Finding>& findings, bool is_in_no_file);

  /// The page whose findings can be mended together.
  void ShowPage(int page);

  /// Shows or hides the list; shown, it has the focus.
  void Toggle();

  /// Stands in the status bar: the counts, and a click shows the list.
  QToolButton* counter() { return counter_; }

 signals:
  void GoTo(const BotPlace& place);
  void MendWanted(const BotPlace& place, const Mend& mend);
  void MendKindWanted(std::string_view id);
  /// All that is safe, of one page or of the whole bot.
  void MendSafeWanted(std::optional<int> page);
  void MakeReadyWanted();

 private:
  void GoToSelected();
  /// What the buttons can do with the selected one.
  void ShowSelected();
  void ShowCounts();
  void ShowManyButtons();
  /// Of several mends one is chosen at the row.
  void MendOrAsk(const Finding& finding);
  QPushButton* AddButton(QBoxLayout* row, const char* name, const QString& text,
                         const QString& help);

  QBoxLayout* many_;  ///< Below each other where the list is narrow.
  QPushButton* ready_;
  QPushButton* safe_;
  QPushButton* safe_on_page_;
  FindingsView* list_;
  /// For those who cannot reach what is drawn in a row.
  QPushButton* mend_;
  QPushButton* fold_;
  int page_ = 0;
  QToolButton* counter_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PANELS_FINDINGS_DOCK_H_
