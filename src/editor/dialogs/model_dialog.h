#ifndef FRAGSMITH_EDITOR_DIALOGS_MODEL_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_MODEL_DIALOG_H_

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <string>

#include "support/prompts.h"

namespace fragsmith {

/// Asks for the name of a new model. It closes with "OK" only for a name that
/// a model can have; adding it is the caller's.
class frmModelDialog : public QDialog {
  Q_OBJECT

 public:
  explicit frmModelDialog(Prompts& prompts, QWidget* parent = nullptr);

  /// The name as it was typed, as game text.
  std::string Name() const;

  bool CreatesRedAndBlue() const { return red_and_blue_->isChecked(); }

  void accept() override;

 private:
  Prompts& prompts_;
  QLineEdit* name_;
  QCheckBox* red_and_blue_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_MODEL_DIALOG_H_
