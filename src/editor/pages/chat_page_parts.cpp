#include "editor/pages/chat_page_parts.h"

#include <QLabel>
#include <QStyle>
#include <algorithm>

#include "editor/pages/chat_page.h"
#include "editor/toolkit/page_table.h"
#include "editor/toolkit/tool_tip.h"
#include "editor/toolkit/undo_keys.h"

namespace fragsmith {

void SetHelp(QWidget& widget, const QString& help) {
  widget.setToolTip(WrappedToolTip({}, help));
  widget.setWhatsThis(widget.toolTip());
  widget.setAccessibleDescription(help);
}

QListWidget* MakeList(const QString& name, const QString& caption,
                      QGridLayout& grid, int column, int rows) {
  auto* const list = new QListWidget;
  list->setObjectName(name);
  auto* const label = new QLabel(caption);
  label->setBuddy(list);
  list->setAccessibleName(label->text().remove(u'&').remove(u':'));
  const int height = list->fontMetrics().height();
  list->setIconSize(QSize(height, height));
  list->setMinimumHeight(list->fontMetrics().lineSpacing() * 5);
  grid.addWidget(label, 0, column);
  grid.addWidget(list, 1, column, rows, 1);
  return list;
}

void FitWidth(QListWidget& list) {
  int width = 0;
  for (int row = 0; row < list.count(); ++row) {
    width = std::max(
        width, list.fontMetrics().horizontalAdvance(list.item(row)->text()));
  }
  width += list.iconSize().width() + list.fontMetrics().averageCharWidth() * 3 +
           list.style()->pixelMetric(QStyle::PM_ScrollBarExtent) +
           2 * list.frameWidth();
  // In a narrow window the ends of long entries give way.
  list.setMaximumWidth(width);
  list.setMinimumWidth(width * 2 / 3);
  list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void AddEntry(QListWidget& list, std::string_view text, const QString& help) {
  auto* const item = new QListWidgetItem(QString::fromUtf8(text), &list);
  item->setToolTip(WrappedToolTip(item->text(), help));
  item->setData(Qt::AccessibleDescriptionRole, help);
}

QPushButton* MakeButton(const QString& name, const QString& caption,
                        const QString& help) {
  auto* const button = new QPushButton(caption);
  button->setObjectName(name);
  SetHelp(*button, help);
  return button;
}

QLineEdit* MakeLineBox() {
  auto* const box = new QLineEdit;
  box->setObjectName(QStringLiteral("txtChatLine"));
  box->setAccessibleName(ChatPage::tr("Text of the selected line"));
  box->setPlaceholderText(ChatPage::tr("Text of the selected line"));
  SetHelp(*box,
          ChatPage::tr("The selected line. Words in braces are filled by the "
                       "game. On the screen there is room for some 125 "
                       "letters; letters beyond plain English become gaps, "
                       "and a double quote breaks the file for the game."));
  box->setValidator(new LineValidator(box));
  // Each letter is in the bot at once, and the window takes it back.
  LeaveUndoToWindow(*box);
  return box;
}

int CursorAmongMarks(std::string_view text, std::string_view marked,
                     int cursor) {
  std::size_t offset = 0;
  for (const char letter :
       text.substr(0, static_cast<std::size_t>(std::max(cursor, 0)))) {
    offset += marked.at(offset) == letter ? 1 : 2;
  }
  return static_cast<int>(offset);
}

}  // namespace fragsmith
