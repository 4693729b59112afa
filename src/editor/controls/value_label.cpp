#include "editor/controls/value_label.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace fragsmith {
namespace {

/// Texts up to this length, "0.65" and "1000", are never cut.
constexpr int kPlainTextLength = 4;

}  // namespace

ValueLabel::ValueLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void ValueLabel::ShowText(const QString& text) {
  // Hundreds of labels are filled before the first paint, mostly with the
  // text that they have.
  if (text == this->text()) return;
  setText(text);
  const bool is_cut = text.size() > kPlainTextLength &&
                      fontMetrics().horizontalAdvance(text) > Width();
  if (is_cut || !toolTip().isEmpty()) {
    setToolTip(is_cut ? text.toHtmlEscaped() : QString());
  }
}

int ValueLabel::Width() const {
  if (width_ == 0) {
    width_ = fontMetrics().horizontalAdvance(QStringLiteral("0.0000"));
  }
  return width_;
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
  const QRect place = contentsRect();
  style()->drawItemText(
      &painter, place, Qt::AlignRight | Qt::AlignVCenter, palette(),
      isEnabled(),
      fontMetrics().elidedText(text(), Qt::ElideRight, place.width()),
      foregroundRole());
}

}  // namespace fragsmith
