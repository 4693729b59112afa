#include "editor/controls/value_control.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>

#include "editor/controls/caption_mark.h"
#include "editor/controls/value_label.h"
#include "model/bot.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

/// "Attack skill (0-1)" is spoken "Attack skill": the range stands in the
/// slider's limits.
QString WithoutRange(const QString& caption) {
  const qsizetype range = caption.lastIndexOf(QStringLiteral(" ("));
  return range < 0 ? caption : caption.left(range);
}

}  // namespace

ValueControl::ValueControl(ScaleLookup lookup, QWidget* parent)
    : QWidget(parent),
      lookup_(lookup),
      grid_(new QGridLayout(this)),
      caption_(new QLabel(this)) {
  caption_->setObjectName(QStringLiteral("lblCaption"));
  caption_->setTextFormat(Qt::PlainText);
  caption_->hide();
  grid_->setContentsMargins(0, 0, 0, 0);
  // Rows that are higher than the control needs leave room below it, so that
  // the captions of a page stand in line.
  grid_->setAlignment(Qt::AlignTop);
  grid_->setVerticalSpacing(0);
  grid_->setColumnStretch(1, 1);
  grid_->addWidget(caption_, 0, 0, 1, 2);
}

CaptionMark* ValueControl::NeedMark() {
  if (mark_ == nullptr && !caption_->text().isEmpty()) {
    mark_ = new CaptionMark(this);
    grid_->addWidget(mark_, 0, 2, Qt::AlignRight | Qt::AlignVCenter);
  }
  return mark_;
}

void ValueControl::SetCaption(const QString& caption) {
  caption_->setText(caption);
  caption_->setHidden(caption.isEmpty());
  NameSliders();
}

void ValueControl::SetSpokenName(const QString& name) {
  spoken_name_ = name;
  NameSliders();
}

void ValueControl::SetMax(int max) {
  const std::optional<ValueScale> scale = lookup_(max);
  if (!scale) return;
  max_ = max;
  for (const Row& row : rows_) row.slider->SetScale(*scale);
  AlignTexts();
}

ValueSlider* ValueControl::AddRow(std::optional<int> level) {
  const QString suffix = level ? QStringLiteral("_%1").arg(*level) : QString();
  const int place = grid_->rowCount();
  auto* const slider = new ValueSlider(this);
  slider->setObjectName(QStringLiteral("sliValue") + suffix);
  if (const auto scale = lookup_(max_)) slider->SetScale(*scale);
  auto* const text = new ValueLabel(this);
  text->setObjectName(QStringLiteral("lblValue") + suffix);
  text->ShowText(slider->Text());
  connect(slider, &ValueSlider::TextChanged, text, &ValueLabel::ShowText);
  QLabel* number = nullptr;
  if (level) {
    number = new QLabel(QString::number(*level), this);
    number->setObjectName(QStringLiteral("lblLevel") + suffix);
    number->setBuddy(slider);
    grid_->addWidget(number, place, 0);
  }
  grid_->addWidget(slider, place, 1);
  grid_->addWidget(text, place, 2);
  if (rows_.empty()) caption_->setBuddy(slider);
  rows_.push_back({slider, text, number, level});
  AlignTexts();
  return slider;
}

void ValueControl::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) AlignTexts();
  QWidget::changeEvent(event);
}

void ValueControl::NameSliders() {
  const QString name =
      spoken_name_.isEmpty() ? WithoutRange(caption_->text()) : spoken_name_;
  setAccessibleName(name);
  for (const Row& row : rows_) {
    row.slider->setAccessibleName(row.level
                                      ? name + QStringLiteral(", level ") +
                                            QString::number(*row.level)
                                      : name);
  }
}

void ValueControl::AlignTexts() {
  // The middle of the text is level with the groove, not with groove and
  // ticks.
  for (const Row& row : rows_) {
    const QMargins ticks(0, 0, 0, row.slider->TickRoom());
    row.text->setContentsMargins(ticks);
    if (row.number != nullptr) row.number->setContentsMargins(ticks);
  }
}

std::optional<int> ParameterOf(const QWidget* widget) {
  const QWidget* control = widget;
  while (control != nullptr &&
         qobject_cast<const ValueControl*>(control) == nullptr) {
    control = control->parentWidget();
  }
  if (control == nullptr || control == widget) return std::nullopt;
  const int index = static_cast<const ValueControl*>(control)->Index();
  const QString level = widget->objectName().section(u'_', 1);
  if (!level.isEmpty()) return LevelIndex(level.toInt(), index);
  if (kPerLevelRange.Contains(index)) return std::nullopt;
  return index;
}

}  // namespace fragsmith
