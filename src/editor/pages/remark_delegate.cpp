#include "editor/pages/remark_delegate.h"

#include <QPainter>
#include <utility>

namespace fragsmith {

RemarkDelegate::RemarkDelegate(QString longest, QObject* parent)
    : QStyledItemDelegate(parent), longest_(std::move(longest)) {}

void RemarkDelegate::paint(QPainter* painter,
                           const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  const int gap = option.fontMetrics.averageCharWidth();
  const QRect place = option.rect.adjusted(
      option.fontMetrics.horizontalAdvance(longest_) + 3 * gap, 0, -gap, 0);
  const bool is_selected = (option.state & QStyle::State_Selected) != 0;
  painter->save();
  painter->setPen(option.palette.color(
      is_selected ? QPalette::HighlightedText : QPalette::PlaceholderText));
  painter->drawText(
      place, Qt::AlignLeft | Qt::AlignVCenter,
      option.fontMetrics.elidedText(index.data(kRemarkRole).toString(),
                                    Qt::ElideRight, place.width()));
  painter->restore();
}

}  // namespace fragsmith
