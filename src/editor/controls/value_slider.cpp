#include "editor/controls/value_slider.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWheelEvent>
#include <cstdlib>
#include <utility>

#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/severity_color.h"

namespace fragsmith {
namespace {

class AccessibleValueSlider : public QAccessibleWidget,
                              public QAccessibleValueInterface {
 public:
  explicit AccessibleValueSlider(ValueSlider* slider)
      : QAccessibleWidget(slider, QAccessible::Slider) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) {
      return static_cast<QAccessibleValueInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return Slider().Text();
    QString text = QAccessibleWidget::text(kind);
    if (kind == QAccessible::Description) {
      // What the number alone does not say: "No", or a text of the file.
      bool is_number = false;
      const QString shown = Slider().Text();
      shown.toDouble(&is_number);
      if (!is_number) text = text.isEmpty() ? shown : shown + ". " + text;
    }
    return text;
  }

  QVariant currentValue() const override { return Slider().Number(); }
  void setCurrentValue(const QVariant& value) override {
    Slider().MoveTo(value.toDouble());
  }
  QVariant minimumValue() const override { return 0.0; }
  QVariant maximumValue() const override {
    return ValueOf(Slider().maximum(), Slider().scale());
  }
  QVariant minimumStepSize() const override { return Slider().scale().step; }

 private:
  ValueSlider& Slider() const { return *static_cast<ValueSlider*>(widget()); }
};

QAccessibleInterface* MakeAccessible(const QString& /*class_name*/,
                                     QObject* object) {
  auto* const slider = qobject_cast<ValueSlider*>(object);
  return slider == nullptr ? nullptr : new AccessibleValueSlider(slider);
}

}  // namespace

ValueSlider::ValueSlider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent), scale_(*OneSliderScale(1)) {
  // Installing it again does nothing.
  QAccessible::installFactory(MakeAccessible);
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QSlider::valueChanged, this, &ValueSlider::TakePosition);
  SetScale(scale_);
}

void ValueSlider::SetScale(const ValueScale& scale) {
  scale_ = scale;
  const QScopedValueRollback<bool> showing(is_showing_, true);
  setRange(0, scale.positions);
  setSingleStep(scale.small_change);
  setPageStep(scale.large_change);
  setTickInterval(scale.tick_spacing);
  ShowValue(shown_);
  updateGeometry();
}

void ValueSlider::SetOptional(bool is_optional) {
  is_optional_ = is_optional;
  Announce();
}

void ValueSlider::SetMarks(std::vector<double> marks) {
  marks_ = std::move(marks);
  update();
}

void ValueSlider::ShowValue(const Value& value) {
  shown_ = value;
  const QScopedValueRollback<bool> showing(is_showing_, true);
  setValue(PositionOf(ToNumber(value).value_or(0), scale_));
  Announce();
}

void ValueSlider::MoveTo(double value) {
  const int position = PositionOf(value, scale_);
  if (position != this->value()) {
    setValue(position);
  } else if (ToNumber(shown_) != ValueOf(position, scale_)) {
    TakePosition();
  }
}

void ValueSlider::Enter(double value) {
  if (ToNumber(shown_) == value) return;
  ShowValue(value);
  emit Moved();
}

double ValueSlider::Number() const {
  return ToNumber(shown_).value_or(ValueOf(value(), scale_));
}

QString ValueSlider::Text() const {
  return ToQString(ValueText(shown_, scale_, is_optional_));
}

int ValueSlider::TickLength() const {
  return tickInterval() > 0 ? fontMetrics().height() / 6 : 0;
}

// Half of it stays free, so that the ticks are not taken for those of the
// next slider below.
int ValueSlider::TickRoom() const { return 4 * TickLength(); }

QSize ValueSlider::sizeHint() const {
  return QSlider::sizeHint() + QSize(0, TickRoom());
}

void ValueSlider::initStyleOption(QStyleOptionSlider* option) const {
  QSlider::initStyleOption(option);
  option->rect.setBottom(option->rect.bottom() - TickRoom());
}

