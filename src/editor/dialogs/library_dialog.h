#ifndef FRAGSMITH_EDITOR_DIALOGS_LIBRARY_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_LIBRARY_DIALOG_H_

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTimer>
#include <QTreeView>
#include <cstddef>
#include <functional>
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

  struct Removal {
    bool is_done = false;
    QString text;  ///< What became of it.
  };
  /// What is done with the bot of a place in the list. Behind one that was
  /// removed all places are one less.
  struct Work {
    std::function<FindingCounts(std::size_t)> check;
    std::function<Removal(std::size_t)> remove;
  };

  /// The store and the skins of the bots outlive the dialog.
  frmLibrary(std::vector<LibraryBot> bots, Work work, FaceStore& faces,
             QWidget* parent = nullptr);

  /// What was asked for, once accepted.
  Action WantedAction() const { return action_; }
  /// The place of the bot that it was asked of.
  std::size_t Chosen() const;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QPushButton* MakeButton(const char* name, const QString& text);
  QPushButton* MakeButton(const char* name, const QString& text, Action action);
  void MakeList(FaceStore& faces);
  void Filter(const QString& text);
  void ShowButtons();
  void ShowMenu(const QPoint& place);
  void Finish(Action action);
  void Remove();
  /// Checks a bot that was not checked yet, those in sight first.
  void CheckNext();
  /// The row in the list; -1 when all were.
  int NextUnchecked() const;

  QLineEdit* filter_;
  QTreeView* list_;
  LibraryModel* model_;
  QSortFilterProxyModel* matches_;
  HintLine* hint_;
  std::vector<QPushButton*> actions_;
  QPushButton* remove_ = nullptr;
  Work work_;
  QTimer checking_;
  Action action_ = Action::kOpen;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_LIBRARY_DIALOG_H_
