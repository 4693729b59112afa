#include "editor/pages/page_tabs.h"

#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionFocusRect>
#include <algorithm>
#include <array>

#include "editor/toolkit/line_icon.h"
#include "editor/toolkit/page_table.h"
#include "editor/toolkit/severity_color.h"

namespace fragsmith {
namespace {

// Spaces in logical pixels.
constexpr int kInside = 4;
constexpr int kBetween = 8;
constexpr int kIcon = 18;
constexpr int kCorner = 6;

constexpr std::array kIcons = {LineIcon::kGeneral,
                               LineIcon::kBehaviour,
                               LineIcon::kWeaponSkills,
                               LineIcon::kWeaponUsage,
                               LineIcon::kWeaponPickup,
                               LineIcon::kItemPickup,
                               LineIcon::kChatCharacteristics,
                               LineIcon::kChatTexts};
static_assert(kIcons.size() == kPages.size());

/// Stands above the page and those that follow.
struct Group {
  int first;
  const char* heading;
};
constexpr std::array<Group, 3> kGroups = {
    {{0, QT_TRANSLATE_NOOP("PageTabs", "PLAYS")},
     {3, QT_TRANSLATE_NOOP("PageTabs", "WANTS")},
     {6, QT_TRANSLATE_NOOP("PageTabs", "SAYS")}}};

const Group* GroupThatBeginsAt(int index) {
  const auto* const group = std::ranges::find(kGroups, index, &Group::first);
  return group == kGroups.end() ? nullptr : group;
}

/// Tabs with less air beside their captions: all eight fit into the smallest
/// window.
class CompactTabs : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const int value = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_TabBarTabHSpace ? value / 6 : value;
  }
};

QFont Quiet(QFont font) {
  constexpr double kShare = 11.0 / 13;
  font.setPointSizeF(font.pointSizeF() * kShare);
  return font;
}

QFont Bold(QFont font) {
  font.setBold(true);
  return font;
}

int BadgeWidth(const QFontMetrics& metrics, const QString& text) {
  return std::max(metrics.horizontalAdvance(text) + 2 * kInside + 2,
                  metrics.height() + 2);
}

}  // namespace

PageTabs::PageTabs(QWidget* parent) : QTabBar(parent) {
  setAccessibleName(tr("Parameter pages"));
  auto* const style = new CompactTabs;
  style->setParent(this);
  setStyle(style);
  setDrawBase(false);
}

bool PageTabs::IsList() const { return shape() == RoundedWest; }

QFont PageTabs::FontOf(int index) const {
  return index == currentIndex() ? Bold(font()) : font();
}

void PageTabs::ShowMarks(const std::map<int, PageMark>& marks) {
  if (marks_ == marks) return;
  marks_ = marks;
  for (int index = 0; index < count(); ++index) {
    const auto mark = marks_.find(index);
    setTabToolTip(
        index, mark == marks_.end()
                   ? QString()
                   : tr("Findings on this page: %1").arg(mark->second.count));
  }
  update();
}

int PageTabs::ListWidth() const {
  // Captions of several words stand in two lines where they are long.
  const QFontMetrics metrics(Bold(font()));
  int widest = metrics.averageCharWidth() * 18;
  for (int index = 0; index < count(); ++index) {
    for (const QString& word : tabText(index).split(u' ')) {
      widest = std::max(widest, metrics.horizontalAdvance(word));
    }
  }
  return widest + kIcon + 4 * kBetween +
         BadgeWidth(QFontMetrics(Quiet(font())), QStringLiteral("99"));
}

int PageTabs::HeadingHeight(int index) const {
  if (GroupThatBeginsAt(index) == nullptr) return 0;
  return QFontMetrics(Quiet(font())).height() + 2 * kBetween;
}

QRect PageTabs::CaptionArea(const QRect& row) const {
  const int badge =
      BadgeWidth(QFontMetrics(Quiet(font())), QStringLiteral("99"));
  return row.adjusted(2 * kBetween + kIcon, 0, -(badge + 2 * kBetween), 0);
}

