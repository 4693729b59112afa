#ifndef FRAGSMITH_EDITOR_PAGES_SCROLLING_PAGE_H_
#define FRAGSMITH_EDITOR_PAGES_SCROLLING_PAGE_H_

#include <QScrollArea>

namespace fragsmith {

/// A page of the page strip. It scrolls where the window is too small for its
/// content and gives the content all the room where there is more.
class ScrollingPage : public QScrollArea {
  Q_OBJECT

 public:
  explicit ScrollingPage(QWidget* parent = nullptr) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    // The focus moves from control to control, and the page scrolls after it.
    setFocusPolicy(Qt::NoFocus);
    // The ground of the page strip shows through.
    viewport()->setAutoFillBackground(false);
  }

 protected:
  /// The content is laid out when the page is shown for the first time: the
  /// start of the program is not to wait for pages that nobody sees yet.
  void SetContent(QWidget* content) {
    content_ = content;
    content_->setParent(viewport());
    content_->hide();
  }

  void showEvent(QShowEvent* event) override {
    if (widget() == nullptr) {
      setWidget(content_);
      content_->setAutoFillBackground(false);
    }
    QScrollArea::showEvent(event);
  }

 private:
  QWidget* content_ = nullptr;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_SCROLLING_PAGE_H_
