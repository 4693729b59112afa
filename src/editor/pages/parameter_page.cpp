#include "editor/pages/parameter_page.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "chat/vocabulary.h"
#include "editor/controls/caption_mark.h"
#include "editor/controls/value_box.h"
#include "editor/controls/value_slider.h"
#include "editor/pages/parameter_help.h"
#include "editor/toolkit/tool_tip.h"
#include "game/skill_mix.h"
#include "game/skill_names.h"

namespace fragsmith {
namespace {

/// The text of a row of the grid out of texts that are taken in turn.
QString TextOfRow(std::span<const std::string_view> texts, int row) {
  if (texts.empty()) return {};
  return QString::fromUtf8(texts[static_cast<std::size_t>(row) % texts.size()]);
}

/// Rows with headings in turn belong together.
int RowsTogether(const FrameRow& frame) {
  return std::max(1, static_cast<int>(frame.headings.size()));
}

/// Places between the rows of a frame that may grow.
int GapCount(const FrameRow& frame) {
  const int controls = static_cast<int>(frame.controls.size());
  return (controls - 1) / frame.columns / RowsTogether(frame);
}

void SetHelp(const ControlRow& row, ValueControl& control) {
  const QString help = PlainHelp(row);
  const QString tool_tip = WrappedToolTip(control.accessibleName(), help);
  control.setToolTip(tool_tip);
  control.setWhatsThis(tool_tip);
  for (ValueSlider* const slider : control.findChildren<ValueSlider*>()) {
    slider->setAccessibleDescription(help);
  }
  for (const int level : kLevelNumbers) {
    auto* const number =
        control.findChild<QLabel*>(QStringLiteral("lblLevel_%1").arg(level));
    if (number == nullptr) return;
    number->setToolTip(
        ParameterPage::tr("Skill level %1, \"%2\". The game mixes the levels "
                          "between.")
            .arg(level)
            .arg(QString::fromUtf8(
                kSkillNames.at(static_cast<std::size_t>(level - 1)))));
  }
}

}  // namespace

ParameterPage::ParameterPage(const PageRow& page, CurrentBot& current,
                             QWidget* parent)
    : ScrollingPage(parent), page_(page), current_(current) {
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget* /*old*/, QWidget* now) {
            if (picture_ == nullptr || now == nullptr || !isAncestorOf(now)) {
              return;
            }
            if (const auto parameter = ParameterOf(now)) {
              picture_->Show(*parameter);
            }
          });
}

bool ParameterPage::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Enter) {
    if (const auto* const control = qobject_cast<ValueControl*>(watched)) {
      picture_->Show(ParameterAt(control->Index()));
    }
  }
  return ScrollingPage::eventFilter(watched, event);
}

void ParameterPage::ShowPicture() {
  if (picture_ != nullptr && isVisible()) picture_->ShowBot();
}

QWidget* ParameterPage::MakeContent() {
  const CurrentBot::Filling filling(current_);
  auto* const content = new QWidget;
  auto* const column = new QVBoxLayout(content);
  if (page_.scale_selector != kNoScaleSelector) {
    column->addWidget(MakeScaleSelector(page_.scale_selector));
  }
  for (const FrameRow& frame : page_.frames) {
    const int gaps = GapCount(frame);
    frames_.push_back({MakeFrame(frame), gaps});
    column->addWidget(frames_.back().box, 100 * gaps);
  }
  column->addStretch(1);
  picture_ = new GamePicture(page_, current_);
  SetFoot(picture_);
  return content;
}

void ParameterPage::contextMenuEvent(QContextMenuEvent* event) {
  const bool is_by_key = event->reason() == QContextMenuEvent::Keyboard;
  QWidget* const clicked =
      is_by_key ? QApplication::focusWidget() : childAt(event->pos());
  if (clicked == nullptr) return;
  if (const std::optional<ParameterId> parameter = ParameterOf(clicked)) {
    emit ParameterMenuWanted(
        *parameter, is_by_key
                        ? clicked->mapToGlobal(clicked->rect().bottomLeft())
                        : event->globalPos());
  }
}

