#include "editor/pages/chat_type_rows.h"

#include <QCoreApplication>
#include <QPainter>
#include <algorithm>
#include <array>
#include <string>

#include "chat/chat_catalogue.h"
#include "editor/pages/chat_help.h"
#include "editor/pages/chat_page.h"
#include "editor/toolkit/severity_icon.h"

namespace fragsmith {
namespace {

constexpr int kTellRole = Qt::UserRole;
constexpr int kGap = 6;

struct Group {
  int first;  ///< The row of its first type.
  const char* heading;
};

// By when they are spoken, as the types stand in their order.
constexpr std::array kGroups = {
    Group{0, QT_TRANSLATE_NOOP("ChatPage", "MATCH")},
    Group{6, QT_TRANSLATE_NOOP("ChatPage", "HITS")},
    Group{9, QT_TRANSLATE_NOOP("ChatPage", "DEATHS")},
    Group{20, QT_TRANSLATE_NOOP("ChatPage", "KILLS")},
    Group{26, QT_TRANSLATE_NOOP("ChatPage", "CHATTER")}};

QString HeadingAt(int row) {
  for (const Group& group : kGroups) {
    if (group.first == row) return ChatPage::tr(group.heading);
  }
  return {};
}

int HeadingHeight(const QStyleOptionViewItem& option, int row) {
  return HeadingAt(row).isEmpty() ? 0 : option.fontMetrics.lineSpacing() + kGap;
}

QFont Quiet(QFont font) {
  constexpr double kQuietScale = 11.0 / 13.0;
  font.setPointSizeF(font.pointSizeF() * kQuietScale);
  return font;
}

}  // namespace

void TypeDelegate::initStyleOption(QStyleOptionViewItem* option,
                                   const QModelIndex& index) const {
  MarkedDelegate::initStyleOption(option, index);
  if (option->rect.isEmpty()) return;
  // The end of the row is taken. By their ends the captions differ.
  const int taken =
      QFontMetrics(Quiet(option->font))
          .horizontalAdvance(index.data(kTellRole).toString()) +
      2 * kGap +
      ((option->features & QStyleOptionViewItem::HasDecoration) != 0
           ? option->decorationSize.width() + kGap
           : 0);
  option->text = option->fontMetrics.elidedText(option->text, Qt::ElideMiddle,
                                                option->rect.width() - taken);
}

void TypeDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem row = option;
  const int heading = HeadingHeight(option, index.row());
  row.rect.setTop(row.rect.top() + heading);
  MarkedDelegate::paint(painter, row, index);
  painter->save();
  painter->setFont(Quiet(option.font));
  painter->setPen(option.palette.color(QPalette::PlaceholderText));
  if (heading > 0) {
    painter->drawText(QRect(option.rect.left() + kGap / 2, option.rect.top(),
                            option.rect.width(), heading),
                      Qt::AlignLeft | Qt::AlignBottom, HeadingAt(index.row()));
  }
  if ((option.state & QStyle::State_Selected) != 0) {
    painter->setPen(option.palette.color(QPalette::HighlightedText));
  }
  painter->drawText(row.rect.adjusted(0, 0, -kGap, 0),
                    Qt::AlignRight | Qt::AlignVCenter,
                    index.data(kTellRole).toString());
  painter->restore();
}

QSize TypeDelegate::sizeHint(const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  QSize size = MarkedDelegate::sizeHint(option, index);
  size.rheight() += HeadingHeight(option, index.row());
  return size;
}

void FillTypes(QListWidget& types) {
  for (const ChatTypeId type : kAllChatTypes) {
    AddEntry(types, ChatTypeAt(type).Caption, ChatTypeHelp(type));
  }
  FitWidth(types);
  // Room for what stands at the end.
  const int end =
      types.fontMetrics().horizontalAdvance(QStringLiteral("00 \u00b7 000 %"));
  types.setMaximumWidth(types.maximumWidth() + end);
}

void MarkTypes(const ChatMarks& marks, QListWidget& types) {
  for (const ChatTypeId type : kAllChatTypes) {
    // A type shows the gravest of its lines.
    std::optional<Severity> gravest;
    for (auto mark = marks.lower_bound({type, std::nullopt});
         mark != marks.end() && mark->first.first == type; ++mark) {
      gravest = gravest ? std::min(*gravest, *mark->second.gravest)
                        : mark->second.gravest;
    }
    const bool is_marked = gravest && *gravest != Severity::kHint;
    types.item(static_cast<int>(type))
        ->setIcon(is_marked ? SeverityIcon(*gravest, *types.style()) : QIcon());
  }
}

void TellOfLines(const Bot& bot, QListWidget& types) {
  for (const ChatTypeId type : kAllChatTypes) {
    const auto lines = std::ranges::count_if(
        bot.ChatLines(type),
        [](const std::string& line) { return !line.empty(); });
    const QString chance = ChanceOfLine(bot, type);
    QListWidgetItem* const item = types.item(static_cast<int>(type));
    item->setData(kTellRole,
                  QStringLiteral("%1 \u00b7 %2").arg(lines).arg(chance));
    item->setData(Qt::AccessibleDescriptionRole,
                  ChatPage::tr("Lines: %1. Spoken: %2.")
                          .arg(QString::number(lines), chance) +
                      u' ' + ChatTypeHelp(type));
  }
}

}  // namespace fragsmith
