#include "editor/controls/max_select.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QSignalBlocker>
#include <iterator>

#include "model/value_scale.h"

namespace fragsmith {

MaxSelect::MaxSelect(QWidget* parent)
    : QWidget(parent), buttons_(new QButtonGroup(this)) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  for (int index = 0; index < static_cast<int>(std::size(kWeightMaxima));
       ++index) {
    const QString maximum = QString::number(kWeightMaxima[index]);
    auto* const button = new QRadioButton(maximum, this);
    button->setObjectName(QStringLiteral("opScale_%1").arg(index));
    button->setAccessibleName(tr("Scale from 0 to %1").arg(maximum));
    buttons_->addButton(button, index);
    row->addWidget(button);
  }
  row->addStretch();
  buttons_->button(0)->setChecked(true);
  connect(buttons_, &QButtonGroup::idToggled, this,
          [this](int index, bool is_chosen) {
            if (is_chosen) emit AdjustScale(kWeightMaxima[index]);
          });
}

void MaxSelect::Select(int max) {
  const QSignalBlocker silence(buttons_);
  for (QAbstractButton* button : buttons_->buttons()) {
    if (kWeightMaxima[buttons_->id(button)] == max) button->setChecked(true);
  }
}

int MaxSelect::Selected() const { return kWeightMaxima[buttons_->checkedId()]; }

}  // namespace fragsmith
