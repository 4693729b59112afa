#ifndef FRAGSMITH_EDITOR_DIALOGS_CHANGES_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_CHANGES_DIALOG_H_

#include <QDialog>
#include <QString>

namespace fragsmith {

/// What saving again would change in the bot's files: a unified diff, to be
/// read and copied.
class frmChanges : public QDialog {
  Q_OBJECT

 public:
  explicit frmChanges(const QString& diff, QWidget* parent = nullptr);
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_CHANGES_DIALOG_H_
