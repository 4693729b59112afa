#ifndef FRAGSMITH_EDITOR_PANELS_NOTES_BAR_H_
#define FRAGSMITH_EDITOR_PANELS_NOTES_BAR_H_

#include "editor/panels/list_bar.h"

namespace fragsmith {

/// What a load noticed.
class NotesBar : public ListBar {
  Q_OBJECT

 public:
  explicit NotesBar(QWidget* parent = nullptr);

  /// Hides the bar when there are no notes.
  void ShowNotes(const Notes& notes);

  /// Shows or hides the button for the game's values beside the notes that
  /// were shown last.
  void OfferValuesAsGame(bool has_odd_values);

 signals:
  void TakeAsGame();

 private:
  QPushButton* as_game_button_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PANELS_NOTES_BAR_H_
