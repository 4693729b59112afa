#ifndef FRAGSMITH_EDITOR_CONTROLS_CARD_BUTTON_H_
#define FRAGSMITH_EDITOR_CONTROLS_CARD_BUTTON_H_

#include <QAbstractButton>

#include "editor/toolkit/line_icon.h"

namespace fragsmith {

/// A button as a card: an icon, a title and below it what comes of it, in the
/// second colour and as many lines as it takes.
class CardButton : public QAbstractButton {
  Q_OBJECT

 public:
  CardButton(LineIcon icon, const QString& title, const QString& about,
             QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QFont TitleFont() const;

  LineIcon icon_;
  QString about_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_CARD_BUTTON_H_
