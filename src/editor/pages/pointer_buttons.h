#ifndef FRAGSMITH_EDITOR_PAGES_POINTER_BUTTONS_H_
#define FRAGSMITH_EDITOR_PAGES_POINTER_BUTTONS_H_

#include <QPushButton>
#include <QWidget>
#include <array>

#include "chat/chat_catalogue.h"

namespace fragsmith {

/// The buttons `cmdPointer_0` to `cmdPointer_10` of the variables that the
/// situation fills. Those of one chat type are visible at a time.
class PointerButtons : public QWidget {
  Q_OBJECT

 public:
  explicit PointerButtons(QWidget* parent = nullptr);

  /// Shows those that the type offers; none for a type below 0.
  void ShowType(std::optional<ChatTypeId> type);

 signals:
  /// The variable of the button that was pressed, in editor form.
  void Chosen(const QString& variable);

 private:
  std::array<QPushButton*, kChatPointers.size()> buttons_{};
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_POINTER_BUTTONS_H_
