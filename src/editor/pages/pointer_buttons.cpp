#include "editor/pages/pointer_buttons.h"

#include <QHBoxLayout>

#include "editor/pages/chat_help.h"
#include "editor/toolkit/page_table.h"
#include "editor/toolkit/tool_tip.h"

namespace fragsmith {

PointerButtons::PointerButtons(QWidget* parent) : QWidget(parent) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  for (std::size_t pointer = 0; pointer < buttons_.size(); ++pointer) {
    const ChatPointer& entry = kChatPointers.at(pointer);
    auto* const button =
        new QPushButton(QString::fromUtf8(entry.button_caption), this);
    button->setObjectName(QStringLiteral("cmdPointer_%1").arg(pointer));
    button->setAccessibleName(
        tr("Insert %1").arg(QString::fromUtf8(entry.button_caption)));
    button->hide();
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this,
            [this, &entry] { emit Chosen(QString::fromUtf8(entry.Variable)); });
    buttons_.at(pointer) = button;
  }
  row->addStretch(1);
}

void PointerButtons::ShowType(std::optional<ChatTypeId> type) {
  for (QPushButton* const button : buttons_) button->hide();
  if (!type) return;
  for (const int pointer : ChatTypeAt(*type).Pointers()) {
    QPushButton* const button = buttons_.at(static_cast<std::size_t>(pointer));
    const QString help = ChatPointerHelp(*type, pointer);
    button->setToolTip(WrappedToolTip({}, help));
    button->setWhatsThis(button->toolTip());
    button->setAccessibleDescription(help);
    // Greyed, but still there to be pressed by who knows better.
    const bool is_filled =
        WhyNotFilled(*type, QString::fromUtf8(ChatPointerAt(pointer).Variable))
            .isEmpty();
    QPalette colors;
    if (!is_filled) {
      colors.setBrush(QPalette::ButtonText,
                      palette().brush(QPalette::PlaceholderText));
    }
    button->setPalette(colors);
    button->show();
  }
}

}  // namespace fragsmith
