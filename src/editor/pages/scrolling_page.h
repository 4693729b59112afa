#ifndef FRAGSMITH_EDITOR_PAGES_SCROLLING_PAGE_H_
#define FRAGSMITH_EDITOR_PAGES_SCROLLING_PAGE_H_

#include <QScrollArea>

namespace fragsmith {

/// A page of the page strip. It scrolls where the window is too small for its
/// content and gives the content all the room where there is more.
class ScrollingPage : public QScrollArea {
  Q_OBJECT

 public:
  explicit ScrollingPage(QWidget* parent = nullptr);

  /// Makes the controls of the page, which has none before. Done when the page
  /// is shown for the first time, or earlier by this call: the start of the
  /// program is not to wait for pages that nobody sees yet.
  void Complete();

 protected:
  /// The widget with the controls, with no parent; made in the order of the
  /// Tab key.
  virtual QWidget* MakeContent() = 0;

  /// Called once the content is in its place.
  virtual void ShowBot() = 0;

  bool IsComplete() const { return widget() != nullptr; }

  /// Stands below the content and does not scroll with it; hidden where it
  /// would take too much of the page's height.
  void SetFoot(QWidget* foot);

  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void PlaceFoot();

  QWidget* foot_ = nullptr;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_SCROLLING_PAGE_H_
