#include "editor/dialogs/search_progress.h"

#include <QCoreApplication>
#include <QEvent>
#include <QVBoxLayout>

#include "editor/dialogs/dialog_parts.h"

namespace fragsmith {
namespace {

/// A folder may hold thousands of small packages; showing each would take
/// longer than reading it.
constexpr int kMillisecondsBetweenShows = 40;

}  // namespace

frmSearchBaseQ3::frmSearchBaseQ3(QWidget* parent)
    : QDialog(parent), bar_(new QProgressBar(this)), count_(new QLabel(this)) {
  setObjectName(QStringLiteral("frmSearchBaseQ3"));
  setWindowTitle(QStringLiteral("Please stand by"));
  auto* const label = new QLabel(QStringLiteral("Browising BaseQ3..."), this);
  label->setObjectName(QStringLiteral("lblSearch"));
  label->setBuddy(bar_);
  bar_->setObjectName(QStringLiteral("barProgress"));
  bar_->setAccessibleName(tr("Packages searched"));
  bar_->setTextVisible(false);
  // Without a range it only moves, until the number of packages is known.
  bar_->setRange(0, 0);
  bar_->setMinimumWidth(40 * fontMetrics().averageCharWidth());
  count_->setObjectName(QStringLiteral("lblProgress"));
  QDialogButtonBox* const buttons = MakeButtons(QDialogButtonBox::Cancel, this);
  cancel_ = buttons->button(QDialogButtonBox::Cancel);

  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addWidget(bar_);
  layout->addWidget(count_);
  layout->addStretch();
  layout->addWidget(buttons);
}

void frmSearchBaseQ3::ShowProgress(std::size_t done, std::size_t total) {
  const bool is_end = done == 0 || done == total;
  if (!is_end && since_shown_.isValid() &&
      !since_shown_.hasExpired(kMillisecondsBetweenShows)) {
    return;
  }
  since_shown_.start();
  bar_->setRange(0, static_cast<int>(total));
  bar_->setValue(static_cast<int>(done));
  if (!was_cancelled_) {
    count_->setText(tr("%1 of %2 packages").arg(done).arg(total));
  }
  QCoreApplication::processEvents();
}

void frmSearchBaseQ3::reject() {
  was_cancelled_ = true;
  cancel_->setEnabled(false);
  count_->setText(tr("Cancelling..."));
}

void frmSearchBaseQ3::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  // The owner is disabled meanwhile, and would take this window along.
  if (event->type() == QEvent::EnabledChange && !isEnabled()) setEnabled(true);
}

}  // namespace fragsmith
