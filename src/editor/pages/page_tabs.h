#ifndef FRAGSMITH_EDITOR_PAGES_PAGE_TABS_H_
#define FRAGSMITH_EDITOR_PAGES_PAGE_TABS_H_

#include <QTabBar>
#include <map>

#include "game/complaints.h"

namespace fragsmith {

/// How many findings a page has, and how grave the worst is.
struct PageMark {
  Severity gravest = Severity::kHint;
  int count = 0;

  bool operator==(const PageMark&) const = default;
};

/// The tabs of the pages. At the left of the window they are a list with
/// icons, headings and the number of findings of each page; above the pages,
/// in a narrow window, they are tabs of the desktop's kind.
class PageTabs : public QTabBar {
  Q_OBJECT

 public:
  explicit PageTabs(QWidget* parent = nullptr);

  void ShowMarks(const std::map<int, PageMark>& marks);

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool IsList() const;
  QFont FontOf(int index) const;
  /// The rectangle of the caption in a list, from the tab's.
  QRect CaptionArea(const QRect& row) const;
  int HeadingHeight(int index) const;
  int ListWidth() const;
  void DrawRow(QPainter& painter, int index) const;

  std::map<int, PageMark> marks_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_PAGE_TABS_H_
