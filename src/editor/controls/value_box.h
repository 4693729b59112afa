#ifndef FRAGSMITH_EDITOR_CONTROLS_VALUE_BOX_H_
#define FRAGSMITH_EDITOR_CONTROLS_VALUE_BOX_H_

#include <QLineEdit>
#include <QString>
#include <optional>

#include "editor/controls/value_label.h"
#include "editor/controls/value_slider.h"

namespace fragsmith {

/// The box that takes the place of a value text while the user types another
/// value. Enter, or leaving it, gives the value to the slider, as a move of
/// the user; Escape does not. A text that is refused stays, with a red line
/// around it and the reason as the tool tip.
class ValueBox : public QLineEdit {
  Q_OBJECT

 public:
  /// Stands over the label and next to the slider in the order of the Tab key;
  /// hidden before it is opened.
  ValueBox(ValueSlider& slider, ValueLabel& label, QWidget* parent);

  /// Shows the value, selected, or what the user began to type in its place.
  void Open(const QString& first);

  /// True while it has a text that is not stored.
  bool IsTyping() const { return !isHidden() && isModified(); }
  /// The number of such a text, where it is not refused.
  std::optional<double> Typed() const;

  /// Stores such a text and closes. False when it is refused: the box then
  /// has the focus.
  bool Store();
  /// Closes with the value as it was.
  void TakeBack();

 signals:
  void TypingChanged();
  /// What was edited before ends, and so does what this box stores.
  void StepEnds();
  void Refused(const QString& why);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place();
  void ShowRefusal(const QString& why);

  ValueSlider& slider_;
  ValueLabel& label_;
  QString opened_with_;  ///< The text beside the slider.
  QString refusal_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_VALUE_BOX_H_