QSize PageTabs::tabSizeHint(int index) const {
  if (!IsList()) return QTabBar::tabSizeHint(index);
  const int width = ListWidth();
  // Bold for all, so that no row changes its height when it is chosen.
  const QRect text = QFontMetrics(Bold(font()))
                         .boundingRect(CaptionArea({0, 0, width, 1000}),
                                       Qt::TextWordWrap, tabText(index));
  const int row = std::max(text.height(), kIcon) + 2 * kBetween - 2;
  return {width, row + HeadingHeight(index)};
}

QSize PageTabs::minimumTabSizeHint(int index) const {
  return IsList() ? tabSizeHint(index) : QTabBar::minimumTabSizeHint(index);
}

void PageTabs::DrawRow(QPainter& painter, int index) const {
  const QPalette& colors = palette();
  QRect row = tabRect(index);
  if (const Group* const group = GroupThatBeginsAt(index)) {
    const QRect heading = row.adjusted(kBetween, kBetween, 0, 0);
    painter.setFont(Quiet(font()));
    QColor quiet = colors.color(QPalette::WindowText);
    quiet.setAlphaF(0.75F);
    painter.setPen(quiet);
    painter.drawText(heading, Qt::AlignLeft | Qt::AlignTop, tr(group->heading));
    row.setTop(row.top() + HeadingHeight(index));
  }
  row.adjust(kInside, 1, -kInside, -1);
  const bool is_current = index == currentIndex();
  const bool is_hovered =
      underMouse() && row.contains(mapFromGlobal(QCursor::pos()));
  if (is_current || is_hovered) {
    QColor ground = colors.color(QPalette::Highlight);
    ground.setAlphaF(is_current ? 0.22F : 0.10F);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(row, kCorner, kCorner);
  }
  const QColor text = colors.color(QPalette::WindowText);
  DrawLineIcon(painter,
               QRectF(row.left() + kBetween, row.center().y() - kIcon / 2.0,
                      kIcon, kIcon),
               kIcons.at(static_cast<std::size_t>(index)), text);
  painter.setFont(FontOf(index));
  painter.setPen(text);
  painter.drawText(CaptionArea(row),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap,
                   tabText(index));
  if (const auto mark = marks_.find(index); mark != marks_.end()) {
    const QString number = QString::number(mark->second.count);
    painter.setFont(Quiet(font()));
    const QFontMetrics metrics(painter.font());
    const QSize size(BadgeWidth(metrics, number), metrics.height() + 2);
    const QRect badge(QPoint(row.right() - kBetween - size.width(),
                             row.center().y() - size.height() / 2),
                      size);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(SeverityColor(mark->second.gravest, colors));
    painter.drawRoundedRect(badge, size.height() / 2.0, size.height() / 2.0);
    painter.setPen(colors.color(QPalette::Base));
    painter.drawText(badge, Qt::AlignCenter, number);
  }
  if (is_current && hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = row;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
  }
}

void PageTabs::paintEvent(QPaintEvent* event) {
  if (!IsList()) {
    QTabBar::paintEvent(event);
    QPainter painter(this);
    for (const auto& [index, mark] : marks_) {
      // Above the caption, which takes the whole width.
      const QRect tab = tabRect(index).adjusted(kInside, 3, -kInside, 0);
      painter.fillRect(QRect(tab.topLeft(), QSize(tab.width(), 2)),
                       SeverityColor(mark.gravest, palette()));
    }
    return;
  }
  QPainter painter(this);
  for (int index = 0; index < count(); ++index) DrawRow(painter, index);
}

void PageTabs::keyPressEvent(QKeyEvent* event) {
  const int step = event->key() == Qt::Key_Down ? 1
                   : event->key() == Qt::Key_Up ? -1
                                                : 0;
  if (!IsList() || step == 0) return QTabBar::keyPressEvent(event);
  setCurrentIndex(std::clamp(currentIndex() + step, 0, count() - 1));
}

}  // namespace fragsmith
