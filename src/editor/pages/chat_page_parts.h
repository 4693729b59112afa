#ifndef FRAGSMITH_EDITOR_PAGES_CHAT_PAGE_PARTS_H_
#define FRAGSMITH_EDITOR_PAGES_CHAT_PAGE_PARTS_H_

#include <QCoreApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QString>
#include <QStyledItemDelegate>
#include <cstddef>
#include <string_view>

#include "editor/toolkit/code_page_validator.h"
#include "model/chat_line_index.h"

namespace fragsmith {

// What the chat page is put together from.

/// The list shows a type's lines in their order.
inline ChatLineIndex LineOfRow(int row) {
  return ChatLineIndex(static_cast<std::size_t>(row));
}
inline int RowOf(ChatLineIndex line) { return static_cast<int>(line.index()); }

/// The same words for the tool tip, the help and assistive tools.
void SetHelp(QWidget& widget, const QString& help);

/// A list below its label.
QListWidget* MakeList(const QString& name, const QString& caption,
                      QGridLayout& grid, int column, int rows);

/// Makes the list as wide as the longest of its entries.
void FitWidth(QListWidget& list);

void AddEntry(QListWidget& list, std::string_view text, const QString& help);

QPushButton* MakeButton(const QString& name, const QString& caption,
                        const QString& help);

/// The box for the text of the selected line.
QLineEdit* MakeLineBox();

/// Where the cursor of a text stands once some of its words have a "~". One
/// before a word comes to stand before its mark.
int CursorAmongMarks(std::string_view text, std::string_view marked,
                     int cursor);

/// Keeps room for a mark in front of each entry, so that nothing moves when
/// there is one.
class MarkedDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option,
                       const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->features |= QStyleOptionViewItem::HasDecoration;
    const int side = option->fontMetrics.ascent();
    option->decorationSize = QSize(side, side);
  }
};

/// Shows the lines as the list has room for them.
class LineDelegate : public MarkedDelegate {
 public:
  using MarkedDelegate::MarkedDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option,
                       const QModelIndex& index) const override {
    MarkedDelegate::initStyleOption(option, index);
    if (option->text.isEmpty()) {
      option->text = QCoreApplication::translate("ChatPage", "(empty line)");
      option->palette.setBrush(
          QPalette::Text, option->palette.brush(QPalette::PlaceholderText));
    }
    // A line of a bad file may have megabytes.
    option->text.truncate(500);
  }
};

/// Lets control characters stand that the line of a file may have. The box
/// would take all of such a line for refused otherwise.
class LineValidator : public CodePageValidator {
 public:
  using CodePageValidator::CodePageValidator;

  State validate(QString& text, int& position) const override {
    JoinLines(text, position);
    QString plain = text;
    for (QChar& letter : plain) {
      const bool ends_text = letter == u'\0' || letter == u'\t' ||
                             letter == u'\n' || letter == u'\r';
      if (letter < u' ' && !ends_text) letter = u' ';
    }
    return CodePageValidator::validate(plain, position);
  }
};

/// What a double click on an entry does, and Enter while the list has the
/// focus. (The "activated" of a list would also be a single click on some
/// desktops.)
template <typename Action>
void OnChoice(QListWidget& list, QObject* receiver, Action action) {
  QObject::connect(&list, &QListWidget::itemDoubleClicked, receiver, action);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* const shortcut = new QShortcut(QKeySequence(key), &list);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, receiver, action);
  }
}

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_CHAT_PAGE_PARTS_H_
