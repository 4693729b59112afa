#ifndef FRAGSMITH_EDITOR_DIALOGS_FIND_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_FIND_DIALOG_H_

#include <QDialog>
#include <QLineEdit>
#include <QListView>

#include "editor/dialogs/dialog_parts.h"
#include "editor/models/bot_places_model.h"
#include "model/bot.h"
#include "model/bot_place.h"

namespace fragsmith {

/// Looks for a parameter, an identity field or a chat line by any words of its
/// name, text or key in the game's files, while they are typed.
class frmFind : public QDialog {
  Q_OBJECT

 public:
  explicit frmFind(const Bot& bot, QWidget* parent = nullptr);

  /// Where to go to, once accepted.
  BotPlace Chosen() const;

  void accept() override;

 private:
  void ShowMatches();

  QLineEdit* box_;
  QListView* list_;
  BotPlacesModel* places_;
  WordsFilter* matches_;
  HintLine* hint_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_FIND_DIALOG_H_
