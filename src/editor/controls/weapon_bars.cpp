#include "editor/controls/weapon_bars.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <optional>

#include "chat/vocabulary.h"
#include "editor/toolkit/wheel_guard.h"

namespace fragsmith {
namespace {

/// Between the reaches of OpenArena's weapons, in map units; 0 for any.
constexpr std::array<int, 6> kDistances = {0, 500, 700, 1000, 3000, 5000};

QString WeaponName(const WeaponRank& rank) {
  return QString::fromUtf8(ParameterCaption(rank.weapon.index()));
}

QString WeightText(const WeaponRank& rank) {
  return rank.weight <= 0 ? WeaponBars::tr("never")
                          : QString::number(rank.weight, 'g', 5);
}

QString TieText() { return WeaponBars::tr(" (tie)"); }

}  // namespace

WeaponBars::WeaponBars(QWidget* parent)
    : QWidget(parent), distance_(new QComboBox(this)) {
  setObjectName(QStringLiteral("picWeapons"));
  setAccessibleName(tr("Weapons in the order of their weights"));
  IgnoreWheelWithoutFocus(*distance_);
  distance_->setObjectName(QStringLiteral("cmbDistance"));
  distance_->setAccessibleName(tr("Distance to the enemy"));
  for (const int distance : kDistances) {
    distance_->addItem(distance == 0
                           ? tr("at any distance")
                           : tr("at %1 units, OpenArena's data").arg(distance));
  }
  auto* const row = new QHBoxLayout;
  auto* const label = new QLabel(tr("Weapons"), this);
  label->setBuddy(distance_);
  row->addWidget(label);
  row->addWidget(distance_);
  row->addStretch(1);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(row);
  column->addStretch(1);
  connect(distance_, &QComboBox::activated, this, &WeaponBars::ShowOrder);
  const int line = fontMetrics().lineSpacing();
  setMinimumSize(14 * line, 2 * line + 10 * fontMetrics().height());
}

void WeaponBars::ShowBot(const Bot& bot) {
  bot_ = bot;
  ShowOrder();
}

void WeaponBars::ShowOrder() {
  const int distance =
      kDistances.at(static_cast<std::size_t>(distance_->currentIndex()));
  order_ = WeaponOrder(
      bot_, distance == 0 ? std::nullopt : std::optional<double>(distance));
  QStringList words;
  for (const WeaponRank& rank : order_) {
    words << (rank.is_tied ? tr("%1: %2, a tie: drawn only without the one "
                                "before it")
                           : QStringLiteral("%1: %2"))
                 .arg(WeaponName(rank), WeightText(rank));
  }
  const QString description = words.join(QStringLiteral("; "));
  setAccessibleDescription(description);
  setToolTip(description);
  update();
}

void WeaponBars::paintEvent(QPaintEvent* /*event*/) {
  if (order_.empty()) return;
  QPainter painter(this);
  const QFontMetrics metrics = fontMetrics();
  int names = 0;
  for (const WeaponRank& rank : order_) {
    names = std::max(names, metrics.horizontalAdvance(WeaponName(rank)));
  }
  const int gap = metrics.averageCharWidth();
  const int left = names + gap;
  const int above = distance_->geometry().bottom() + gap;
  const double step = static_cast<double>(height() - above) /
                      static_cast<double>(order_.size());
  const double most = std::max(order_.front().weight, 1.0);
  // Room for the numbers behind the bars.
  const double room =
      width() - left -
      metrics.horizontalAdvance(QStringLiteral("00000") + TieText());
  double top = above;
  for (const WeaponRank& rank : order_) {
    const QRectF row(0, top, width(), step);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRectF(0, top, names, step),
                     Qt::AlignRight | Qt::AlignVCenter, WeaponName(rank));
    const double length = rank.weight <= 0 ? 0 : rank.weight / most * room;
    QColor color = palette().color(QPalette::Highlight);
    if (rank.is_tied) color.setAlphaF(0.5F);
    painter.fillRect(QRectF(left, top + step * 0.15, length, step * 0.7),
                     color);
    const QString weight =
        WeightText(rank) + (rank.is_tied ? TieText() : QString());
    painter.drawText(row.adjusted(left + length + gap / 2.0, 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, weight);
    top += step;
  }
}

}  // namespace fragsmith
