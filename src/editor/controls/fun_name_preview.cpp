#include "editor/controls/fun_name_preview.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <algorithm>
#include <cstddef>

#include "editor/toolkit/contrast.h"

namespace fragsmith {
namespace {

/// Below this contrast a colour gets an outline.
constexpr double kReadableContrast = 2.5;

}  // namespace

FunNamePreview::FunNamePreview(QWidget* parent) : QWidget(parent) {
  setAccessibleName(tr("Funname preview"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FunNamePreview::StandOnGameGround() {
  constexpr QColor kGameGround(0x14, 0x18, 0x1c);
  QPalette colors = palette();
  colors.setColor(QPalette::Window, kGameGround);
  colors.setColor(QPalette::WindowText, Qt::white);
  setPalette(colors);
}

void FunNamePreview::SetLetterScale(double scale) {
  letter_scale_ = scale;
  updateGeometry();
}

void FunNamePreview::DrawFunName(const QString& text) {
  runs_.assign(1, {});
  QString plain;
  for (qsizetype index = 0; index < text.size(); ++index) {
    const bool has_next = text[index] == u'^' && index + 1 < text.size();
    const int digit = has_next ? text[index + 1].unicode() - u'0' : -1;
    if (digit >= 0 && digit < static_cast<int>(kFunNameColors.size())) {
      runs_.push_back(
          {QColor(kFunNameColors[static_cast<std::size_t>(digit)]), {}});
      ++index;
    } else {
      runs_.back().text += text[index];
      plain += text[index];
    }
  }
  setAccessibleDescription(plain);
  setToolTip(plain.toHtmlEscaped());
  update();
}

void FunNamePreview::LetWrap(int lines) {
  lines_ = lines;
  updateGeometry();
}

QSize FunNamePreview::sizeHint() const {
  const QFontMetrics metrics(NameFont(letter_scale_));
  return {metrics.averageCharWidth() * 16,
          metrics.height() * lines_ + metrics.height() / 4};
}

QSize FunNamePreview::minimumSizeHint() const {
  const QFontMetrics metrics(NameFont(letter_scale_));
  return {metrics.averageCharWidth() * 10, metrics.height() * 5 / 4};
}

FunNamePreview::Lines FunNamePreview::Layout(
    const QFontMetricsF& metrics) const {
  const int most_lines =
      std::clamp(static_cast<int>(height() / metrics.height()), 1, lines_);
  const double margin = metrics.averageCharWidth();
  const double end = width() - margin;
  Lines lines;
  QPointF place(margin, 0);
  for (const Run& run : runs_) {
    qsizetype begin = 0;
    while (begin < run.text.size()) {
      const bool is_last = lines.count == most_lines;
      const qsizetype space = is_last ? -1 : run.text.indexOf(u' ', begin);
      const qsizetype next = space < 0 ? run.text.size() : space + 1;
      const QString text = run.text.mid(begin, next - begin);
      if (place.x() + metrics.horizontalAdvance(text.trimmed()) > end) {
        if (!is_last && place.x() > margin) {
          place = {margin, place.y() + metrics.height()};
          ++lines.count;
          continue;
        }
        lines.pieces.push_back(
            {place, metrics.elidedText(text, Qt::ElideRight, end - place.x()),
             run.color});
        lines.is_cut = true;
        return lines;
      }
      lines.pieces.push_back({place, text, run.color});
      place.rx() += metrics.horizontalAdvance(text);
      begin = next;
    }
  }
  return lines;
}

void FunNamePreview::paintEvent(QPaintEvent* /*event*/) {
  QFont font = NameFont(letter_scale_);
  Lines lines = Layout(QFontMetricsF(font));
  if (lines.is_cut && lines_ > 1) {
    font = NameFont(1);
    lines = Layout(QFontMetricsF(font));
  }
  const QFontMetricsF metrics(font);
  const QColor text_color = palette().color(QPalette::WindowText);
  const QColor ground = palette().color(QPalette::Window);
  const double line_width = std::max(1.0, metrics.height() / 14);

  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  constexpr int kCorner = 6;
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawRoundedRect(rect(), kCorner, kCorner);
  painter.setBrush(Qt::NoBrush);
  const double base_line =
      (height() - metrics.height() * lines.count) / 2 + metrics.ascent();
  for (const Piece& piece : lines.pieces) {
    QPainterPath letters;
    letters.addText(piece.place + QPointF(0, base_line), font, piece.text);
    const QColor color = piece.color.value_or(text_color);
    if (Contrast(color, ground) < kReadableContrast) {
      // Half of the pen's width lies under the letter.
      painter.strokePath(
          letters, QPen(text_color, 2 * line_width, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    }
    painter.fillPath(letters, color);
  }
}

QFont FunNamePreview::NameFont(double scale) const {
  QFont large = font();
  large.setBold(true);
  // A font is sized in points or, now and then, in pixels.
  if (large.pointSizeF() > 0) {
    large.setPointSizeF(large.pointSizeF() * scale);
  } else {
    large.setPixelSize(static_cast<int>(large.pixelSize() * scale));
  }
  return large;
}

}  // namespace fragsmith
