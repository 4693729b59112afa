#ifndef FRAGSMITH_EDITOR_CONTROLS_QUIET_NOTE_H_
#define FRAGSMITH_EDITOR_CONTROLS_QUIET_NOTE_H_

#include <QLabel>

namespace fragsmith {

/// A text in the second colour that is there where there is room for it, and
/// asks for none.
class QuietNote : public QLabel {
  Q_OBJECT

 public:
  explicit QuietNote(const QString& text, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_QUIET_NOTE_H_
