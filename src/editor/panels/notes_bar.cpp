#include "editor/panels/notes_bar.h"

namespace fragsmith {

NotesBar::NotesBar(QWidget* parent) : ListBar(QStringLiteral("Notes"), parent) {
  as_game_button_ = AddButton(tr("Take the values as the game reads them"),
                              QStringLiteral("cmdAsGame"));
  as_game_button_->hide();
  connect(as_game_button_, &QPushButton::clicked, this, &NotesBar::TakeAsGame);
  connect(AddButton(tr("Close"), QStringLiteral("cmdCloseNotes")),
          &QPushButton::clicked, this, &QWidget::hide);
}

void NotesBar::ShowNotes(const Notes& notes) {
  const auto count = notes.list().size() + notes.left_out();
  Say(count == 1 ? tr("One thing was noticed in the files.")
                 : tr("%1 things were noticed in the files.").arg(count),
      notes);
  setVisible(count > 0);
}

void NotesBar::OfferValuesAsGame(bool has_odd_values) {
  as_game_button_->setVisible(has_odd_values);
}

}  // namespace fragsmith
