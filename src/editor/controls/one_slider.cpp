#include "editor/controls/one_slider.h"

namespace fragsmith {

OneSlider::OneSlider(QWidget* parent)
    : ValueControl(OneSliderScale, parent), slider_(AddRow()) {
  connect(slider_, &ValueSlider::Moved, this,
          [this] { emit Changed(ParameterId(Index()), slider_->Number()); });
}

void OneSlider::ShowValue(const Value& value) { slider_->ShowValue(value); }

}  // namespace fragsmith
