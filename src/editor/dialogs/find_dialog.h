#ifndef FRAGSMITH_EDITOR_DIALOGS_FIND_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_FIND_DIALOG_H_

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QString>
#include <vector>

#include "checks/finding.h"
#include "editor/dialogs/dialog_parts.h"
#include "model/bot.h"

namespace fragsmith {

/// Looks for a parameter, an identity field or a chat line by any words of its
/// name, text or key in the game's files, while they are typed.
class frmFind : public QDialog {
  Q_OBJECT

 public:
  explicit frmFind(const Bot& bot, QWidget* parent = nullptr);

  /// Where to go to, once accepted.
  FindingPlace Chosen() const;

  void accept() override;

 protected:
  /// Up and Down move in the list while the box keeps the focus.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Entry {
    QString text;    ///< As it is listed.
    QString sought;  ///< In what the words are looked for, in small letters.
    FindingPlace place;
  };

  void CollectParameters();
  void CollectChats(const Bot& bot);
  void ShowMatches();

  std::vector<Entry> entries_;
  std::vector<std::size_t> matches_;
  QLineEdit* box_;
  QListWidget* list_;
  HintLine* hint_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_FIND_DIALOG_H_
