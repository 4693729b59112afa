#include "editor/controls/skill_plot.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "chat/vocabulary.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

constexpr std::array<double, 5> kWholeSkills = {1, 2, 3, 4, 5};

QString Number(double value) { return QString::number(value, 'g', 4); }

/// What is to be said of the value at a skill beside its number.
QString OriginText(ValueOrigin origin) {
  switch (origin) {
    case ValueOrigin::kNone:
      return SkillPlot::tr(
          " (no value: a fraction below and a whole number "
          "above are not mixed)");
    case ValueOrigin::kText:
      return SkillPlot::tr(" (a text is no value)");
    case ValueOrigin::kDefault:
      return SkillPlot::tr(" (the game's default character decides)");
    case ValueOrigin::kLower:
      return SkillPlot::tr(" (whole numbers are not mixed)");
    case ValueOrigin::kLevel:
    case ValueOrigin::kMixed:
      break;
  }
  return {};
}

/// Whether a part of the curve lies in the spot.
bool IsCrossed(const QRectF& spot, const QPolygonF& curve) {
  for (qsizetype at = 1; at < curve.size(); ++at) {
    const QPointF from = curve[at - 1];
    const QPointF to = curve[at];
    const double left = std::max(from.x(), spot.left());
    const double right = std::min(to.x(), spot.right());
    if (left > right) continue;
    const auto height_at = [&](double x) {
      return from.y() + (to.y() - from.y()) * (x - from.x()) /
                            std::max(to.x() - from.x(), 1.0);
    };
    const auto [upper, lower] =
        std::minmax({height_at(left), height_at(right)});
    if (upper <= spot.bottom() && lower >= spot.top()) return true;
  }
  return false;
}

/// Where the caption of a line stands clear of the others, above its line or
/// below it: as far at the left as the curve leaves room, or where it crosses
/// the curve when there is none. Empty where there is no room at all; the tool
/// tip has them all.
QRectF PlaceOfCaption(const QRectF& above, const QRectF& area,
                      const std::vector<QRectF>& others,
                      const QPolygonF& curve) {
  const auto is_free = [&](const QRectF& spot) {
    return area.contains(spot) &&
           std::ranges::none_of(others, [&spot](const QRectF& other) {
             return other.intersects(spot);
           });
  };
  QRectF crossed;
  for (QRectF spot = above; spot.right() <= area.right();
       spot.translate(above.height() / 2, 0)) {
    for (const QRectF& one : {spot, spot.translated(0, spot.height())}) {
      if (!is_free(one)) continue;
      // The points on the curve have a size.
      const double around = above.height() / 5;
      if (!IsCrossed(one.adjusted(0, -around, 0, around), curve)) return one;
      if (crossed.isEmpty()) crossed = one;
    }
  }
  return crossed;
}

}  // namespace

SkillPlot::SkillPlot(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picSkills"));
}

void SkillPlot::ShowCharacteristic(const Bot& bot, ParameterId id) {
  top_ = UsedRangeOf(id).highest;
  title_ = QString::fromUtf8(ParameterName(id));
  values_ = MixShownSkills(bot, id);
  thresholds_ = ThresholdsOf(id);
  setAccessibleName(tr("%1 by skill").arg(title_));
  setAccessibleDescription(Words());
  setToolTip(Words().toHtmlEscaped());
  update();
}

QString SkillPlot::Words() const {
  QStringList words;
  for (const ValueAtSkill& value : values_) {
    words << tr("Skill %1: %2").arg(Number(value.skill), Number(value.used)) +
                 OriginText(value.origin);
  }
  for (const Threshold& threshold : thresholds_) {
    words << tr("At %1: %2")
                 .arg(Number(threshold.value),
                      QString::fromStdString(Localized(threshold.text)));
  }
  return words.join(QStringLiteral("; "));
}

double SkillPlot::Top() const {
  // The range of some is far beyond what anybody sets.
  constexpr double kMaxByRange = 360;
  double top = std::min(top_, kMaxByRange);
  for (const ValueAtSkill& value : values_) top = std::max(top, value.value);
  return top;
}

