#include "editor/controls/value_control.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <algorithm>

#include "editor/controls/caption_mark.h"
#include "editor/controls/quiet_note.h"
#include "editor/controls/value_box.h"
#include "editor/controls/value_label.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/line_icon.h"
#include "editor/toolkit/tool_tip.h"

namespace fragsmith {
namespace {

// Of the grid; the number of the level comes first.
constexpr int kSliderColumn = 1;
constexpr int kTextColumn = 2;

/// The object name of a part of the row.
QString PartName(const char* part, std::optional<Level> level) {
  const QString name = QString::fromLatin1(part);
  return level ? name + QStringLiteral("_%1").arg(NumberOf(*level)) : name;
}

bool IsSame(const Value& one, const Value& other) {
  const std::optional<double> number = ToNumber(one);
  return number ? number == ToNumber(other) : one == other;
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
  grid_->setHorizontalSpacing(2);
  grid_->setColumnStretch(kSliderColumn, 1);
  grid_->addWidget(caption_, 0, 0, 1, kTextColumn);
}

CaptionMark* ValueControl::NeedMark() {
  if (mark_ != nullptr) return mark_;
  mark_ = new CaptionMark(this);
  if (!caption_->text().isEmpty()) {
    grid_->addWidget(mark_, 0, kTextColumn, Qt::AlignRight | Qt::AlignVCenter);
    return mark_;
  }
  // Below the caption of another control: in front of the value.
  int row = 0;
  int rest = 0;
  grid_->getItemPosition(grid_->indexOf(rows_.front().slider), &row, &rest,
                         &rest, &rest);
  grid_->addWidget(mark_, row, kTextColumn, Qt::AlignLeft | Qt::AlignTop);
  return mark_;
}

void ValueControl::SetCaption(const QString& caption) {
  caption_->setText(caption);
  caption_->setHidden(caption.isEmpty());
}

void ValueControl::SetSpokenName(const QString& name) {
  spoken_name_ = name;
  NameSliders();
}

void ValueControl::SetQuiet(const QString& why) {
  for (const Row& row : rows_) {
    row.text->setForegroundRole(QPalette::PlaceholderText);
    if (row.number != nullptr) {
      row.number->setForegroundRole(QPalette::PlaceholderText);
    }
  }
  if (caption_->text().isEmpty()) return;
  caption_->setForegroundRole(QPalette::PlaceholderText);
  grid_->removeWidget(caption_);
  auto* const line = new QHBoxLayout;
  line->setSpacing(fontMetrics().averageCharWidth());
  line->addWidget(caption_);
  line->addWidget(new QuietNote(why, this), 1);
  grid_->addLayout(line, 0, 0, 1, kTextColumn);
}

void ValueControl::SetLoaded(std::optional<Level> level, const Value& loaded) {
  for (Row& row : rows_) {
    if (row.level == level) row.loaded = loaded;
  }
}

void ValueControl::ShowReset(std::size_t index) {
  Row& row = rows_.at(index);
  const bool is_wanted =
      row.loaded && !IsSame(*row.loaded, row.slider->shown());
  if (row.reset == nullptr) {
    if (!is_wanted) return;
    MakeReset(row);
  }
  if (is_wanted) {
    const QString text = ToNumber(*row.loaded) == 0
                             ? QStringLiteral("0")
                             : ToQString(ToText(*row.loaded));
    row.reset->setToolTip(WrappedToolTip({}, tr("Put back to %1.").arg(text)));
    row.reset->setAccessibleName(
        tr("Put %1 back to %2").arg(row.slider->accessibleName(), text));
  } else if (row.reset->hasFocus()) {
    row.slider->setFocus(Qt::OtherFocusReason);
  }
  row.reset->setVisible(is_wanted);
  row.text->KeepRoomAtLeft(is_wanted);
}

void ValueControl::MakeReset(Row& row) {
  row.reset = new QToolButton(this);
  row.reset->setObjectName(PartName("cmdReset", row.level));
  row.reset->setIcon(MakeLineIcon(LineIcon::kUndo));
  const int side = row.text->RoomAtLeft();
  // The drawing has a rim of its own.
  row.reset->setIconSize(QSize(side, side) * 4 / 3);
  row.reset->setAutoRaise(true);
  row.reset->setFocusPolicy(Qt::TabFocus);
  const ParameterId parameter = ParameterOf(row);
  connect(row.reset, &QToolButton::clicked, this,
          [this, parameter] { emit ResetWanted(parameter); });
  QWidget::setTabOrder(row.slider, row.reset);
  // No higher than the row is without it.
  row.reset->setFixedSize(
      side, row.slider->sizeHint().height() - row.slider->TickRoom());
  int grid_row = 0;
  int rest = 0;
  grid_->getItemPosition(grid_->indexOf(row.slider), &grid_row, &rest, &rest,
                         &rest);
  grid_->addWidget(row.reset, grid_row, kTextColumn,
                   Qt::AlignLeft | Qt::AlignTop);
}

void ValueControl::SetMax(int max) {
  const std::optional<ValueScale> scale = lookup_(max);
  if (!scale) return;
  max_ = max;
  for (const Row& row : rows_) row.slider->SetScale(*scale);
  AlignTexts();
}

ValueSlider* ValueControl::AddRow(std::optional<Level> level) {
  const int grid_row = grid_->rowCount();
  auto* const slider = new ValueSlider(this);
  slider->setObjectName(PartName("sliValue", level));
  if (const auto scale = lookup_(max_)) slider->SetScale(*scale);
  auto* const text = new ValueLabel(this);
  text->setObjectName(PartName("lblValue", level));
  text->ShowText(slider->Text());
  connect(slider, &ValueSlider::TextChanged, text, &ValueLabel::ShowText);
  QLabel* number = nullptr;
  if (level) {
    number = new QLabel(QString::number(NumberOf(*level)), this);
    number->setObjectName(PartName("lblLevel", level));
    number->setBuddy(slider);
    grid_->addWidget(number, grid_row, 0);
  }
  grid_->addWidget(slider, grid_row, kSliderColumn);
  grid_->addWidget(text, grid_row, kTextColumn);
  if (rows_.empty()) caption_->setBuddy(slider);
  const std::size_t index = rows_.size();
  connect(slider, &ValueSlider::TypingWanted, this,
          [this, index](const QString& first) { OpenBox(index, first); });
  connect(slider, &ValueSlider::TextChanged, this,
          [this, index] { ShowReset(index); });
  connect(text, &ValueLabel::Clicked, this,
          [this, index] { OpenBox(index, {}); });
  rows_.push_back({slider, text, number, level});
  AlignTexts();
  return slider;
}

void ValueControl::OpenBox(std::size_t index, const QString& first) {
  Row& row = rows_.at(index);
  if (row.box == nullptr) {
    row.box = new ValueBox(*row.slider, *row.text, this);
    row.box->setObjectName(PartName("txtValue", row.level));
    emit BoxMade(row.box);
  }
  row.box->Open(first);
}

void ValueControl::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) AlignTexts();
  QWidget::changeEvent(event);
}

