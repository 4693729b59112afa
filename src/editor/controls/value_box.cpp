#include "editor/controls/value_box.h"

#include <QAccessible>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>
#include <algorithm>

#include "botfiles/value_format.h"
#include "editor/toolkit/severity_color.h"
#include "editor/toolkit/tool_tip.h"
#include "editor/toolkit/undo_keys.h"

namespace fragsmith {

ValueBox::ValueBox(ValueSlider& slider, ValueLabel& label, QWidget* parent)
    : QLineEdit(parent), slider_(slider), label_(label) {
  setAlignment(Qt::AlignRight);
  setAccessibleName(tr("%1, value").arg(slider.accessibleName()));
  LeaveUndoToWindow(*this, UndoOfBox::kWhileModified);
  QWidget::setTabOrder(&slider, this);
  label.installEventFilter(this);
  connect(this, &QLineEdit::textEdited, this, [this] {
    ShowRefusal({});
    emit TypingChanged();
  });
  // Undo, or another bot, shows another value.
  connect(&slider, &ValueSlider::TextChanged, this, [this](const QString& now) {
    if (now != opened_with_) TakeBack();
  });
  hide();
}

void ValueBox::Open(const QString& first) {
  if (isHidden()) {
    opened_with_ = slider_.Text();
    setText(ToNumber(slider_.shown()) == 0 ? QStringLiteral("0")
                                           : opened_with_);
    Place();
    raise();
    show();
  }
  setFocus(Qt::OtherFocusReason);
  selectAll();
  if (!first.isEmpty()) insert(first);
}

std::optional<double> ValueBox::Typed() const {
  if (!IsTyping()) return std::nullopt;
  const Result<double> number = NumberForFiles(text().toStdString());
  if (!number) return std::nullopt;
  return *number;
}

bool ValueBox::Store() {
  if (!IsTyping()) {
    TakeBack();
    return true;
  }
  const Result<double> number = NumberForFiles(text().toStdString());
  if (!number) {
    const QString why = QString::fromStdString(number.error().what);
    ShowRefusal(why);
    // Its page may have been turned.
    emit Refused(why);
    setFocus(Qt::OtherFocusReason);
    selectAll();
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), toolTip(), this);
    return false;
  }
  TakeBack();
  emit StepEnds();
  slider_.Enter(*number);
  emit StepEnds();
  return true;
}

void ValueBox::TakeBack() {
  if (isHidden()) return;
  if (hasFocus()) slider_.setFocus(Qt::OtherFocusReason);
  setModified(false);
  hide();
  ShowRefusal({});
  emit TypingChanged();
}

void ValueBox::ShowRefusal(const QString& why) {
  if (refusal_ == why) return;
  refusal_ = why;
  setToolTip(why.isEmpty() ? QString() : WrappedToolTip({}, why));
  if (why.isEmpty()) QToolTip::hideText();
  setAccessibleDescription(why);
  QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&changed);
  update();
}

void ValueBox::Place() {
  const QRect text = label_.contentsRect().translated(label_.pos());
  constexpr int kFrame = 4;
  const int height = fontMetrics().height() + 2 * kFrame;
  const int lowest = std::max(0, parentWidget()->height() - height);
  const int top = std::clamp(text.center().y() - height / 2, 0, lowest);
  setGeometry(text.left() - 2 * kFrame, top, text.width() + 2 * kFrame, height);
}

bool ValueBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Move || event->type() == QEvent::Resize) Place();
  return QLineEdit::eventFilter(watched, event);
}

void ValueBox::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Store();
      break;
    case Qt::Key_Escape:
      TakeBack();
      break;
    default:
      QLineEdit::keyPressEvent(event);
  }
}

void ValueBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
      reason == Qt::MenuBarFocusReason) {
    return;
  }
  // Not within the change of focus itself.
  QTimer::singleShot(0, this, [this] {
    if (!hasFocus()) Store();
  });
}

void ValueBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (refusal_.isEmpty()) return;
  QPainter painter(this);
  painter.setPen(QPen(SeverityColor(Severity::kError, palette()), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

}  // namespace fragsmith
