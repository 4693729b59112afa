#ifndef FRAGSMITH_EDITOR_DIALOGS_ABOUT_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_ABOUT_DIALOG_H_

#include <QDialog>

namespace fragsmith {

/// Which program this is, and its version.
class frmAbout : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(QWidget* parent = nullptr);
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_ABOUT_DIALOG_H_