void ValueControl::NameSliders() {
  setAccessibleName(spoken_name_);
  for (const Row& row : rows_) {
    row.slider->setAccessibleName(
        row.level
            ? tr("%1, level %2")
                  .arg(spoken_name_, QString::number(NumberOf(*row.level)))
            : spoken_name_);
  }
}

void ValueControl::AlignTexts() {
  // The middle of the text is level with the groove, not with groove and
  // ticks.
  for (const Row& row : rows_) {
    const QMargins ticks(0, 0, 0, row.slider->TickRoom());
    row.text->setContentsMargins(ticks);
    if (row.number != nullptr) {
      row.number->setContentsMargins(ticks + QMargins(0, 0, 4, 0));
    }
  }
}

ParameterId ValueControl::ParameterOf(const Row& row) const {
  return row.level ? ParameterId(*row.level, index_) : ParameterId(index_);
}

std::optional<ParameterId> ValueControl::ParameterOf(
    const QWidget* part) const {
  if (part == nullptr) return std::nullopt;
  for (const Row& row : rows_) {
    if (part != row.slider && part != row.text && part != row.number &&
        part != row.box && part != row.reset) {
      continue;
    }
    return ParameterOf(row);
  }
  if (part == caption_ && rows_.size() == 1) return ParameterId(index_);
  return std::nullopt;
}

QWidget* ValueControl::SliderOf(std::optional<Level> level) const {
  const auto row =
      std::find_if(rows_.begin(), rows_.end(),
                   [level](const Row& one) { return one.level == level; });
  return row == rows_.end() ? nullptr : row->slider;
}

std::optional<ParameterId> ParameterOf(const QWidget* widget) {
  if (widget == nullptr) return std::nullopt;
  const auto* const control =
      qobject_cast<const ValueControl*>(widget->parentWidget());
  return control == nullptr ? std::nullopt : control->ParameterOf(widget);
}

}  // namespace fragsmith
