#include "editor/controls/share_plot.h"

#include <QPainter>
#include <algorithm>
#include <cstddef>

#include "trial/match_words.h"

namespace fragsmith {
namespace {

constexpr double kHalf = 0.5;

}  // namespace

SharePlot::SharePlot(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picShare"));
  setAccessibleName(QStringLiteral("Share of the points by matches"));
}

void SharePlot::ShowShares(const std::vector<Estimate>& shares, int matches) {
  shares_ = shares;
  matches_ = std::max({matches, static_cast<int>(shares.size()), 2});
  QString words;
  if (!shares.empty()) {
    words = QString::fromStdString("After " + MatchesText(shares.size()) +
                                   ": " + ShownShare(shares.back()));
  }
  setAccessibleDescription(words);
  setToolTip(words);
  update();
}

QSize SharePlot::minimumSizeHint() const {
  const int line = fontMetrics().lineSpacing();
  return {14 * line, 8 * line};
}

void SharePlot::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QFontMetrics metrics = fontMetrics();
  const int line = metrics.lineSpacing();
  const double left =
      metrics.horizontalAdvance(QStringLiteral("100 %")) + line / 2.0;
  const QRectF area(left, line * 1.5, width() - left - line / 2.0,
                    height() - line * 2.9);
  const QColor text = palette().color(QPalette::WindowText);
  QColor faint = text;
  faint.setAlphaF(0.35F);
  const auto x_of = [&](double match) {
    return area.left() + (match - 1) / (matches_ - 1) * area.width();
  };
  const auto y_of = [&area](double share) {
    return area.bottom() - std::clamp(share, 0.0, 1.0) * area.height();
  };

  painter.setPen(text);
  painter.drawText(
      QRectF(0, 0, width(), line), Qt::AlignLeft,
      metrics.elidedText(accessibleName(), Qt::ElideRight, width()));
  for (const double share : {0.0, kHalf, 1.0}) {
    painter.setPen(text);
    painter.drawText(
        QRectF(0, y_of(share) - line / 2.0, left - line / 3.0, line),
        Qt::AlignRight | Qt::AlignVCenter,
        QString::fromStdString(Fixed(share * 100, 0) + " %"));
    const Qt::PenStyle style = share == kHalf ? Qt::DashLine : Qt::SolidLine;
    painter.setPen(QPen(faint, 1, style));
    if (share < 1) {
      painter.drawLine(QPointF(area.left(), y_of(share)),
                       QPointF(area.right(), y_of(share)));
    }
  }
  painter.drawLine(area.bottomLeft(), area.topLeft());
  painter.setPen(text);
  for (const int match : {1, matches_}) {
    const QRectF room(x_of(match) - 2.0 * line, area.bottom() + line * 0.2,
                      match == 1 ? 4.0 * line : 2.5 * line, line);
    painter.drawText(room, match == 1 ? Qt::AlignHCenter : Qt::AlignRight,
                     QString::number(match));
  }

  QPolygonF middle;
  QPolygonF above;
  QPolygonF below;
  for (std::size_t at = 0; at < shares_.size(); ++at) {
    const double x = x_of(static_cast<double>(at) + 1);
    middle << QPointF(x, y_of(shares_[at].value));
    if (shares_[at].interval) {
      above << QPointF(x, y_of(shares_[at].interval->high));
      below.prepend(QPointF(x, y_of(shares_[at].interval->low)));
    }
  }
  const QColor color = palette().color(QPalette::Highlight);
  QColor band = color;
  band.setAlphaF(0.25F);
  painter.setPen(Qt::NoPen);
  painter.setBrush(band);
  painter.drawPolygon(above + below);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, 2));
  painter.drawPolyline(middle);
  painter.setBrush(color);
  if (!middle.isEmpty()) {
    painter.drawEllipse(middle.back(), line / 5.0, line / 5.0);
  }
}

}  // namespace fragsmith
