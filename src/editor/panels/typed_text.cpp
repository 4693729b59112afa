#include "editor/panels/typed_text.h"

#include <algorithm>

#include "editor/controls/value_control.h"

namespace fragsmith {

TypedText::TypedText(CurrentBot& current, IdentityPanel& identity,
                     ChatPage& chat_page, PageStrip& strip, QObject* parent)
    : QObject(parent),
      current_(current),
      identity_(identity),
      chat_page_(chat_page),
      strip_(strip) {
  connect(&identity, &IdentityPanel::Typed, this, &TypedText::Typed);
  for (auto* const page : strip.findChildren<ParameterPage*>()) {
    connect(page, &ParameterPage::Typed, this, &TypedText::Typed);
    connect(page, &ParameterPage::TypingRefused, this,
            [this, page](const QString& why) {
              strip_.setCurrentWidget(page);
              emit StatusText(why);
            });
  }
}

std::vector<ValueBox*> TypedText::Boxes() const {
  std::vector<ValueBox*> typing;
  for (ValueBox* const box : strip_.findChildren<ValueBox*>()) {
    if (box->IsTyping()) typing.push_back(box);
  }
  return typing;
}

bool TypedText::StoreValues() {
  const std::vector<ValueBox*> boxes = Boxes();
  return std::all_of(boxes.begin(), boxes.end(),
                     [](ValueBox* box) { return box->Store(); });
}

bool TypedText::Store() {
  if (!StoreValues()) return false;
  chat_page_.StoreTyping();
  return identity_.StoreTyping();
}

bool TypedText::StoreAll() {
  if (!StoreValues()) return false;
  chat_page_.StoreTyping();
  return !identity_.CheckAllIn();
}

bool TypedText::IsAny() const {
  return identity_.HasTyping() || !Boxes().empty();
}

void TypedText::Undo() {
  for (ValueBox* const box : Boxes()) {
    if (box->isUndoAvailable()) {
      box->undo();
    } else {
      box->TakeBack();
    }
  }
  if (!identity_.HasTyping()) return;
  identity_.UndoTyping();
  if (!IsAny() && current_.steps().isClean()) current_.SetChanged(false);
}

Bot TypedText::WithIt() const {
  Bot bot = identity_.WithTyping();
  for (const ValueBox* const box : Boxes()) {
    const std::optional<double> number = box->Typed();
    if (number) bot.Put(*ParameterOf(box), *number);
  }
  return bot;
}

}  // namespace fragsmith
