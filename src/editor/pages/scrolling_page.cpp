#include "editor/pages/scrolling_page.h"

namespace fragsmith {

ScrollingPage::ScrollingPage(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  // The focus moves from control to control, and the page scrolls after it.
  setFocusPolicy(Qt::NoFocus);
  // The ground of the page strip shows through.
  viewport()->setAutoFillBackground(false);
}

void ScrollingPage::Complete() {
  if (IsComplete()) return;
  QWidget* const content = MakeContent();
  setWidget(content);
  content->setAutoFillBackground(false);
  ShowBot();
}

void ScrollingPage::showEvent(QShowEvent* event) {
  Complete();
  QScrollArea::showEvent(event);
}

}  // namespace fragsmith
