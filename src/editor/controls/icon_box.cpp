#include "editor/controls/icon_box.h"

#include <QMouseEvent>
#include <QPainter>

namespace fragsmith {

IconBox::IconBox(QWidget* parent) : QFrame(parent) {
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setAccessibleName(tr("Skin icon"));
}

void IconBox::ShowPicture(const Picture& picture, const QString& description) {
  // The image looks at the picture's bytes; the copy has its own.
  image_ = QImage(picture.pixels.data(), picture.width, picture.height,
                  qsizetype{picture.width} * 4, QImage::Format_RGBA8888)
               .copy();
  setAccessibleDescription(description);
  setToolTip(description.toHtmlEscaped());
  update();
}

void IconBox::Clear() { ShowPicture({}, {}); }

QSize IconBox::sizeHint() const {
  // It stands beside two fields.
  const int side = fontMetrics().height() * 6 + 2 * frameWidth();
  return {side, side};
}

void IconBox::mouseReleaseEvent(QMouseEvent* event) {
  const bool is_click = event->button() == Qt::LeftButton &&
                        rect().contains(event->position().toPoint());
  if (is_click) emit Clicked();
}

void IconBox::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  if (image_.isNull()) return;
  const QRect area = contentsRect();
  QRect target({}, image_.size().scaled(area.size(), Qt::KeepAspectRatio));
  target.moveCenter(area.center());
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(target, image_);
}

}  // namespace fragsmith
