#ifndef FRAGSMITH_EDITOR_CONTROLS_VALUE_LABEL_H_
#define FRAGSMITH_EDITOR_CONTROLS_VALUE_LABEL_H_

#include <QLabel>
#include <QString>

namespace fragsmith {

/// The value text beside a slider: right-aligned and of the same width for
/// every value, so that the sliders of a page end in one line. A longer text,
/// which only a bot from elsewhere can bring, is shown with an ellipsis, and
/// whole in the tooltip. Under the pointer it looks like the text box that a
/// click makes of it.
class ValueLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ValueLabel(QWidget* parent = nullptr);

  void ShowText(const QString& text);

  /// Room before a text of usual length, and whether longer ones leave it free.
  int RoomAtLeft() const;
  void KeepRoomAtLeft(bool keeps) {
    keeps_room_ = keeps;
    update();
  }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  /// The user wants to type another value.
  void Clicked();

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int Width() const;

  bool keeps_room_ = false;
  mutable int width_ = 0;  ///< Of the room for the text; 0 before it is known.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_VALUE_LABEL_H_
