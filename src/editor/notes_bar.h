#ifndef FRAGSMITH_EDITOR_NOTES_BAR_H_
#define FRAGSMITH_EDITOR_NOTES_BAR_H_

#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "support/notes.h"

namespace fragsmith {

/// A quiet bar above the pages: what a load noticed, with the list behind it,
/// or the offer of a draft. It never keeps the user from working on.
class NotesBar : public QFrame {
  Q_OBJECT

 public:
  explicit NotesBar(QWidget* parent = nullptr);

  /// The notes of a load; hides the bar when there are none. The button for
  /// the game's values is there when some differ.
  void ShowNotes(const Notes& notes, bool has_plain_values);

  void OfferDraft(const QString& bot_name);

 signals:
  void TakeAsGame();
  void TakeDraft();
  void DiscardDraft();

 private:
  void HideAll();

  QLabel* text_;
  QPushButton* list_button_;
  QPushButton* as_game_button_;
  QPushButton* draft_button_;
  QPushButton* discard_button_;
  QPushButton* close_button_;
  QListWidget* list_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_NOTES_BAR_H_
