#include "editor/controls/finding_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionButton>
#include <algorithm>

#include "editor/models/findings_model.h"

namespace fragsmith {
namespace {

constexpr int kGap = 4;

QStyle& StyleOf(const QStyleOptionViewItem& row) {
  return row.widget != nullptr ? *row.widget->style() : *QApplication::style();
}

QString TextOf(const QModelIndex& index) {
  return index.data(FindingsModel::kMendTextRole).toString();
}

/// Of the button and the gap above and below it.
int HeightBelow(const QStyleOptionViewItem& row) {
  return row.fontMetrics.height() + 5 * kGap;
}

}  // namespace

QRect FindingDelegate::ButtonIn(const QStyleOptionViewItem& row,
                                const QModelIndex& index) const {
  const QString text = TextOf(index);
  if (text.isEmpty()) return {};
  // Below the text of the row, which begins behind the icon.
  const int left = row.decorationSize.width() + 2 * kGap;
  const int wanted =
      row.fontMetrics.horizontalAdvance(text) + 2 * row.fontMetrics.height();
  const int height = HeightBelow(row) - 2 * kGap;
  return {row.rect.left() + left, row.rect.bottom() - kGap - height,
          std::min(wanted, row.rect.width() - left - kGap), height};
}

void FindingDelegate::paint(QPainter* painter,
                            const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  const QRect area = ButtonIn(option, index);
  if (area.isEmpty()) {
    QStyledItemDelegate::paint(painter, option, index);
    return;
  }
  QStyleOptionViewItem row = option;
  initStyleOption(&row, index);
  row.text.clear();
  row.icon = {};
  QStyle& style = StyleOf(row);
  style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
  QStyleOptionViewItem text = option;
  text.state &= ~(QStyle::State_MouseOver | QStyle::State_HasFocus);
  text.rect.setBottom(area.top() - kGap);
  QStyledItemDelegate::paint(painter, text, index);
  QStyleOptionButton button;
  button.rect = area;
  button.text = row.fontMetrics.elidedText(
      TextOf(index).replace(u'&', QLatin1String("&&")), Qt::ElideRight,
      area.width() - row.fontMetrics.height());
  button.fontMetrics = row.fontMetrics;
  button.palette = row.palette;
  button.state =
      QStyle::State_Enabled |
      (pressed_ == index ? QStyle::State_Sunken : QStyle::State_Raised);
  style.drawControl(QStyle::CE_PushButton, &button, painter);
}

QSize FindingDelegate::sizeHint(const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  size.rheight() += TextOf(index).isEmpty() ? 2 * kGap : HeightBelow(option);
  return size;
}

}  // namespace fragsmith
