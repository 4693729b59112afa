#include "editor/controls/card_button.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace fragsmith {
namespace {

constexpr int kMargin = 12;
constexpr int kGap = 4;
constexpr int kIcon = 24;
constexpr int kLinesAbout = 3;

}  // namespace

CardButton::CardButton(LineIcon icon, const QString& title,
                       const QString& about, QWidget* parent)
    : QAbstractButton(parent), icon_(icon), about_(about) {
  setText(title);
  setAccessibleName(title);
  setAccessibleDescription(about);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QFont CardButton::TitleFont() const {
  QFont bold = font();
  bold.setBold(true);
  return bold;
}

QSize CardButton::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const int height = 2 * kMargin + kIcon + 2 * kGap +
                     QFontMetrics(TitleFont()).lineSpacing() +
                     kLinesAbout * metrics.lineSpacing();
  return {20 * metrics.averageCharWidth() + 2 * kMargin, height};
}

void CardButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool is_hot = underMouse() || isDown();
  constexpr double kRound = 6;
  painter.setPen(
      QPen(palette().color(is_hot ? QPalette::Highlight : QPalette::Mid), 1));
  painter.setBrush(
      palette().color(isDown() ? QPalette::Button : QPalette::Base));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRound,
                          kRound);
  const QRect inside = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  DrawLineIcon(painter, QRectF(inside.x(), inside.y(), kIcon, kIcon), icon_,
               palette().color(QPalette::Text));
  QRect area = inside.adjusted(0, kIcon + kGap, 0, 0);
  painter.setFont(TitleFont());
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(area, Qt::AlignLeft | Qt::AlignTop, text());
  area.setTop(area.top() + painter.fontMetrics().lineSpacing() + kGap);
  painter.setFont(font());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(area, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                   about_);
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    // Also where it came here by itself, as behind a scan.
    focus.state |= QStyle::State_KeyboardFocusChange;
    focus.rect = rect().adjusted(3, 3, -3, -3);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
  }
}

}  // namespace fragsmith
