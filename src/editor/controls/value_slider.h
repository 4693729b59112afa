#ifndef FRAGSMITH_EDITOR_CONTROLS_VALUE_SLIDER_H_
#define FRAGSMITH_EDITOR_CONTROLS_VALUE_SLIDER_H_

#include <QSlider>
#include <QString>
#include <vector>

#include "model/value.h"
#include "model/value_scale.h"

namespace fragsmith {

/// The slider of one value. It stands at whole positions of its scale, and
/// knows the real value beside: one that lies off the grid, beyond the scale
/// or is no number at all stays as it is until the user moves the slider.
///
/// Assistive tools read and set it in values of the parameter, not in
/// positions; a value that they set is a move of the user.
class ValueSlider : public QSlider {
  Q_OBJECT

 public:
  explicit ValueSlider(QWidget* parent = nullptr);

  /// The value stays, the position follows.
  void SetScale(const ValueScale& scale);
  const ValueScale& scale() const { return scale_; }

  /// Whether 0 means that the parameter is left out of the file.
  void SetOptional(bool is_optional);

  /// Values that are marked on the groove: from there on the bot acts
  /// otherwise.
  void SetMarks(std::vector<double> marks);

  /// What the program does: it does not send Moved.
  void ShowValue(const Value& value);
  const Value& shown() const { return shown_; }

  /// Moves as the user does, also where only the value was off the grid.
  void MoveTo(double value);

  /// Takes a value that the user typed, also one off the grid or beyond it.
  void Enter(double value);

  /// The shown value as a number; the position's value for a text.
  double Number() const;
  /// The text to stand beside the slider.
  QString Text() const;

  /// Room for the ticks at the lower edge; the groove has the rest.
  int TickRoom() const;

  QSize sizeHint() const override;

 signals:
  /// The user moved the slider, by whatever means.
  void Moved();
  void TextChanged(const QString& text);
  /// The user wants to type the value, beginning with this text if any.
  void TypingWanted(const QString& first);

 protected:
  void initStyleOption(QStyleOptionSlider* option) const override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  int TickLength() const;
  void DrawMarks(QPainter& painter, const QStyleOptionSlider& option) const;
  void TakePosition();
  void Announce();

  ValueScale scale_;
  Value shown_;
  std::vector<double> marks_;
  bool is_optional_ = false;
  bool is_showing_ = false;
  int wheel_rest_ = 0;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_VALUE_SLIDER_H_
