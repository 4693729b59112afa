#ifndef FRAGSMITH_EDITOR_CONTROLS_ONE_SLIDER_H_
#define FRAGSMITH_EDITOR_CONTROLS_ONE_SLIDER_H_

#include "editor/controls/value_control.h"
#include "model/value.h"

namespace fragsmith {

/// Shows and edits a parameter that a bot has once.
class OneSlider : public ValueControl {
  Q_OBJECT

 public:
  explicit OneSlider(QWidget* parent = nullptr);

  /// Sends nothing.
  void ShowValue(const Value& value);

 signals:
  /// The user moved the slider.
  void Changed(fragsmith::ParameterId parameter, double value);

 private:
  ValueSlider* slider_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_ONE_SLIDER_H_
