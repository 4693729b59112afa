#include "editor/toolkit/scroll_keeper.h"

#include <QScrollBar>
#include <algorithm>

namespace fragsmith {

ScrollKeeper::ScrollKeeper(QAbstractItemView& view)
    : view_(view),
      is_at_top_(view.verticalScrollBar()->value() ==
                 view.verticalScrollBar()->minimum()) {
  if (!view.isVisible()) return;
  const QModelIndex current = view.currentIndex();
  for (int y = 0; y < view.viewport()->height();) {
    const QModelIndex index = view.indexAt(QPoint(1, y));
    if (!index.isValid()) break;
    const QRect row = view.visualRect(index);
    seen_.push_back({index, row.top()});
    if (index.siblingAtColumn(0) == current.siblingAtColumn(0)) {
      is_current_seen_ = true;
    }
    y = std::max(y, row.bottom()) + 1;
  }
}

ScrollKeeper::~ScrollKeeper() {
  if (!view_.isVisible()) return;
  const auto first =
      std::find_if(seen_.begin(), seen_.end(),
                   [](const Seen& row) { return row.index.isValid(); });
  if (is_at_top_) {
    view_.scrollToTop();
  } else if (first != seen_.end()) {
    view_.scrollTo(first->index, QAbstractItemView::PositionAtTop);
    if (view_.verticalScrollMode() == QAbstractItemView::ScrollPerPixel) {
      QScrollBar* const bar = view_.verticalScrollBar();
      bar->setValue(bar->value() - first->top);
    }
  }
  if (is_current_seen_ && view_.currentIndex().isValid()) {
    view_.scrollTo(view_.currentIndex());
  }
}

}  // namespace fragsmith
