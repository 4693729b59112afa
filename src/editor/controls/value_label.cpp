#include "editor/controls/value_label.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <cmath>

namespace fragsmith {
namespace {

/// Texts up to this length, "0.65" and "1000", are never cut.
constexpr int kPlainTextLength = 4;

}  // namespace

ValueLabel::ValueLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  setCursor(Qt::IBeamCursor);
}

void ValueLabel::ShowText(const QString& text) {
  // Hundreds of labels are filled before the first paint, mostly with the
  // text that they have.
  if (text == this->text()) return;
  setText(text);
  const bool is_cut =
      text.size() > kPlainTextLength &&
      fontMetrics().horizontalAdvance(text) > Width() - RoomAtLeft();
  if (is_cut || !toolTip().isEmpty()) {
    setToolTip(is_cut ? text.toHtmlEscaped() : QString());
  }
}

int ValueLabel::RoomAtLeft() const { return fontMetrics().ascent(); }

int ValueLabel::Width() const {
  if (width_ == 0) {
    // Not the rounded width, by which a part of a pixel would cut the text.
    const QFontMetricsF metrics(font());
    width_ = static_cast<int>(std::ceil(
                 metrics.horizontalAdvance(QStringLiteral("0.000")))) +
             1 + RoomAtLeft();
  }
  return width_;
}

bool ValueLabel::event(QEvent* event) {
  if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
    update();
  }
  return QLabel::event(event);
}

void ValueLabel::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    emit Clicked();
  } else {
    event->ignore();
  }
}

void ValueLabel::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) width_ = 0;
  QLabel::changeEvent(event);
}

QSize ValueLabel::sizeHint() const {
  const QMargins margins = contentsMargins();
  return {Width(), fontMetrics().height() + margins.top() + margins.bottom()};
}

void ValueLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRect area =
      contentsRect().adjusted(keeps_room_ ? RoomAtLeft() : 0, 0, 0, 0);
  if (underMouse()) {
    const int height = fontMetrics().height();
    QColor line = palette().color(foregroundRole());
    line.setAlphaF(0.5F);
    painter.setPen(line);
    painter.drawLine(area.left(), area.center().y() + height / 2, area.right(),
                     area.center().y() + height / 2);
  }
  style()->drawItemText(
      &painter, area, Qt::AlignRight | Qt::AlignVCenter, palette(), isEnabled(),
      fontMetrics().elidedText(text(), Qt::ElideRight, area.width()),
      foregroundRole());
}

}  // namespace fragsmith
