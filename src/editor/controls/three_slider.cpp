#include "editor/controls/three_slider.h"

#include <algorithm>
#include <vector>

namespace fragsmith {

ThreeSlider::ThreeSlider(QWidget* parent)
    : ValueControl(ThreeSliderScale, parent) {
  for (const Level level : kLevels) {
    ValueSlider* const slider = AddRow(level);
    connect(slider, &ValueSlider::Moved, this,
            [this, level] { MoveOthers(level); });
    sliders_.at(IndexOf(level)) = slider;
  }
}

void ThreeSlider::SetOptional(bool is_optional) {
  for (ValueSlider* slider : sliders_) slider->SetOptional(is_optional);
}

void ThreeSlider::ShowValue(Level level, const Value& value) {
  sliders_.at(IndexOf(level))->ShowValue(value);
}

void ThreeSlider::MoveOthers(Level moved) {
  LevelNumbers numbers{};
  std::transform(sliders_.begin(), sliders_.end(), numbers.begin(),
                 [](const ValueSlider* slider) { return slider->Number(); });
  std::vector<Level> levels = LinkLevels(linking_, moved, numbers);
  for (const Level level : levels) {
    sliders_.at(IndexOf(level))->ShowValue(numbers.at(IndexOf(level)));
  }
  moving_level_ = moved;
  // All stand right before anybody hears of the first.
  levels.insert(levels.begin(), moved);
  for (const Level level : levels) {
    emit Changed(ParameterId(level, Index()),
                 sliders_.at(IndexOf(level))->Number());
  }
}

}  // namespace fragsmith
