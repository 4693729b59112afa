#include "editor/controls/finding_delegate.h"

#include <QAbstractScrollArea>
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

/// Before the button, which stands below the text of the row: that begins
/// behind the icon.
int RoomAtLeft(const QStyleOptionViewItem& row) {
  return row.decorationSize.width() + 2 * kGap;
}

/// In a row of this width. A text that is too long for one line takes more.
QSize ButtonSize(const QStyleOptionViewItem& row, const QModelIndex& index,
                 int row_width) {
  const QString text = TextOf(index);
  const int beside = row.fontMetrics.height();
  const int most = std::max(row_width - RoomAtLeft(row) - kGap, 3 * beside);
  const int wanted = row.fontMetrics.horizontalAdvance(text) + 2 * beside;
  const int width = std::min(wanted, most);
  const QRect lines = row.fontMetrics.boundingRect(
      QRect(0, 0, width - beside, 0), Qt::TextWordWrap, text);
  return {width, lines.height() + 3 * kGap};
}

}  // namespace

QRect FindingDelegate::ButtonIn(const QStyleOptionViewItem& row,
                                const QModelIndex& index) const {
  if (TextOf(index).isEmpty()) return {};
  const QSize size = ButtonSize(row, index, row.rect.width());
  return {QPoint(row.rect.left() + RoomAtLeft(row),
                 row.rect.bottom() - kGap - size.height()),
          size};
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
  button.fontMetrics = row.fontMetrics;
  button.palette = row.palette;
  button.state =
      QStyle::State_Enabled |
      (pressed_ == index ? QStyle::State_Sunken : QStyle::State_Raised);
  style.drawControl(QStyle::CE_PushButtonBevel, &button, painter);
  const int beside = row.fontMetrics.height() / 2;
  style.drawItemText(painter, area.adjusted(beside, 0, -beside, 0),
                     Qt::AlignCenter | Qt::TextWordWrap, button.palette, true,
                     TextOf(index), QPalette::ButtonText);
}

QSize FindingDelegate::sizeHint(const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  if (TextOf(index).isEmpty()) {
    size.rheight() += 2 * kGap;
    return size;
  }
  // The row is as wide as the view, which asks without a place.
  const auto* const view =
      qobject_cast<const QAbstractScrollArea*>(option.widget);
  const int width =
      view != nullptr ? view->viewport()->width() : option.rect.width();
  size.rheight() += ButtonSize(option, index, width).height() + 2 * kGap;
  return size;
}

}  // namespace fragsmith
