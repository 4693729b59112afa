#ifndef FRAGSMITH_EDITOR_PAGES_PAGE_NAVIGATOR_H_
#define FRAGSMITH_EDITOR_PAGES_PAGE_NAVIGATOR_H_

#include <QWidget>

#include "editor/pages/chat_page.h"
#include "editor/pages/page_strip.h"
#include "model/bot_place.h"

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
  void Show(const BotPlace& place);

  /// The same, and gives the control the focus.
  void GoTo(const BotPlace& place);

 private:
  /// The control of a place; null when the place names none.
  QWidget* Find(const BotPlace& place);

  QWidget& window_;
  PageStrip& strip_;
  ChatPage& chat_page_;
};

/// The control of a parameter or identity field; null while its page has not
/// been made.
QWidget* ControlOf(const QWidget& window, ParameterId parameter);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_PAGE_NAVIGATOR_H_
