#include "editor/dialogs/model_dialog.h"

#include <QLabel>
#include <QVBoxLayout>

#include "editor/dialogs/dialog_parts.h"
#include "editor/toolkit/game_text_conversion.h"
#include "install/program/model_commands.h"

namespace fragsmith {

frmModelDialog::frmModelDialog(Prompts& prompts, QWidget* parent)
    : QDialog(parent),
      prompts_(prompts),
      name_(new QLineEdit(this)),
      red_and_blue_(new QCheckBox(
          QStringLiteral("Create also &red and blue skins"), this)) {
  setObjectName(QStringLiteral("frmModelDialog"));
  setWindowTitle(QStringLiteral("Add model"));
  name_->setObjectName(QStringLiteral("txtName"));
  name_->setAccessibleName(tr("Name of the model"));
  name_->setMinimumWidth(48 * fontMetrics().averageCharWidth());
  red_and_blue_->setObjectName(QStringLiteral("chkRedBlue"));

  auto* const caption = new QLabel(tr("&Name:"), this);
  caption->setBuddy(name_);
  auto* const hint = new HintLine(1, this);
  RefuseForeignCharacters(name_, hint);
  connect(name_, &QLineEdit::textChanged, hint, [hint] { hint->Say({}); });

  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(caption);
  layout->addWidget(name_);
  layout->addWidget(red_and_blue_);
  layout->addWidget(hint);
  layout->addStretch();
  layout->addWidget(MakeButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
                                this, tr("Cancel")));
}

std::string frmModelDialog::Name() const {
  return ToGameText(name_->text()).value_or(std::string());
}

void frmModelDialog::accept() {
  if (AcceptsModelName(Name(), prompts_)) {
    QDialog::accept();
  } else {
    name_->setFocus();
    name_->selectAll();
  }
}

}  // namespace fragsmith
