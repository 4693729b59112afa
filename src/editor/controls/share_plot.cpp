#include "editor/controls/share_plot.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "trial/match_words.h"

namespace fragsmith {
namespace {

constexpr double kHalf = 0.5;

}  // namespace

SharePlot::SharePlot(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picShare"));
  setAccessibleName(tr("Share of the points by matches"));
}

void SharePlot::ShowShares(std::vector<ShareLine> lines, int matches) {
  lines_ = std::move(lines);
  matches_ = std::max(matches, 2);
  QStringList words;
  for (const ShareLine& line : lines_) {
    matches_ = std::max(matches_, static_cast<int>(line.shares.size()));
    if (line.shares.empty()) continue;
    const QString said =
        (line.shares.size() == 1 ? tr("After %1 match: %2")
                                 : tr("After %1 matches: %2"))
            .arg(QString::number(line.shares.size()),
                 QString::fromStdString(ShownShare(line.shares.back())));
    words << (lines_.size() == 1 ? said
                                 : line.title + QStringLiteral(". ") + said);
  }
  setAccessibleDescription(words.join(u'\n'));
  setToolTip(
      words.join(u'\n').toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")));
  update();
}

QSize SharePlot::minimumSizeHint() const {
  const int line = fontMetrics().lineSpacing();
  return {12 * line, 8 * line};
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

  // The run itself lies above the others.
  for (std::size_t number = lines_.size(); number-- > 0;) {
    PaintLine(painter, area, number);
  }
}

/// The first one has the color of the selection; the others are told apart by
/// their strokes as well.
QColor SharePlot::ColorOf(std::size_t number) const {
  if (number == 0) return palette().color(QPalette::Highlight);
  constexpr std::array<QRgb, 4> kColors = {0xffc2570c, 0xff1f8a4c, 0xff8e44ad,
                                           0xffb8860b};
  return QColor(kColors.at((number - 1) % kColors.size()));
}

void SharePlot::PaintLine(QPainter& painter, const QRectF& area,
                          std::size_t number) {
  const std::vector<Estimate>& shares = lines_[number].shares;
  if (shares.empty()) return;
  const auto y_of = [&area](double share) {
    return area.bottom() - std::clamp(share, 0.0, 1.0) * area.height();
  };
  QPolygonF middle;
  QPolygonF above;
  QPolygonF below;
  for (std::size_t at = 0; at < shares.size(); ++at) {
    const double x =
        area.left() + static_cast<double>(at) / (matches_ - 1) * area.width();
    middle << QPointF(x, y_of(shares[at].value));
    if (shares[at].interval) {
      above << QPointF(x, y_of(shares[at].interval->high));
      below.prepend(QPointF(x, y_of(shares[at].interval->low)));
    }
  }
  const QColor color = ColorOf(number);
  const double line = fontMetrics().lineSpacing();
  if (number == 0) {
    QColor band = color;
    band.setAlphaF(0.25F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(band);
    painter.drawPolygon(above + below);
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, 2, number == 0 ? Qt::SolidLine : Qt::DashLine));
  painter.drawPolyline(middle);
  painter.setBrush(color);
  painter.drawEllipse(middle.back(), line / 5, line / 5);
  if (lines_.size() == 1) return;
  // Its title at the end of the line, on the side where there is room.
  painter.setPen(palette().color(QPalette::WindowText));
  const double room = std::max(area.width() / 2, 8 * line);
  const bool is_left = middle.back().x() > area.center().x();
  const QRectF box(is_left ? middle.back().x() - room : middle.back().x(),
                   middle.back().y() - 1.2 * line, room, line);
  painter.drawText(
      box, is_left ? Qt::AlignRight : Qt::AlignLeft,
      fontMetrics().elidedText(lines_[number].title, Qt::ElideRight,
                               static_cast<int>(room)));
}

}  // namespace fragsmith
