#ifndef FRAGSMITH_EDITOR_PAGES_CHAT_PAGE_H_
#define FRAGSMITH_EDITOR_PAGES_CHAT_PAGE_H_

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <map>
#include <optional>
#include <string>

#include "chat/synonym_list.h"
#include "editor/controls/caption_mark.h"
#include "editor/pages/chat_type_rows.h"
#include "editor/pages/pointer_buttons.h"
#include "editor/pages/ready_made_picker.h"
#include "editor/pages/scrolling_page.h"
#include "editor/pages/spoken_preview.h"
#include "editor/pages/variable_completion.h"
#include "editor/state/current_bot.h"
#include "support/prompts.h"
#include "support/random.h"

class QGridLayout;

namespace fragsmith {

/// The page on which the bot's chat lines are written: the chat types, the
/// lines of the selected type, a box for the selected line, and the lists and
/// buttons that put ready-made lines and variables in.
class ChatPage : public ScrollingPage {
  Q_OBJECT

 public:
  /// The page keeps references to the bot, the list and the prompts.
  ChatPage(CurrentBot& current, const SynonymList& synonyms,
           RandomSource random, Prompts& prompts, QWidget* parent = nullptr);

  /// Shows the lines of the bot; the selected type stays selected.
  void ShowBot() override;

  /// The same after an edit was taken back: the line and the cursor stay.
  void ShowAgain();

  /// Selects a chat type and, where the place has one, a line of it.
  void GoTo(const ChatPlace& place);

  /// Shows beside types and lines what the game will do with them.
  void ShowMarks(const std::vector<Finding>& findings);

  /// Whose words the sample of a line uses; null for our own.
  void SetGame(const GameData* game);

  /// Does what leaving the line box does, while the user is in it: what was
  /// typed there is done before any command.
  void StoreTyping();

  /// One more random line for each type.
  void AddExtraChatsToBot();
  void DeleteAllChats();

 signals:
  /// A word for the status bar.
  void StatusText(const QString& text);

 protected:
  QWidget* MakeContent() override;
  /// The line box is checked for synonyms when it is left.
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void MakeTypes(QGridLayout& grid);
  void MakeLines(QGridLayout& grid);
  void MakeWords(QGridLayout& grid);
  void MakeSynonyms(QGridLayout& grid);

  std::optional<ChatTypeId> Type() const {
    return ChatTypeOfIndex(types_->currentRow());
  }
  /// The selected one.
  std::optional<ChatLineIndex> Line() const;

  /// The name of an edit of the selected type, or of one line of it.
  EditName NameOf(const QString& text,
                  std::optional<ChatLineIndex> line = std::nullopt) const;

  void ShowType();
  /// What goes with a type whatever its lines are.
  void ShowOffers();
  void AddRow(const QString& line);
  /// By its row; -1 for none.
  void SelectLine(int row);
  void SelectLine(ChatLineIndex line);
  void ShowLine();
  void StoreLine();
  void ShowSpoken();
  void MarkLines();

  void AddSelectedList(int group, int number);
  void AddWord();
  void AddLine();
  void RemoveLine();
  void AddRandomList();
  void CheckSynonyms();
  void CheckSynonymsByItself();
  void TellThatSynonymsAreMissing();

  void Insert(const QString& variable);
  void InsertTyped(int from, const QString& variable);
  /// Puts a text into the line box as one edit that can be taken back.
  void ReplaceText(const std::string& game_text);

  CurrentBot& current_;
  const SynonymList& synonyms_;
  RandomSource random_;
  Prompts& prompts_;
  const WordLists* game_words_ = nullptr;  ///< Null where none are known.

  QListWidget* types_ = nullptr;
  QListWidget* lines_ = nullptr;
  QLineEdit* box_ = nullptr;
  PointerButtons* pointers_ = nullptr;
  QPushButton* remove_line_ = nullptr;
  ReadyMadePicker* ready_made_ = nullptr;
  VariableCompletion* completion_ = nullptr;
  QListWidget* words_ = nullptr;
  QPushButton* add_word_ = nullptr;
  QPushButton* check_ = nullptr;
  QCheckBox* checks_by_itself_ = nullptr;
  SpokenPreview* spoken_ = nullptr;
  /// By type and line.
  ChatMarks marks_;
  /// True until the message of the automatic check is closed: that takes the
  /// focus from the line box and would set the check off again.
  bool is_checking_ = false;
  bool is_inserting_ = false;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_CHAT_PAGE_H_
