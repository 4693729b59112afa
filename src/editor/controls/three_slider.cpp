#include "editor/controls/three_slider.h"

#include <algorithm>
#include <vector>

namespace fragsmith {

ThreeSlider::ThreeSlider(QWidget* parent)
    : ValueControl(ThreeSliderScale, parent) {
  for (std::size_t place = 0; place < sliders_.size(); ++place) {
    sliders_[place] = AddRow(kSkillLevels[place]);
    connect(sliders_[place], &ValueSlider::Moved, this,
            [this, place] { MoveOthers(place); });
  }
}

void ThreeSlider::SetOptional(bool is_optional) {
  for (ValueSlider* slider : sliders_) slider->SetOptional(is_optional);
}

void ThreeSlider::ShowValue(int level, const Value& value) {
  const auto* const found =
      std::find(kSkillLevels.begin(), kSkillLevels.end(), level);
  sliders_.at(static_cast<std::size_t>(found - kSkillLevels.begin()))
      ->ShowValue(value);
}

void ThreeSlider::MoveOthers(std::size_t moved) {
  LevelPositions positions{};
  std::transform(sliders_.begin(), sliders_.end(), positions.begin(),
                 [](const ValueSlider* slider) { return slider->value(); });
  std::vector<int> places =
      LinkLevels(linking_, static_cast<int>(moved), positions);
  for (const int place : places) {
    const auto index = static_cast<std::size_t>(place);
    sliders_[index]->ShowPosition(positions[index]);
  }
  moving_level_ = kSkillLevels[moved];
  // All stand right before anybody hears of the first.
  places.insert(places.begin(), static_cast<int>(moved));
  for (const int place : places) {
    const auto index = static_cast<std::size_t>(place);
    emit Changed(Index(), kSkillLevels[index], sliders_[index]->Number());
  }
}

}  // namespace fragsmith
