#include "editor/pages/remark_delegate.h"

#include <QPainter>
#include <utility>

#include "editor/toolkit/contrast.h"

namespace fragsmith {
namespace {

bool IsFaint(const QModelIndex& index) {
  return !index.flags().testFlag(Qt::ItemIsEnabled) ||
         index.data(kFaintRole).toBool();
}

/// The fainter, the nearer to the ground, as far as it can be read.
QColor FaintText(const QPalette& palette) {
  return FaintestReadable(palette.color(QPalette::Active, QPalette::Text),
                          palette.color(QPalette::Active, QPalette::Base));
}

}  // namespace

RemarkDelegate::RemarkDelegate(QString longest, QObject* parent)
    : QStyledItemDelegate(parent), longest_(std::move(longest)) {}

void RemarkDelegate::initStyleOption(QStyleOptionViewItem* option,
                                     const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (IsFaint(index)) {
    option->palette.setColor(QPalette::Text, FaintText(option->palette));
  }
}

void RemarkDelegate::paint(QPainter* painter,
                           const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  const int gap = option.fontMetrics.averageCharWidth();
  const QRect place = option.rect.adjusted(
      option.fontMetrics.horizontalAdvance(longest_) + 3 * gap, 0, -gap, 0);
  const bool is_selected = (option.state & QStyle::State_Selected) != 0;
  painter->save();
  painter->setPen(is_selected ? option.palette.color(QPalette::HighlightedText)
                  : IsFaint(index)
                      ? FaintText(option.palette)
                      : option.palette.color(QPalette::PlaceholderText));
  painter->drawText(
      place, Qt::AlignLeft | Qt::AlignVCenter,
      option.fontMetrics.elidedText(index.data(kRemarkRole).toString(),
                                    Qt::ElideRight, place.width()));
  painter->restore();
}

}  // namespace fragsmith
