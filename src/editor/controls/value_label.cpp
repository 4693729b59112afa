#include "editor/controls/value_label.h"

#include <QPainter>
#include <QStyle>

namespace fragsmith {

ValueLabel::ValueLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void ValueLabel::ShowText(const QString& text) {
  setText(text);
  const bool is_cut =
      fontMetrics().horizontalAdvance(text) > sizeHint().width();
  setToolTip(is_cut ? text.toHtmlEscaped() : QString());
}

QSize ValueLabel::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const QMargins margins = contentsMargins();
  return {metrics.horizontalAdvance(QStringLiteral("0.0000")),
          metrics.height() + margins.top() + margins.bottom()};
}

void ValueLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRect place = contentsRect();
  style()->drawItemText(
      &painter, place, Qt::AlignRight | Qt::AlignVCenter, palette(),
      isEnabled(),
      fontMetrics().elidedText(text(), Qt::ElideRight, place.width()),
      foregroundRole());
}

}  // namespace fragsmith
