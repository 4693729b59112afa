#ifndef FRAGSMITH_EDITOR_PAGE_STRIP_H_
#define FRAGSMITH_EDITOR_PAGE_STRIP_H_

#include <QTabWidget>

namespace fragsmith {

/// The strip of the parameter pages. Ctrl+Tab goes on to the next one, from
/// the last to the first, wherever the focus is in the window.
class PageStrip : public QTabWidget {
  Q_OBJECT

 public:
  explicit PageStrip(QWidget* parent = nullptr);

  void NextPage();
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGE_STRIP_H_
