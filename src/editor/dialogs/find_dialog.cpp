#include "editor/dialogs/find_dialog.h"

#include <QLabel>
#include <QVBoxLayout>

namespace fragsmith {

frmFind::frmFind(const Bot& bot, QWidget* parent)
    : QDialog(parent),
      box_(new QLineEdit(this)),
      list_(new QListView(this)),
      places_(new BotPlacesModel(bot, list_)),
      matches_(new WordsFilter(*places_, list_)),
      hint_(new HintLine(1, this)) {
  setObjectName(QStringLiteral("frmFind"));
  setWindowTitle(tr("Find"));
  auto* const label =
      new QLabel(tr("&Words of a parameter's name or of a chat line:"), this);
  label->setBuddy(box_);
  box_->setObjectName(QStringLiteral("txtFind"));
  box_->setAccessibleName(tr("Words to find"));
  box_->setClearButtonEnabled(true);
  LetBoxLeadList(box_, list_);
  list_->setObjectName(QStringLiteral("lstFound"));
  list_->setAccessibleName(tr("Found"));
  list_->setUniformItemSizes(true);
  list_->setModel(matches_);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(label);
  column->addWidget(box_);
  column->addWidget(list_, 1);
  column->addWidget(hint_);
  column->addWidget(MakeButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
                                this, tr("Cancel")));
  connect(box_, &QLineEdit::textChanged, this, &frmFind::ShowMatches);
  connect(list_, &QListView::doubleClicked, this, &frmFind::accept);

  ShowMatches();
  const int line = fontMetrics().lineSpacing();
  resize(34 * line, 24 * line);
  box_->setFocus();
}

void frmFind::ShowMatches() {
  matches_->SetText(box_->text());
  const QModelIndex first = matches_->index(0, 0);
  list_->setCurrentIndex(first);
  list_->scrollToTop();
  hint_->Say(first.isValid() ? QString()
                             : tr("No parameter and no chat line has this."));
}

BotPlace frmFind::Chosen() const {
  const QModelIndex current = list_->currentIndex();
  return current.isValid() ? places_->PlaceAt(matches_->mapToSource(current))
                           : BotPlace();
}

void frmFind::accept() {
  // Nothing found is nowhere to go: the words stay to be mended.
  if (list_->currentIndex().isValid()) QDialog::accept();
}

}  // namespace fragsmith
