#ifndef FRAGSMITH_EDITOR_CONTROLS_VALUE_CONTROL_H_
#define FRAGSMITH_EDITOR_CONTROLS_VALUE_CONTROL_H_

#include <QString>
#include <QWidget>
#include <optional>
#include <vector>

#include "editor/controls/value_slider.h"
#include "model/value_scale.h"

class QGridLayout;
class QLabel;

namespace fragsmith {

class CaptionMark;
class ValueLabel;

/// What the controls with sliders have in common: a caption on top
/// (`lblCaption`) and rows of a slider with its value text, all of one scale.
class ValueControl : public QWidget {
  Q_OBJECT

 public:
  /// An empty caption takes no room.
  void SetCaption(const QString& caption);

  /// What assistive tools call the control, where the caption (without the
  /// range behind it) does not tell it from others: "Shotgun, aim accuracy".
  void SetSpokenName(const QString& name);

  /// Index of the parameter, handed back with every change.
  void SetIndex(int index) { index_ = index; }
  int Index() const { return index_; }

  /// Top of the range, which chooses the scale; 1 at first. A maximum
  /// without a scale changes nothing. The values shown stay.
  void SetMax(int max);
  int Max() const { return max_; }

  /// The sign beside the caption; null while none was needed, and for a
  /// control without a caption.
  CaptionMark* mark() const { return mark_; }
  CaptionMark* NeedMark();

 protected:
  using ScaleLookup = std::optional<ValueScale> (*)(int max);

  ValueControl(ScaleLookup lookup, QWidget* parent);

  /// Adds a row: the slider `sliValue` and its text `lblValue`, or, with a
  /// skill level, a label with the level's number before them and the names
  /// `sliValue_4`, `lblValue_4`.
  ValueSlider* AddRow(std::optional<int> level = std::nullopt);

  void changeEvent(QEvent* event) override;

 private:
  struct Row {
    ValueSlider* slider = nullptr;
    ValueLabel* text = nullptr;
    QLabel* number = nullptr;  ///< None without a level.
    std::optional<int> level;
  };

  void NameSliders();
  void AlignTexts();

  ScaleLookup lookup_;
  QGridLayout* grid_;
  QLabel* caption_;
  CaptionMark* mark_ = nullptr;
  std::vector<Row> rows_;
  QString spoken_name_;
  int index_ = 0;
  int max_ = 1;
};

/// The parameter, by level, that a slider of a value control or one of the
/// texts beside it stands for; nothing for any other widget.
std::optional<int> ParameterOf(const QWidget* widget);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_VALUE_CONTROL_H_
