#include "editor/controls/kill_bars.h"

#include <QPainter>
#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "chat/vocabulary.h"
#include "editor/toolkit/game_text_conversion.h"
#include "game/weapon_order.h"

namespace fragsmith {
namespace {

int CountOf(const Counts& counts, const std::string& name) {
  const auto found = counts.find(name);
  return found == counts.end() ? 0 : found->second;
}

}  // namespace

KillBars::KillBars(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picKills"));
  setAccessibleName(tr("Kills by weapon, in the order of its weights"));
}

void KillBars::ShowKills(const Bot& bot, const Counts& kills,
                         const Counts& other_kills, const QString& other_name) {
  rows_.clear();
  bot_name_ = ToQString(bot.Name());
  other_name_ = other_name;
  std::set<std::string> shown;
  int number = 0;
  for (const WeaponRank& rank : WeaponOrder(bot)) {
    const std::string name(WeaponOfUsage(rank.weapon));
    const int count = CountOf(kills, name);
    const int other_count = CountOf(other_kills, name);
    shown.insert(name);
    ++number;
    if (rank.weight <= 0 && count == 0 && other_count == 0) continue;
    QString text = QStringLiteral("%1.").arg(number);
    if (rank.weight <= 0) text = tr("never");
    if (rank.is_tied) text = tr("tie");
    rows_.push_back(
        {.weapon = QString::fromUtf8(ParameterCaption(rank.weapon.index())),
         .rank = text,
         .kills = count,
         .other_kills = other_count});
  }
  // What kills without being a weapon of the bot's list.
  std::set<std::string> others;
  for (const Counts* const counts : {&kills, &other_kills}) {
    for (const auto& [name, count] : *counts) {
      if (!shown.contains(name)) others.insert(name);
    }
  }
  for (const std::string& name : others) {
    rows_.push_back({.weapon = ToQString(name),
                     .rank = {},
                     .kills = CountOf(kills, name),
                     .other_kills = CountOf(other_kills, name)});
  }
  QStringList words;
  for (const Row& row : rows_) {
    words << tr("%1 %2: %3 of %4, %5 of %6")
                 .arg(row.rank, row.weapon, QString::number(row.kills),
                      bot_name_, QString::number(row.other_kills), other_name_)
                 .trimmed();
  }
  const QString description = words.join(QStringLiteral("; "));
  setAccessibleDescription(description);
  setToolTip(description.toHtmlEscaped());
  updateGeometry();
  update();
}

QSize KillBars::minimumSizeHint() const {
  constexpr int kUsualRows = 10;
  const int line = fontMetrics().lineSpacing();
  const int rows = std::max(kUsualRows, static_cast<int>(rows_.size()));
  return {17 * line, (rows + 3) * line};
}

void KillBars::paintEvent(QPaintEvent* /*event*/) {
  if (rows_.empty()) return;
  QPainter painter(this);
  const QFontMetrics metrics = fontMetrics();
  const double line = metrics.lineSpacing();
  const double gap = metrics.averageCharWidth();
  const QColor text = palette().color(QPalette::WindowText);
  QColor faint = text;
  faint.setAlphaF(0.4F);
  const QColor color = palette().color(QPalette::Highlight);
  painter.setPen(text);
  painter.drawText(
      QRectF(0, 0, width(), line), Qt::AlignLeft,
      metrics.elidedText(accessibleName(), Qt::ElideRight, width()));
  // The key to the colours.
  double key = 0;
  for (const auto& [name, shade] :
       {std::pair(bot_name_, color), std::pair(other_name_, faint)}) {
    painter.fillRect(QRectF(key, line * 1.65, line * 0.7, line * 0.7), shade);
    const QString shown = metrics.elidedText(name, Qt::ElideRight,
                                             static_cast<int>(width() * 0.4));
    painter.drawText(QRectF(key + line, line * 1.5, width() * 0.5, line),
                     Qt::AlignLeft | Qt::AlignVCenter, shown);
    key += line * 2 + metrics.horizontalAdvance(shown);
  }

  double names = 0;
  int most = 1;
  for (const Row& row : rows_) {
    names = std::max(
        names, static_cast<double>(metrics.horizontalAdvance(row.weapon)));
    most = std::max({most, row.kills, row.other_kills});
  }
  const double ranks = metrics.horizontalAdvance(tr("never")) + gap;
  const double left = ranks + names + gap;
  const double room =
      width() - left - metrics.horizontalAdvance(QStringLiteral("00000"));
  const double above = line * 2.8;
  const double step = std::min(
      (height() - above) / static_cast<double>(rows_.size()), line * 1.6);
  double top = above;
  for (const Row& row : rows_) {
    painter.drawText(QRectF(0, top, ranks - gap, step),
                     Qt::AlignRight | Qt::AlignVCenter, row.rank);
    painter.drawText(QRectF(ranks, top, names, step),
                     Qt::AlignLeft | Qt::AlignVCenter, row.weapon);
    const double length = room * row.kills / most;
    const double other_length = room * row.other_kills / most;
    painter.fillRect(QRectF(left, top + step * 0.12, length, step * 0.46),
                     color);
    painter.fillRect(QRectF(left, top + step * 0.62, other_length, step * 0.2),
                     faint);
    if (row.kills > 0) {
      painter.drawText(QRectF(left + length + gap / 2, top - step * 0.14,
                              width() - left, step),
                       Qt::AlignLeft | Qt::AlignVCenter,
                       QString::number(row.kills));
    }
    top += step;
  }
}

}  // namespace fragsmith
