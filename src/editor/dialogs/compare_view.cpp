#include "editor/dialogs/compare_view.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <utility>

#include "editor/toolkit/scroll_keeper.h"

namespace fragsmith {
namespace {

/// Gives a row the height that its texts need when they are broken: a tree
/// leaves the width of its columns out of account. What the values are of
/// keeps its distance from them.
class WrappingDelegate : public QStyledItemDelegate {
 public:
  explicit WrappingDelegate(QTreeView* view)
      : QStyledItemDelegate(view), view_(view) {}

  QSize sizeHint(const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override {
    QStyleOptionViewItem bounded = option;
    constexpr int kRoom = 4;
    QSize room(0, kRoom);
    if (index.column() == DifferencesModel::kWhat) {
      room.setWidth(2 * option.fontMetrics.averageCharWidth());
    } else {
      bounded.rect = QRect(0, 0, view_->columnWidth(index.column()), 1);
    }
    return QStyledItemDelegate::sizeHint(bounded, index) + room;
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option,
                       const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!index.data(DifferencesModel::kIsDimRole).toBool()) return;
    option->palette.setBrush(QPalette::Text,
                             option->palette.brush(QPalette::PlaceholderText));
  }

 private:
  QTreeView* view_;
};

bool IsInRows(const QModelIndex& index, const QModelIndex& parent, int start,
              int end) {
  for (QModelIndex at = index; at.isValid(); at = at.parent()) {
    if (at.parent() == parent) return start <= at.row() && at.row() <= end;
  }
  return false;
}

}  // namespace

CompareView::CompareView(Bot other, const QString& other_title, QWidget* parent)
    : QTreeView(parent),
      bots_(new DifferencesModel(std::move(other), other_title, this)),
      rows_(new DifferencesFilter(*bots_, this)) {
  setModel(rows_);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setWordWrap(true);
  setItemDelegate(new WrappingDelegate(this));
  header()->setStretchLastSection(false);
  header()->setSectionsMovable(false);
  header()->setSectionResizeMode(DifferencesModel::kWhat,
                                 QHeaderView::ResizeToContents);
  for (const int column :
       {DifferencesModel::kThisBot, DifferencesModel::kOtherBot}) {
    header()->setSectionResizeMode(column, QHeaderView::Stretch);
  }
  connect(header(), &QHeaderView::sectionResized, this,
          &QTreeView::doItemsLayout, Qt::QueuedConnection);
}

void CompareView::ShowBot(const Bot& bot) {
  ChangeRows([this, &bot] { bots_->ShowBot(bot); });
}

void CompareView::SetOnlyDifferences(bool is_only) {
  ChangeRows([this, is_only] { rows_->SetOnlyDifferences(is_only); });
}

QModelIndex CompareView::Current() const {
  return rows_->mapToSource(currentIndex());
}

QModelIndexList CompareView::Selected() const {
  QModelIndexList rows;
  for (const QModelIndex& row : selectionModel()->selectedRows()) {
    rows << rows_->mapToSource(row);
  }
  return rows;
}

void CompareView::ChangeRows(const std::function<void()>& change) {
  {
    const QSignalBlocker silence(this);
    const bool had_current = currentIndex().isValid();
    has_lost_current_ = !had_current;
    {
      const ScrollKeeper scroll(*this);
      change();
      QModelIndex current = currentIndex();
      if (!current.isValid()) current = rows_->index(0, 0);
      // A group comes into the place of a row with its first one.
      while (has_lost_current_ && isExpanded(current) &&
             rows_->hasChildren(current)) {
        current = rows_->index(0, 0, current);
      }
      const bool is_selected = selectionModel()->hasSelection();
      selectionModel()->setCurrentIndex(
          current, is_selected ? QItemSelectionModel::NoUpdate
                               : QItemSelectionModel::ClearAndSelect |
                                     QItemSelectionModel::Rows);
    }
    // To scroll to a row would open the group that it is closed in.
    if (!visualRect(currentIndex()).isEmpty()) scrollTo(currentIndex());
    // The heading of the very first row would stay out of sight.
    if (!had_current) scrollToTop();
  }
  emit SelectionShown();
}

void CompareView::currentChanged(const QModelIndex& current,
                                 const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  emit SelectionShown();
}

void CompareView::selectionChanged(const QItemSelection& selected,
                                   const QItemSelection& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  emit SelectionShown();
}

void CompareView::rowsInserted(const QModelIndex& parent, int start, int end) {
  QTreeView::rowsInserted(parent, start, end);
  OpenGroups(parent, start, end);
}

void CompareView::OpenGroups(const QModelIndex& parent, int start, int end) {
  for (int row = start; row <= end; ++row) {
    const QModelIndex index = rows_->index(row, 0, parent);
    if (!rows_->hasChildren(index)) continue;
    setFirstColumnSpanned(row, parent, true);
    expand(index);
    OpenGroups(index, 0, rows_->rowCount(index) - 1);
  }
}

void CompareView::rowsAboutToBeRemoved(const QModelIndex& parent, int start,
                                       int end) {
  if (IsInRows(currentIndex(), parent, start, end)) {
    has_lost_current_ = true;
    QModelIndex next = rows_->index(end + 1, 0, parent);
    for (QModelIndex above = parent; !next.isValid() && above.isValid();
         above = above.parent()) {
      next = above.siblingAtRow(above.row() + 1);
    }
    if (!next.isValid()) {
      next = parent;
      int before = start - 1;
      while (before >= 0) {
        next = rows_->index(before, 0, next);
        before = isExpanded(next) ? rows_->rowCount(next) - 1 : -1;
      }
    }
    selectionModel()->setCurrentIndex(next.siblingAtColumn(0),
                                      QItemSelectionModel::NoUpdate);
  }
  QTreeView::rowsAboutToBeRemoved(parent, start, end);
}

}  // namespace fragsmith
