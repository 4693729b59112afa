#include "editor/pages/page_strip.h"

#include <QShortcut>
#include <QToolButton>
#include <algorithm>
#include <map>
#include <optional>

#include "editor/toolkit/page_table.h"

namespace fragsmith {
namespace {

/// A narrower window needs its width for the pages; so it does in a font in
/// which it holds fewer letters.
constexpr int kMinWidthForList = 950;
constexpr int kMinLettersForList = 136;

}  // namespace

std::optional<int> PageOfPlace(const BotPlace& place) {
  if (std::holds_alternative<ChatPlace>(place)) return kChatPage;
  const auto* const parameter = std::get_if<ParameterId>(&place);
  if (parameter == nullptr) return std::nullopt;
  return PageOfParameter(parameter->index());
}

PageStrip::PageStrip(QWidget* parent)
    : QTabWidget(parent), tabs_(new PageTabs(this)) {
  setObjectName(QStringLiteral("tbsBotPara"));
  setTabBar(tabs_);
  setDocumentMode(true);
  // The arrow keys turn the pages: the Tab key need not stop at the buttons
  // that scroll the strip.
  for (auto* const button : tabBar()->findChildren<QToolButton*>()) {
    button->setFocusPolicy(Qt::NoFocus);
  }

  auto* const next =
      new QShortcut(QKeySequence(QStringLiteral("Ctrl+Tab")), window());
  connect(next, &QShortcut::activated, this, &PageStrip::NextPage);
  // The toolkit would go back a page; here it does nothing.
  new QShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+Tab")), window());
}

void PageStrip::NextPage() { setCurrentIndex((currentIndex() + 1) % count()); }

void PageStrip::ShowFindings(const std::vector<Finding>& findings) {
  std::map<int, PageMark> marks;
  for (const Finding& finding : findings) {
    const std::optional<int> page = PageOfPlace(finding.place);
    if (!page) continue;
    PageMark& mark = marks[*page];
    ++mark.count;
    mark.gravest = std::min(mark.gravest, finding.severity);
  }
  tabs_->ShowMarks(marks);
}

void PageStrip::resizeEvent(QResizeEvent* event) {
  const int needed = std::max(
      kMinWidthForList, fontMetrics().averageCharWidth() * kMinLettersForList);
  setTabPosition(width() < needed ? North : West);
  QTabWidget::resizeEvent(event);
}

}  // namespace fragsmith
