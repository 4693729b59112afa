#ifndef FRAGSMITH_EDITOR_CONTROLS_ICON_BOX_H_
#define FRAGSMITH_EDITOR_CONTROLS_ICON_BOX_H_

#include <QFrame>
#include <QImage>
#include <QString>

#include "install/packages/targa.h"

namespace fragsmith {

/// A framed square for the icon of a skin. The picture fills it in its own
/// proportions, at any scale of the screen.
class IconBox : public QFrame {
  Q_OBJECT

 public:
  explicit IconBox(QWidget* parent = nullptr);

  /// The description is for those who cannot see it, and the tooltip.
  void ShowPicture(const Picture& picture, const QString& description);
  void Clear();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  void Clicked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage image_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_ICON_BOX_H_
