#ifndef FRAGSMITH_EDITOR_PAGES_READY_MADE_PICKER_H_
#define FRAGSMITH_EDITOR_PAGES_READY_MADE_PICKER_H_

#include <QGridLayout>
#include <QListWidget>
#include <optional>

#include "game/word_lists.h"
#include "model/chat_type_id.h"

namespace fragsmith {

/// The game's ready-made lines: their groups, the numbers of the selected one,
/// each with what the game says for it, and the button that adds one. It
/// follows the chat type that is worked on.
class ReadyMadePicker : public QObject {
  Q_OBJECT

 public:
  /// Puts its controls into the grid: captions stand in its first row, lists in
  /// the two below and buttons under them.
  ReadyMadePicker(QGridLayout& grid, int column, QObject* parent);

  /// Turns to the group that is made for the type.
  void ShowType(ChatTypeId type);

  /// The game's lines; null where none are known. Kept, not copied.
  void SetWords(const WordLists* words);

 signals:
  void Chosen(int group, int number);

 private:
  void ShowNumbers();
  void ShowRemarks();
  void Choose();

  ChatTypeId type_{0};
  const WordLists* words_ = nullptr;
  QListWidget* groups_;
  QListWidget* numbers_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_READY_MADE_PICKER_H_