void ParameterPage::showEvent(QShowEvent* event) {
  ScrollingPage::showEvent(event);
  ShowPicture();
  // Spare height goes between the rows, but not so much that they fall apart.
  for (const Frame& frame : frames_) {
    frame.box->setMaximumHeight(frame.box->sizeHint().height() +
                                frame.gaps * 3 * fontMetrics().lineSpacing() /
                                    2);
  }
}

QWidget* ParameterPage::MakeScaleSelector(int number) {
  scale_selector_ = new MaxSelect;
  scale_selector_->setObjectName(QStringLiteral("mseSelect_%1").arg(number));
  scale_selector_->setAccessibleName(tr("Scale"));
  scale_selector_->setToolTip(WrappedToolTip(
      {}, tr("How far the sliders of this page reach. The values stay "
             "as they are; to the game only their proportions "
             "matter.")));
  connect(scale_selector_, &MaxSelect::AdjustScale, this,
          &ParameterPage::SetScale);
  auto* const bar = new QWidget;
  auto* const row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(new QLabel(tr("Scale up to")));
  row->addWidget(scale_selector_);
  row->addStretch(1);
  return bar;
}

QGroupBox* ParameterPage::MakeFrame(const FrameRow& frame) {
  auto* const box = new QGroupBox(QString::fromUtf8(frame.caption));
  auto* const grid = new QGridLayout(box);
  // More than between a slider and its value. Four columns hardly fit into the
  // smallest window.
  grid->setHorizontalSpacing(fontMetrics().averageCharWidth() *
                             (frame.columns < 4 ? 8 : 5) / 2);
  // Behind each row there is an empty one; those that part the rows grow.
  const int together = RowsTogether(frame);
  for (int gap = 1; gap <= GapCount(frame); ++gap) {
    const int row = 2 * gap * together - 1;
    grid->setRowStretch(row, 1);
    grid->setRowMinimumHeight(row, fontMetrics().lineSpacing() / 4);
  }
  const int first_column = frame.headings.empty() ? 0 : 1;
  for (int column = 0; column < frame.columns; ++column) {
    grid->setColumnStretch(first_column + column, 1);
  }
  for (int index = 0; index < static_cast<int>(frame.controls.size());
       ++index) {
    const ControlRow& entry = frame.controls[static_cast<std::size_t>(index)];
    if (entry.IsEmptyPlace()) continue;
    const int row = index / frame.columns;
    const int column = index % frame.columns;
    ValueControl* const control = MakeControl(entry);
    control->SetSpokenName(QString::fromUtf8(ParameterName(entry.Id())));
    SetHelp(entry, *control);
    if (!IsReadByGame(entry.Id())) {
      control->SetQuiet(tr("not read by the game"));
    }
    if (!IsReadByGame(entry.Id()) && control->NeedMark() != nullptr) {
      MarkText never_read;
      never_read.Add(Severity::kHint, tr("The game never reads this."));
      control->mark()->SetAlways(never_read);
    }
    grid->addWidget(control, 2 * row, first_column + column);
    if (first_column == 1 && column == 0) {
      auto* const heading = new QLabel(TextOfRow(frame.headings, row));
      // On a level with the slider, which is the lowest of the control.
      heading->setMinimumHeight(
          control->findChild<ValueSlider*>()->sizeHint().height());
      grid->addWidget(heading, 2 * row, 0, Qt::AlignBottom);
    }
  }
  return box;
}

