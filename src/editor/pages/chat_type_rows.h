#ifndef FRAGSMITH_EDITOR_PAGES_CHAT_TYPE_ROWS_H_
#define FRAGSMITH_EDITOR_PAGES_CHAT_TYPE_ROWS_H_

#include <QListWidget>
#include <map>
#include <optional>
#include <utility>

#include "editor/controls/caption_mark.h"
#include "editor/pages/chat_page_parts.h"
#include "model/bot.h"

namespace fragsmith {

/// Draws the chat types in their groups, each with what there is to tell of it
/// at its end: its lines and how likely one is spoken.
class TypeDelegate : public MarkedDelegate {
 public:
  using MarkedDelegate::MarkedDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option,
                       const QModelIndex& index) const override;
};

/// Fills the list with the chat types, a row for each in their order.
void FillTypes(QListWidget& types);

/// What is told of types and lines.
using ChatMarks =
    std::map<std::pair<ChatTypeId, std::optional<ChatLineIndex>>, MarkText>;

/// Marks the types of which something graver than a hint is told.
void MarkTypes(const ChatMarks& marks, QListWidget& types);

/// Tells of the bot's lines at the end of each row.
void TellOfLines(const Bot& bot, QListWidget& types);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_CHAT_TYPE_ROWS_H_
