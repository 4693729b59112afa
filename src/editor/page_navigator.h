#ifndef FRAGSMITH_EDITOR_PAGE_NAVIGATOR_H_
#define FRAGSMITH_EDITOR_PAGE_NAVIGATOR_H_

#include <QString>
#include <QWidget>

#include "checks/finding.h"
#include "editor/page_strip.h"
#include "editor/pages/chat_page.h"

namespace fragsmith {

/// Brings the user from the name of a thing, in a list of findings or of what
/// was searched for, to the control where it is edited.
class PageNavigator {
 public:
  PageNavigator(QWidget& window, PageStrip& strip, ChatPage& chat_page)
      : window_(window), strip_(strip), chat_page_(chat_page) {}

  /// Makes the controls of the pages that were not shown yet.
  void CompletePages();

  /// Turns to the page and moves into sight what the place is about.
  void Show(const FindingPlace& place);

  /// The same, and gives the control the focus.
  void GoTo(const FindingPlace& place);

 private:
  /// The control of a place; null when the place names none.
  QWidget* Find(const FindingPlace& place);

  QWidget& window_;
  PageStrip& strip_;
  ChatPage& chat_page_;
};

/// The object name of the control of an identity field.
QString FieldControl(int field);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGE_NAVIGATOR_H_