ValueControl* ParameterPage::MakeControl(const ControlRow& row) {
  ValueControl* const control =
      row.HasLevels() ? static_cast<ValueControl*>(MakeThreeSlider(row))
                      : MakeOneSlider(row);
  control->SetCaption(CaptionText(row, row.max));
  control->SetIndex(row.index);
  control->SetMax(row.max);
  control->installEventFilter(this);
  connect(control, &ValueControl::ResetWanted, this,
          &ParameterPage::ResetWanted);
  connect(control, &ValueControl::BoxMade, this,
          [this](ValueBox* box) { AttachBox(*box); });
  for (ValueSlider* const slider : control->findChildren<ValueSlider*>()) {
    connect(slider, &QSlider::sliderReleased, &current_, &CurrentBot::EndStep);
    std::vector<double> marks;
    for (const Threshold& threshold : ThresholdsOf(row.Id())) {
      marks.push_back(threshold.value);
    }
    slider->SetMarks(std::move(marks));
  }
  return control;
}

void ParameterPage::AttachBox(ValueBox& box) {
  connect(&box, &ValueBox::StepEnds, &current_, &CurrentBot::EndStep);
  connect(&box, &ValueBox::Refused, this, &ParameterPage::TypingRefused);
  connect(&box, &ValueBox::TypingChanged, this, [this, &box] {
    // That it differs counts at once.
    if (is_typing_ != box.IsTyping()) {
      is_typing_ = box.IsTyping();
      if (is_typing_) was_changed_ = current_.is_changed();
      if (!was_changed_) current_.SetChanged(is_typing_);
    }
    emit Typed();
  });
}

ThreeSlider* ParameterPage::MakeThreeSlider(const ControlRow& row) {
  auto* const control = new ThreeSlider;
  control->setObjectName(QStringLiteral("tsBotPara_%1").arg(row.index));
  control->SetOptional(row.is_optional);
  control->SetMode(row.linking);
  connect(control, &ThreeSlider::Changed, this,
          [this, control](ParameterId parameter, double value) {
            current_.SetParameter(parameter, value,
                                  parameter.At(control->MovingLevel()));
          });
  three_sliders_.push_back({&row, control});
  return control;
}

OneSlider* ParameterPage::MakeOneSlider(const ControlRow& row) {
  auto* const control = new OneSlider;
  control->setObjectName(QStringLiteral("osBotPara_%1").arg(row.index));
  connect(control, &OneSlider::Changed, this,
          [this](ParameterId parameter, double value) {
            current_.SetParameter(parameter, value);
          });
  one_sliders_.push_back({&row, control});
  return control;
}

void ParameterPage::ShowBot() {
  if (!IsComplete()) return;
  if (scale_selector_ != nullptr) {
    const CurrentBot::Filling filling(current_);
    scale_selector_->Select(SmallestScale());
    SetScale(scale_selector_->Selected());
  }
  ShowAgain();
}

void ParameterPage::ShowAgain() {
  if (!IsComplete()) return;
  ShowPicture();
  const CurrentBot::Filling filling(current_);
  const Bot& bot = current_.bot();
  const Bot& loaded = current_.loaded();
  for (const auto& [row, control] : three_sliders_) {
    for (const Level level : kLevels) {
      const ParameterId parameter(level, row->index);
      control->SetLoaded(level, loaded.Parameter(parameter));
      control->ShowValue(level, bot.Parameter(parameter));
    }
  }
  for (const auto& [row, control] : one_sliders_) {
    const ParameterId parameter(row->index);
    control->SetLoaded(std::nullopt, loaded.Parameter(parameter));
    control->ShowValue(bot.Parameter(parameter));
  }
}

void ParameterPage::SetScale(int max) {
  for (const auto& [row, control] : one_sliders_) {
    if (!row->IsRescaled()) continue;
    control->SetCaption(CaptionText(*row, max));
    control->SetMax(max);
  }
}

int ParameterPage::SmallestScale() const {
  double largest = 0;
  for (const auto& [row, control] : one_sliders_) {
    if (!row->IsRescaled()) continue;
    largest = std::max(
        largest, ToNumber(current_.bot().Parameter(ParameterId(row->index)))
                     .value_or(0));
  }
  return WeightMaximumFor(largest);
}

}  // namespace fragsmith