QSize SkillPlot::minimumSizeHint() const {
  const int line = fontMetrics().lineSpacing();
  return {14 * line, 7 * line};
}

void SkillPlot::paintEvent(QPaintEvent* /*event*/) {
  if (values_.empty()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QFontMetrics metrics = fontMetrics();
  const int line = metrics.lineSpacing();
  const double top = Top();
  const QString top_text = Number(top);
  const QRectF plot(metrics.horizontalAdvance(top_text) + line / 2.0,
                    line * 1.4, 0, 0);
  const QRectF area(plot.left(), plot.top(), width() - plot.left() - line / 2.0,
                    height() - plot.top() - line * 1.3);
  const auto point_of = [&area, top](double skill, double value) {
    return QPointF(
        area.left() + (skill - 1) / 4 * area.width(),
        area.bottom() - std::clamp(value / top, 0.0, 1.0) * area.height());
  };
  const QColor text = palette().color(QPalette::WindowText);
  QColor faint = text;
  faint.setAlphaF(0.35F);
  QColor hint = text;
  hint.setAlphaF(0.75F);

  painter.setPen(text);
  painter.drawText(QRectF(0, 0, width(), line), Qt::AlignLeft,
                   metrics.elidedText(title_, Qt::ElideRight, width()));
  painter.drawText(
      QRectF(0, area.top() - line / 2.0, area.left() - line / 3.0, line),
      Qt::AlignRight | Qt::AlignVCenter, top_text);
  painter.drawText(
      QRectF(0, area.bottom() - line / 2.0, area.left() - line / 3.0, line),
      Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("0"));
  for (const double skill : kWholeSkills) {
    const QPointF below = point_of(skill, 0);
    painter.drawText(QRectF(below.x() - line, below.y(), 2.0 * line, line),
                     Qt::AlignHCenter, Number(skill));
  }
  painter.setPen(faint);
  painter.drawLine(area.bottomLeft(), area.bottomRight());
  painter.drawLine(area.bottomLeft(), area.topLeft());
  painter.setPen(QPen(faint, 1, Qt::DashLine));
  for (const Threshold& threshold : thresholds_) {
    if (threshold.value > top) continue;
    const QPointF left = point_of(1, threshold.value);
    painter.drawLine(left, QPointF(area.right(), left.y()));
  }

  const QColor color = palette().color(QPalette::Highlight);
  painter.setPen(QPen(color, 2));
  for (std::size_t at = 1; at < values_.size(); ++at) {
    painter.drawLine(point_of(values_[at - 1].skill, values_[at - 1].used),
                     point_of(values_[at].skill, values_[at].used));
  }
  for (const ValueAtSkill& value : values_) {
    const bool is_sure = value.origin == ValueOrigin::kLevel;
    const bool is_missing = value.origin == ValueOrigin::kNone ||
                            value.origin == ValueOrigin::kText;
    painter.setPen(QPen(is_missing ? QColor(Qt::red) : color, 2));
    painter.setBrush(is_sure ? QBrush(color) : palette().window());
    const double radius = is_sure ? line / 4.0 : line / 5.0;
    painter.drawEllipse(point_of(value.skill, value.used), radius, radius);
  }

  QPolygonF curve;
  for (const ValueAtSkill& value : values_) {
    curve << point_of(value.skill, value.used);
  }
  std::vector<QRectF> captions;
  for (const Threshold& threshold : thresholds_) {
    if (threshold.value > top) continue;
    const QPointF left = point_of(1, threshold.value);
    const QString caption =
        metrics.elidedText(QString::fromStdString(Localized(threshold.text)),
                           Qt::ElideRight, static_cast<int>(area.width()));
    const QRectF room = PlaceOfCaption(
        QRectF(left.x() + line / 3.0, left.y() - line,
               metrics.horizontalAdvance(caption) + line / 3.0, line),
        area, captions, curve);
    if (room.isEmpty()) continue;
    captions.push_back(room);
    // No line goes through the letters.
    painter.fillRect(room.adjusted(0, 1, 0, -1), palette().base());
    painter.setPen(hint);
    painter.drawText(room, Qt::AlignCenter, caption);
  }
}

}  // namespace fragsmith
