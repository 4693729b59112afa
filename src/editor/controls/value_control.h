#ifndef FRAGSMITH_EDITOR_CONTROLS_VALUE_CONTROL_H_
#define FRAGSMITH_EDITOR_CONTROLS_VALUE_CONTROL_H_

#include <QString>
#include <QWidget>
#include <optional>
#include <vector>

#include "editor/controls/value_slider.h"
#include "model/parameter_id.h"
#include "model/value_scale.h"

class QGridLayout;
class QLabel;
class QToolButton;

namespace fragsmith {

class CaptionMark;
class ValueBox;
class ValueLabel;

/// What the controls with sliders have in common: a caption on top
/// (`lblCaption`) and rows of a slider with its value text, all of one scale.
class ValueControl : public QWidget {
  Q_OBJECT

 public:
  /// An empty caption takes no room.
  void SetCaption(const QString& caption);

  /// What assistive tools call the control: the range stands in the limits of
  /// the slider, and captions repeat themselves from page to page.
  void SetSpokenName(const QString& name);

  /// Shows the control in the second colour, and why beside the caption where
  /// there is room.
  void SetQuiet(const QString& why);

  /// What a row had when the bot was loaded, set before the value is shown: a
  /// button puts it back while the row shows another value.
  void SetLoaded(std::optional<Level> level, const Value& loaded);

  /// Catalogue index of the parameter, handed back with every change.
  void SetIndex(int index) { index_ = index; }
  int Index() const { return index_; }

  /// The parameter that a slider, or a text or box beside it, stands for;
  /// nothing for any other widget, also where a caption stands for several
  /// levels.
  std::optional<ParameterId> ParameterOf(const QWidget* part) const;

  /// The slider of a level, or the only one; null where there is none.
  QWidget* SliderOf(std::optional<Level> level) const;

  /// Top of the range, which chooses the scale; 1 at first. A maximum
  /// without a scale changes nothing. The values shown stay.
  void SetMax(int max);

  /// The sign beside the caption, or in front of the value where there is
  /// none; null while none was needed.
  CaptionMark* mark() const { return mark_; }
  CaptionMark* NeedMark();

 signals:
  /// A box to type a value into, made when it is wanted for the first time.
  void BoxMade(fragsmith::ValueBox* box);
  /// The user wants the loaded value back.
  void ResetWanted(fragsmith::ParameterId parameter);

 protected:
  using ScaleLookup = std::optional<ValueScale> (*)(int max);

  ValueControl(ScaleLookup lookup, QWidget* parent);

  /// Adds a row: the slider `sliValue` and its text `lblValue`, or, with a
  /// skill level, a label with the level's number before them and the names
  /// `sliValue_4`, `lblValue_4`.
  ValueSlider* AddRow(std::optional<Level> level = std::nullopt);

  void changeEvent(QEvent* event) override;

 private:
  struct Row {
    ValueSlider* slider = nullptr;
    ValueLabel* text = nullptr;
    QLabel* number = nullptr;  ///< None without a level.
    std::optional<Level> level;
    ValueBox* box = nullptr;  ///< None before somebody types.
    std::optional<Value> loaded;
    QToolButton* reset = nullptr;  ///< None while it was not needed.
  };

  ParameterId ParameterOf(const Row& row) const;
  void ShowReset(std::size_t index);
  void MakeReset(Row& row);
  void OpenBox(std::size_t index, const QString& first);
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

/// The same of any widget that may be part of a value control.
std::optional<ParameterId> ParameterOf(const QWidget* widget);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_VALUE_CONTROL_H_
