// The controls of the chat page.

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>

#include "chat/chat_catalogue.h"
#include "chat/chat_commands.h"
#include "editor/pages/chat_help.h"
#include "editor/pages/chat_page.h"
#include "editor/pages/chat_page_parts.h"
#include "editor/pages/chat_type_rows.h"
#include "editor/pages/line_order.h"
#include "editor/toolkit/code_page_validator.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/page_table.h"
#include "editor/toolkit/tool_tip.h"

namespace fragsmith {

QWidget* ChatPage::MakeContent() {
  const CurrentBot::Filling filling(current_);
  auto* const content = new QWidget;
  auto* const column = new QVBoxLayout(content);
  auto* const frame = new QGroupBox(QString::fromUtf8(
      kPages.at(static_cast<std::size_t>(kChatPage)).frames.front().caption));
  column->addWidget(frame);
  auto* const grid = new QGridLayout(frame);
  // Made in the order of the Tab key.
  MakeTypes(*grid);
  MakeLines(*grid);
  ready_made_ = new ReadyMadePicker(*grid, 2, this);
  connect(ready_made_, &ReadyMadePicker::Chosen, this,
          &ChatPage::AddSelectedList);
  MakeWords(*grid);
  MakeSynonyms(*grid);
  spoken_ = new SpokenPreview(random_);
  grid->addWidget(spoken_, 6, 0, 1, 4);
  grid->setRowStretch(1, 3);
  grid->setRowStretch(2, 2);
  grid->setColumnStretch(1, 3);
  grid->setColumnStretch(2, 1);
  grid->setColumnStretch(3, 1);
  types_->setCurrentRow(0);
  words_->setCurrentRow(0);
  return content;
}

void ChatPage::MakeTypes(QGridLayout& grid) {
  types_ = MakeList(QStringLiteral("lstChatGroups"),
                    QStringLiteral("Chat gr&oups"), grid, 0, 5);
  types_->setItemDelegate(new TypeDelegate(types_));
  FillTypes(*types_);
  const auto tell = [this] { TellOfLines(current_.bot(), *types_); };
  for (const auto change : {&CurrentBot::ChatsEdited, &CurrentBot::Replaced}) {
    connect(&current_, change, types_, tell);
  }
  connect(&current_, &CurrentBot::ParameterEdited, types_, tell);
  connect(&current_, &CurrentBot::Stepped, types_, tell);
  tell();
  connect(types_, &QListWidget::currentRowChanged, this, [this] {
    ShowOffers();
    ShowType();
  });
}

void ChatPage::MakeLines(QGridLayout& grid) {
  lines_ = MakeList(QStringLiteral("lstChatLines"),
                    QStringLiteral("Chat group te&xts"), grid, 1, 2);
  lines_->setItemDelegate(new LineDelegate(lines_));
  connect(lines_, &QListWidget::currentRowChanged, this, &ChatPage::ShowLine);
  OnChoice(*lines_, this, [this] { box_->setFocus(Qt::OtherFocusReason); });
  // Without the other keys of a desktop for this, such as Ctrl+D.
  auto* const erase = new QShortcut(QKeySequence(Qt::Key_Delete), lines_);
  erase->setContext(Qt::WidgetShortcut);
  connect(erase, &QShortcut::activated, this, &ChatPage::RemoveLine);

  box_ = MakeLineBox();
  box_->installEventFilter(this);
  connect(box_, &QLineEdit::textChanged, this, &ChatPage::StoreLine);
  connect(box_, &QLineEdit::returnPressed, this,
          &ChatPage::CheckSynonymsByItself);
  connect(box_, &QLineEdit::inputRejected, this, [this] {
    emit StatusText(CodePageValidator::tr(kRefusedCharacter));
  });
  grid.addWidget(box_, 3, 1);
  completion_ = new VariableCompletion(*box_);
  connect(completion_, &VariableCompletion::Taken, this,
          &ChatPage::InsertTyped);

  pointers_ = new PointerButtons;
  const auto choose = [this](const QString& variable) {
    Insert(variable);
    const QString reason = WhyNotFilled(*Type(), variable);
    if (!reason.isEmpty()) emit StatusText(reason);
  };
  connect(pointers_, &PointerButtons::Chosen, this, choose);
  grid.addWidget(pointers_, 4, 1, 1, 3);

  auto* const buttons = new QHBoxLayout;
  QPushButton* const new_line =
      MakeButton(QStringLiteral("cmdNewLine"), QStringLiteral("New l&ine"),
                 tr("Adds an empty line to be written."));
  connect(new_line, &QPushButton::clicked, this, &ChatPage::AddLine);
  remove_line_ =
      MakeButton(QStringLiteral("cmdRemoveLine"), QStringLiteral("Remove line"),
                 tr("Removes the selected line. In the list of lines the "
                    "Delete key does the same."));
  connect(remove_line_, &QPushButton::clicked, this, &ChatPage::RemoveLine);
  QPushButton* const add_random = MakeButton(
      QStringLiteral("cmdAddRandom"), QStringLiteral("&Add random list"),
      tr("Adds a ready-made line of the game that suits the "
         "selected chat group, picked at random."));
  connect(add_random, &QPushButton::clicked, this, &ChatPage::AddRandomList);
  buttons->addWidget(new_line);
  buttons->addWidget(remove_line_);
  buttons->addWidget(add_random);
  auto* const order = new LineOrder(*lines_);
  const auto edit = [this](const QString& name, int step, auto change) {
    const int row = lines_->currentRow();
    current_.EditChats(NameOf(name), [&](Bot& bot) {
      change(bot, *Type(), LineOfRow(row), LineOfRow(row + step));
    });
    ShowType();
    SelectLine(row + step);
  };
  connect(order, &LineOrder::Moved, this,
          [edit](int step) { edit(tr("Move line"), step, MoveChatLine); });
  // The list shows it already, and is in the middle of it.
  connect(order, &LineOrder::Dragged, this, [this](int row, int to_row) {
    current_.EditChats(NameOf(tr("Move line")), [&](Bot& bot) {
      MoveChatLine(bot, *Type(), LineOfRow(row), LineOfRow(to_row));
    });
    MarkLines();
  });
  connect(order, &LineOrder::Doubled, this,
          [edit] { edit(tr("Duplicate line"), 1, DoubleChatLine); });
  // Beside the caption, where it asks for no width of its own.
  grid.addWidget(order, 0, 1, Qt::AlignRight | Qt::AlignBottom);
  buttons->addStretch(1);
  grid.addLayout(buttons, 5, 1);
}

void ChatPage::MakeWords(QGridLayout& grid) {
  words_ = MakeList(QStringLiteral("lstWords"),
                    QStringLiteral("Pre-def &word lists:"), grid, 3, 1);
  for (const WordList& words : kWordLists) {
    AddEntry(*words_, words.Caption,
             tr("%1 becomes a random word of the game's list %2. "
                "Not all game data have it.")
                 .arg(QString::fromUtf8(words.Variable),
                      QString::fromUtf8(words.Key)));
  }
  FitWidth(*words_);
  OnChoice(*words_, this, [this] { AddWord(); });
  add_word_ =
      MakeButton(QStringLiteral("cmdAddWord"), QStringLiteral("A&dd word"),
                 tr("Inserts the word list at the cursor of the line box. "
                    "With the cursor at the very start it takes the place "
                    "of the whole text."));
  connect(add_word_, &QPushButton::clicked, this, &ChatPage::AddWord);
  grid.addWidget(add_word_, 3, 3);
}

void ChatPage::MakeSynonyms(QGridLayout& grid) {
  const QString help = tr(
      "Puts ~ in front of each word of the line that is in the synonym list. "
      "The game may swap words for others of the same meaning; a word with ~ "
      "stays as it is.");
  check_ = MakeButton(QStringLiteral("cmdCheckSynonyms"),
                      QStringLiteral("Chec&k synonyms"), help);
  connect(check_, &QPushButton::clicked, this, &ChatPage::CheckSynonyms);
  checks_by_itself_ = new QCheckBox(QStringLiteral("Autocheck s&ynonyms"));
  checks_by_itself_->setObjectName(QStringLiteral("chkAutoSynonyms"));
  SetHelp(*checks_by_itself_,
          help + u' ' +
              tr("Done whenever the line box is left or Enter "
                 "is pressed in it."));
  auto* const row = new QHBoxLayout;
  row->addWidget(check_);
  row->addWidget(checks_by_itself_);
  row->addStretch(1);
  grid.addLayout(row, 5, 2, 1, 2);
}

}  // namespace fragsmith
