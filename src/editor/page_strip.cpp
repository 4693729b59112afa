#include "editor/page_strip.h"

#include <QProxyStyle>
#include <QShortcut>
#include <QTabBar>
#include <QToolButton>

namespace fragsmith {
namespace {

/// Tabs with less air beside their captions: all eight fit into the smallest
/// window.
class CompactTabs : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const int value = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_TabBarTabHSpace ? value / 2 : value;
  }
};

}  // namespace

PageStrip::PageStrip(QWidget* parent) : QTabWidget(parent) {
  setObjectName(QStringLiteral("tbsBotPara"));
  setDocumentMode(true);
  tabBar()->setAccessibleName(QStringLiteral("Parameter pages"));
  auto* const style = new CompactTabs;
  style->setParent(this);
  tabBar()->setStyle(style);
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

}  // namespace fragsmith