void ValueSlider::paintEvent(QPaintEvent* event) {
  QSlider::paintEvent(event);
  if (hasFocus()) {
    // Some styles show nothing of the focus.
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect();
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
  }
  // Styles cut the handle or hide the ticks on a dark ground when they draw
  // ticks below it.
  QStyleOptionSlider option;
  initStyleOption(&option);
  QPainter painter(this);
  DrawMarks(painter, option);
  if (tickInterval() == 0) return;
  const int handle =
      style()->pixelMetric(QStyle::PM_SliderLength, &option, this);
  QColor color = palette().color(foregroundRole());
  color.setAlphaF(0.35F);
  painter.setPen(color);
  const int top = option.rect.bottom() + 1;
  for (int tick = 0; tick <= maximum(); tick += tickInterval()) {
    const int left = QStyle::sliderPositionFromValue(
        minimum(), maximum(), tick, width() - handle, option.upsideDown);
    painter.drawLine(left + handle / 2, top, left + handle / 2,
                     top + TickLength());
  }
}

void ValueSlider::DrawMarks(QPainter& painter,
                            const QStyleOptionSlider& option) const {
  const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option,
                                               QStyle::SC_SliderHandle, this);
  constexpr int kWidth = 2;
  const int height = option.rect.height() / 2;
  for (const double mark : marks_) {
    const double share = mark / ValueOf(maximum(), scale_);
    // The top of the range needs no mark: the slider ends there.
    if (share >= 1) continue;
    const int middle = handle.width() / 2 +
                       static_cast<int>(share * (width() - handle.width()));
    const QRect line(middle - kWidth / 2, option.rect.center().y() - height / 2,
                     kWidth, height);
    if (line.intersects(handle)) continue;
    // Around it, the ground keeps it apart from the filled part of the groove.
    painter.fillRect(line.adjusted(-1, 0, 1, 0), palette().base());
    painter.fillRect(line, SeverityColor(Severity::kWarning, palette()));
  }
}

void ValueSlider::keyPressEvent(QKeyEvent* event) {
  constexpr auto kCommandKeys =
      Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const QString text = event->text();
  if (event->key() == Qt::Key_F2) {
    emit TypingWanted({});
  } else if (!text.isEmpty() && (text[0].isDigit() || text[0] == u'.') &&
             !(event->modifiers() & kCommandKeys)) {
    emit TypingWanted(text);
  } else {
    QSlider::keyPressEvent(event);
  }
}

void ValueSlider::mousePressEvent(QMouseEvent* event) {
  // Some styles let other buttons move a slider too.
  if (event->button() == Qt::LeftButton) {
    QSlider::mousePressEvent(event);
  } else {
    event->ignore();
  }
}

void ValueSlider::wheelEvent(QWheelEvent* event) {
  // Without the focus the wheel scrolls the page below the pointer.
  if (!hasFocus()) {
    event->ignore();
    return;
  }
  // One notch is one small change; the toolkit would make it a large one, so
  // that every other value was out of reach.
  const QPoint angle = event->angleDelta();
  wheel_rest_ +=
      std::abs(angle.x()) > std::abs(angle.y()) ? angle.x() : angle.y();
  const int notches = wheel_rest_ / QWheelEvent::DefaultDeltasPerStep;
  wheel_rest_ -= notches * QWheelEvent::DefaultDeltasPerStep;
  const bool is_large = event->modifiers().testFlag(Qt::ControlModifier);
  setValue(value() + notches * (is_large ? pageStep() : singleStep()));
  event->accept();
}

void ValueSlider::TakePosition() {
  if (is_showing_) return;
  shown_ = ValueOf(value(), scale_);
  Announce();
  emit Moved();
}

void ValueSlider::Announce() {
  if (QAccessible::isActive()) {
    // The toolkit has announced the position.
    QAccessibleValueChangeEvent event(this, Number());
    QAccessible::updateAccessibility(&event);
  }
  emit TextChanged(Text());
}

}  // namespace fragsmith
