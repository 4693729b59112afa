#ifndef FRAGSMITH_EDITOR_DIALOGS_LIBRARY_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_LIBRARY_DIALOG_H_

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <optional>
#include <vector>

#include "editor/dialogs/dialog_parts.h"
#include "editor/models/library_model.h"
#include "editor/state/face_store.h"

namespace fragsmith {

/// Shows all bots that are known of, and what can be done with one of them.
class frmLibrary : public QDialog {
  Q_OBJECT

 public:
  enum class Action { kOpen, kDuplicate, kCompare };

  /// The store and the skins of the bots outlive the dialog.
  frmLibrary(std::vector<LibraryBot> bots, FaceStore& faces,
             QWidget* parent = nullptr);

  /// What was asked for, once accepted.
  Action WantedAction() const { return action_; }
  /// Of the bots that were handed in.
  std::size_t Chosen() const;

 private:
  QPushButton* MakeButton(const char* name, const QString& text, Action action);
  void Filter(const QString& text);
  void Finish(Action action);

  QLineEdit* filter_;
  QTreeView* list_;
  LibraryModel* model_;
  QSortFilterProxyModel* matches_;
  HintLine* hint_;
  std::vector<QPushButton*> actions_;
  Action action_ = Action::kOpen;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_LIBRARY_DIALOG_H_
