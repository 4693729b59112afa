#ifndef FRAGSMITH_EDITOR_PAGES_PAGE_STRIP_H_
#define FRAGSMITH_EDITOR_PAGES_PAGE_STRIP_H_

#include <QTabWidget>
#include <optional>
#include <vector>

#include "checks/finding.h"
#include "editor/pages/page_tabs.h"

namespace fragsmith {

/// The page that the place is on; nothing for the identity and the whole bot.
std::optional<int> PageOfPlace(const BotPlace& place);

/// The parameter pages with their list at the left, or a strip of tabs above
/// where the window is narrow. Ctrl+Tab goes on to the next one, from the last
/// to the first, wherever the focus is in the window.
class PageStrip : public QTabWidget {
  Q_OBJECT

 public:
  explicit PageStrip(QWidget* parent = nullptr);

  void NextPage();

  /// Counts for each page what is told of it.
  void ShowFindings(const std::vector<Finding>& findings);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  PageTabs* tabs_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_PAGE_STRIP_H_
