#include "editor/pages/chat_page.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QSignalBlocker>
#include <QTimer>
#include <algorithm>
#include <optional>
#include <utility>

#include "chat/chat_catalogue.h"
#include "chat/chat_commands.h"
#include "editor/pages/chat_help.h"
#include "editor/toolkit/code_page_validator.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/page_table.h"
#include "editor/toolkit/severity_icon.h"
#include "editor/toolkit/tool_tip.h"

namespace fragsmith {

ChatPage::ChatPage(CurrentBot& current, const SynonymList& synonyms,
                   RandomSource random, Prompts& prompts, QWidget* parent)
    : ScrollingPage(parent),
      current_(current),
      synonyms_(synonyms),
      random_(std::move(random)),
      prompts_(prompts) {}

void ChatPage::ShowBot() {
  if (IsComplete()) ShowType();
}

void ChatPage::ShowAgain() {
  if (!IsComplete()) return;
  const int row = lines_->currentRow();
  const int cursor = box_->cursorPosition();
  ShowType();
  if (row < 0 || lines_->count() == 0) return;
  SelectLine(std::min(row, lines_->count() - 1));
  box_->setCursorPosition(cursor);
}

void ChatPage::GoTo(const ChatPlace& place) {
  Complete();
  types_->setCurrentRow(static_cast<int>(place.type));
  if (place.line && RowOf(*place.line) < lines_->count()) {
    SelectLine(*place.line);
  }
}

void ChatPage::ShowType() {
  const std::optional<ChatTypeId> type = Type();
  {
    const QSignalBlocker silence(lines_);
    lines_->clear();
    if (type) {
      for (const std::string& line : current_.bot().ChatLines(*type)) {
        AddRow(ToQString(line));
      }
    }
  }
  MarkLines();
  SelectLine(lines_->count() > 0 ? 0 : -1);
}

void ChatPage::ShowOffers() {
  pointers_->ShowType(Type());
  if (!Type()) return;
  completion_->Offer(VariablesFor(*Type(), game_words_));
  ready_made_->ShowType(*Type());
}

void ChatPage::AddRow(const QString& line) {
  auto* const row = new QListWidgetItem(line, lines_);
  // Lines are dropped between others, not on them.
  row->setFlags(row->flags() & ~Qt::ItemIsDropEnabled);
}

std::optional<ChatLineIndex> ChatPage::Line() const {
  const int row = lines_->currentRow();
  return row < 0 ? std::nullopt : std::optional(LineOfRow(row));
}

void ChatPage::SelectLine(int row) {
  {
    const QSignalBlocker silence(lines_);
    lines_->setCurrentRow(row);
  }
  ShowLine();
}

void ChatPage::SelectLine(ChatLineIndex line) { SelectLine(RowOf(line)); }

void ChatPage::ShowLine() {
  const bool has_line = Type() && Line();
  QString text;
  if (has_line) text = ToQString(current_.bot().ChatLine(*Type(), *Line()));
  // A line that the box cannot show whole may be read, but not edited.
  const bool can_edit = has_line && text.size() <= box_->maxLength();
  {
    const CurrentBot::Filling filling(current_);
    box_->setText(text.left(box_->maxLength()));
  }
  box_->setEnabled(has_line);
  box_->setReadOnly(!can_edit);
  remove_line_->setEnabled(has_line);
  for (QWidget* const control :
       std::initializer_list<QWidget*>{pointers_, add_word_, check_}) {
    control->setEnabled(can_edit);
  }
  ShowSpoken();
}

void ChatPage::ShowSpoken() {
  // The line of a bad file may have megabytes.
  constexpr std::size_t kMaxBytes = 1024;
  if (!isVisible() || !Type()) return;
  const bool has_line = Line().has_value();
  spoken_->ShowLine(
      current_.bot(), *Type(),
      has_line ? current_.bot().ChatLine(*Type(), *Line()).substr(0, kMaxBytes)
               : std::string());
}

void ChatPage::SetGame(const GameData* game) {
  Complete();
  spoken_->SetGame(game);
  game_words_ =
      game != nullptr && !game->words.empty() ? &game->words : nullptr;
  ready_made_->SetWords(game_words_);
  if (Type()) completion_->Offer(VariablesFor(*Type(), game_words_));
}

void ChatPage::showEvent(QShowEvent* event) {
  ScrollingPage::showEvent(event);
  ShowSpoken();
}

void ChatPage::ShowMarks(const std::vector<Finding>& findings) {
  Complete();
  marks_.clear();
  for (const Finding& finding : findings) {
    const auto* const place = std::get_if<ChatPlace>(&finding.place);
    if (place != nullptr) marks_[{place->type, place->line}].Add(finding);
  }
  MarkTypes(marks_, *types_);
  types_->viewport()->update();
  MarkLines();
}

void ChatPage::MarkLines() {
  for (int row = 0; row < lines_->count(); ++row) {
    const auto mark =
        Type() ? marks_.find({*Type(), LineOfRow(row)}) : marks_.end();
    const bool has_mark = mark != marks_.end();
    lines_->item(row)->setIcon(
        has_mark ? SeverityIcon(*mark->second.gravest, *style()) : QIcon());
    lines_->item(row)->setToolTip(
        has_mark ? WrappedToolTip({}, mark->second.text) : QString());
  }
  lines_->viewport()->update();
}

void ChatPage::StoreLine() {
  if (current_.is_filling() || !Type() || !Line()) return;
  const std::optional<std::string> text = ToGameText(box_->text());
  if (!text) {
    // A line that was odd already lets everything past the validator.
    ShowLine();
    emit StatusText(CodePageValidator::tr(kRefusedCharacter));
    return;
  }
  EditName name = NameOf(tr("Chat line"), Line());
  // What is inserted goes without what was typed.
  name.merges = !is_inserting_;
  current_.EditChats(name, [this, &text](Bot& bot) {
    bot.SetChatLine(*Type(), *Line(), *text);
  });
  lines_->currentItem()->setText(box_->text());
  ShowSpoken();
}

EditName ChatPage::NameOf(const QString& text,
                          std::optional<ChatLineIndex> line) const {
  EditName name = {.text = text, .place = {}, .merges = false};
  if (const std::optional<ChatTypeId> type = Type()) {
    name.place = ChatPlace{.type = *type, .line = line};
  }
  // Letters that are typed into one line are one edit.
  name.merges = line.has_value();
  return name;
}

void ChatPage::AddSelectedList(int group, int number) {
  if (!Type()) return;
  const std::optional<ChatLineIndex> selected = Line();
  ChatLineIndex line;
  current_.EditChats(
      NameOf(QStringLiteral("Add selected list")), [&](Bot& bot) {
        line = AddGroupMember(bot, *Type(), selected, group, number);
      });
  const QString text = ToQString(current_.bot().ChatLine(*Type(), line));
  const int row = RowOf(line);
  if (row < lines_->count()) {
    lines_->item(row)->setText(text);
  } else {
    const QSignalBlocker silence(lines_);
    AddRow(text);
  }
  lines_->scrollToItem(lines_->item(row));
  if (!selected || *selected == line) SelectLine(line);
}

void ChatPage::AddWord() {
  const int word = words_->currentRow();
  if (word < 0) return;
  Insert(QString::fromUtf8(
      kWordLists.at(static_cast<std::size_t>(word)).Variable));
}

void ChatPage::AddLine() {
  if (!Type()) return;
  ChatLineIndex line;
  current_.EditChats(NameOf(QStringLiteral("New line")),
                     [&](Bot& bot) { line = AddEmptyChatLine(bot, *Type()); });
  {
    const QSignalBlocker silence(lines_);
    AddRow(QString());
  }
  SelectLine(line);
  box_->setFocus(Qt::OtherFocusReason);
}

void ChatPage::RemoveLine() {
  const std::optional<ChatLineIndex> line = Line();
  if (!Type() || !line) return;
  current_.EditChats(NameOf(QStringLiteral("Remove line")),
                     [&](Bot& bot) { bot.RemoveChatLine(*Type(), *line); });
  {
    const QSignalBlocker silence(lines_);
    delete lines_->takeItem(RowOf(*line));
  }
  SelectLine(std::min(RowOf(*line), lines_->count() - 1));
}

void ChatPage::AddRandomList() {
  if (!Type()) return;
  ChatLineIndex line;
  current_.EditChats(NameOf(QStringLiteral("Add random list")), [&](Bot& bot) {
    line = AddRandomChatLine(bot, *Type(), random_);
  });
  ShowType();
  lines_->scrollToItem(lines_->item(RowOf(line)));
}

void ChatPage::AddExtraChatsToBot() {
  Complete();
  current_.EditChats(NameOf(QStringLiteral("Add extra chats")),
                     [this](Bot& bot) { AddExtraChats(bot, random_); });
  ShowType();
}

void ChatPage::DeleteAllChats() {
  Complete();
  current_.EditChats(NameOf(QStringLiteral("Delete all chats")),
                     [](Bot& bot) { bot.ClearChats(); });
  ShowType();
}

void ChatPage::Insert(const QString& variable) {
  const std::optional<std::string> text = ToGameText(box_->text());
  const std::optional<std::string> inserted = ToGameText(variable);
  if (!Line() || box_->isReadOnly() || !text || !inserted) return;
  // A character of the box is a byte of the text.
  const LineText line = InsertVariable(
      {*text, static_cast<std::size_t>(box_->cursorPosition())}, *inserted);
  is_inserting_ = true;
  ReplaceText(line.text);
  is_inserting_ = false;
  box_->setFocus(Qt::OtherFocusReason);
  box_->setCursorPosition(static_cast<int>(line.cursor));
}

void ChatPage::InsertTyped(int from, const QString& variable) {
  QString text = box_->text();
  text.replace(from, box_->cursorPosition() - from, variable);
  const std::optional<std::string> game_text = ToGameText(text);
  if (!Line() || box_->isReadOnly() || !game_text) return;
  is_inserting_ = true;
  ReplaceText(*game_text);
  is_inserting_ = false;
  box_->setCursorPosition(from + static_cast<int>(variable.size()));
}

void ChatPage::ReplaceText(const std::string& game_text) {
  box_->selectAll();
  box_->insert(ToQString(game_text));
}

void ChatPage::CheckSynonyms() {
  const std::optional<std::string> text = ToGameText(box_->text());
  if (!Line() || !text) return;
  const std::string marked = MarkSynonyms(*text, synonyms_, prompts_);
  if (marked == *text) return;
  const int cursor = CursorAmongMarks(*text, marked, box_->cursorPosition());
  ReplaceText(marked);
  box_->setCursorPosition(cursor);
}

void ChatPage::StoreTyping() {
  if (!IsComplete() || synonyms_.IsEmpty()) return;
  if (window()->focusWidget() == box_) CheckSynonymsByItself();
}

void ChatPage::CheckSynonymsByItself() {
  if (is_checking_ || !checks_by_itself_->isChecked() || !Line() ||
      box_->isReadOnly()) {
    return;
  }
  if (!synonyms_.IsEmpty()) {
    CheckSynonyms();
    return;
  }
  is_checking_ = true;
  QTimer::singleShot(0, this, &ChatPage::TellThatSynonymsAreMissing);
}

void ChatPage::TellThatSynonymsAreMissing() {
  // Not in the middle of the click that moves the focus, which would be lost.
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    constexpr int kPauseMilliseconds = 20;
    QTimer::singleShot(kPauseMilliseconds, this,
                       &ChatPage::TellThatSynonymsAreMissing);
    return;
  }
  MarkSynonyms({}, synonyms_, prompts_);
  is_checking_ = false;
}

bool ChatPage::eventFilter(QObject* watched, QEvent* event) {
  if (watched == box_ && event->type() == QEvent::FocusOut) {
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    const bool stays_in_window = reason != Qt::ActiveWindowFocusReason &&
                                 reason != Qt::PopupFocusReason &&
                                 reason != Qt::MenuBarFocusReason;
    if (stays_in_window) CheckSynonymsByItself();
  }
  return ScrollingPage::eventFilter(watched, event);
}

}  // namespace fragsmith
