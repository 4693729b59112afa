#include "editor/controls/quiet_note.h"

namespace fragsmith {

QuietNote::QuietNote(const QString& text, QWidget* parent)
    : QLabel(text, parent) {
  setObjectName(QStringLiteral("lblNote"));
  setTextFormat(Qt::PlainText);
  setForegroundRole(QPalette::PlaceholderText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void QuietNote::paintEvent(QPaintEvent* event) {
  if (sizeHint().width() <= width()) QLabel::paintEvent(event);
}

}  // namespace fragsmith
