#ifndef FRAGSMITH_EDITOR_CONTROLS_THREE_SLIDER_H_
#define FRAGSMITH_EDITOR_CONTROLS_THREE_SLIDER_H_

#include <array>

#include "editor/controls/value_control.h"
#include "model/level.h"
#include "model/level_linking.h"
#include "model/value.h"

namespace fragsmith {

/// Shows and edits a parameter that a bot has for each of the skill levels 1,
/// 4 and 5.
class ThreeSlider : public ValueControl {
  Q_OBJECT

 public:
  explicit ThreeSlider(QWidget* parent = nullptr);

  /// Whether a level of 0 is left out of the file and reads "No".
  void SetOptional(bool is_optional);

  /// How the levels are kept in order when the user moves one. What the
  /// program shows is never moved.
  void SetMode(LevelLinking linking) { linking_ = linking; }

  /// The level that the user moves, while others follow it.
  Level MovingLevel() const { return moving_level_; }

  /// Sends nothing.
  void ShowValue(Level level, const Value& value);

 signals:
  /// The user moved the slider of a level; one signal for each slider that
  /// had to follow comes behind it.
  void Changed(fragsmith::ParameterId parameter, double value);

 private:
  void MoveOthers(Level moved);

  std::array<ValueSlider*, kLevels.size()> sliders_{};
  Level moving_level_ = kLevels.front();
  LevelLinking linking_ = LevelLinking::kNone;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_THREE_SLIDER_H_
