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

QSize FunNamePreview::sizeHint() const {
  const QFontMetrics metrics(NameFont());
  return {metrics.averageCharWidth() * 16, metrics.height() * 5 / 4};
}

QSize FunNamePreview::minimumSizeHint() const {
  return {QFontMetrics(NameFont()).averageCharWidth() * 10,
          sizeHint().height()};
}

void FunNamePreview::paintEvent(QPaintEvent* /*event*/) {
  const QFont font = NameFont();
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
  const double base_line = (height() - metrics.height()) / 2 + metrics.ascent();
  const double margin = metrics.averageCharWidth();
  const double end = width() - margin;
  double left = margin;
  for (const Run& run : runs_) {
    const double advance = metrics.horizontalAdvance(run.text);
    const bool is_cut = left + advance > end;
    QPainterPath letters;
    letters.addText(
        left, base_line, font,
        is_cut ? metrics.elidedText(run.text, Qt::ElideRight, end - left)
               : run.text);
    const QColor color = run.color.value_or(text_color);
    if (Contrast(color, ground) < kReadableContrast) {
      // Half of the pen's width lies under the letter.
      painter.strokePath(
          letters, QPen(text_color, 2 * line_width, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    }
    painter.fillPath(letters, color);
    if (is_cut) break;
    left += advance;
  }
}

QFont FunNamePreview::NameFont() const {
  QFont large = font();
  large.setBold(true);
  // A font is sized in points or, now and then, in pixels.
  if (large.pointSizeF() > 0) {
    large.setPointSizeF(large.pointSizeF() * letter_scale_);
  } else {
    large.setPixelSize(static_cast<int>(large.pixelSize() * letter_scale_));
  }
  return large;
}

}  // namespace fragsmith
