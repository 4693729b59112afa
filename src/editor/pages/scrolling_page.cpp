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

void ScrollingPage::SetFoot(QWidget* foot) {
  foot_ = foot;
  foot_->setParent(this);
  PlaceFoot();
}

void ScrollingPage::PlaceFoot() {
  if (foot_ == nullptr) return;
  constexpr int kSpace = 8;
  constexpr double kMinShareOfContent = 0.55;
  const int width = viewport()->width() - 2 * kSpace;
  const int foot_height = foot_->hasHeightForWidth()
                              ? foot_->heightForWidth(width)
                              : foot_->sizeHint().height();
  const int needed = foot_height + 2 * kSpace;
  const bool fits = height() * (1 - kMinShareOfContent) >=
                    foot_->sizeHint().height() + 2 * kSpace;
  foot_->setVisible(fits);
  setViewportMargins(0, 0, 0, fits ? needed : 0);
  // The bar that scrolls, where there is one, stands beside both.
  foot_->setGeometry(kSpace, height() - needed + kSpace,
                     viewport()->width() - 2 * kSpace, needed - 2 * kSpace);
}

void ScrollingPage::resizeEvent(QResizeEvent* event) {
  PlaceFoot();
  QScrollArea::resizeEvent(event);
}

void ScrollingPage::showEvent(QShowEvent* event) {
  Complete();
  QScrollArea::showEvent(event);
}

}  // namespace fragsmith
