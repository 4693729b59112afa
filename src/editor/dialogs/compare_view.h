#ifndef FRAGSMITH_EDITOR_DIALOGS_COMPARE_VIEW_H_
#define FRAGSMITH_EDITOR_DIALOGS_COMPARE_VIEW_H_

#include <QTreeView>
#include <functional>

#include "editor/models/differences_model.h"

namespace fragsmith {

/// Two bots side by side, by groups that can be closed.
class CompareView : public QTreeView {
  Q_OBJECT

 public:
  CompareView(Bot other, const QString& other_title, QWidget* parent);

  const DifferencesModel& bots() const { return *bots_; }

  // What was current, selected, closed and in sight stays so. Where the
  // current row goes, the one that follows it is current.
  void ShowBot(const Bot& bot);
  void SetOnlyDifferences(bool is_only);

  // Rows of bots().
  QModelIndex Current() const;
  QModelIndexList Selected() const;

 signals:
  /// Another row is current, or others are selected.
  void SelectionShown();

 protected:
  void currentChanged(const QModelIndex& current,
                      const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected,
                        const QItemSelection& deselected) override;
  void rowsInserted(const QModelIndex& parent, int start, int end) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int start,
                            int end) override;

 private:
  void ChangeRows(const std::function<void()>& change);
  void OpenGroups(const QModelIndex& parent, int start, int end);

  DifferencesModel* bots_;
  DifferencesFilter* rows_;
  bool has_lost_current_ = false;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_COMPARE_VIEW_H_
