#include "editor/dialogs/strength_list.h"

#include "chat/vocabulary.h"
#include "editor/dialogs/dialog_parts.h"
#include "editor/toolkit/game_text_conversion.h"
#include "model/level.h"
#include "trial/match_words.h"
#include "trial/tune.h"

namespace fragsmith {
namespace {

enum Column { kValue, kWeak, kBefore, kNow, kStrong, kColumns };

}  // namespace

StrengthList::StrengthList(QWidget* parent) : QTreeWidget(parent) {
  SetUpRows(*this, "lstStrength", tr("Values that make it weaker or stronger"),
            {tr("Value"), tr("Weak end"), tr("As it was"), tr("Now"),
             tr("Strong end")});
  for (const StrengthEnds& ends : AllStrengthEnds()) {
    for (const Level level : kLevels) {
      auto* const item = new QTreeWidgetItem(this);
      item->setText(
          kValue, QString::fromStdString(ParameterTitle({level, ends.index})));
      constexpr int kDigits = 2;
      item->setText(kWeak, QString::fromStdString(Fixed(ends.weak, kDigits)));
      item->setText(kStrong,
                    QString::fromStdString(Fixed(ends.strong, kDigits)));
      for (int cell = kWeak; cell < kColumns; ++cell) {
        item->setTextAlignment(cell, Qt::AlignRight | Qt::AlignVCenter);
      }
    }
  }
}

void StrengthList::ShowStrength(const Bot& bot, double strength) {
  const Bot moved = WithStrength(bot, strength);
  int row = 0;
  for (const StrengthEnds& ends : AllStrengthEnds()) {
    for (const Level level : kLevels) {
      QTreeWidgetItem* const item = topLevelItem(row++);
      const ParameterId id(level, ends.index);
      const std::string before = bot.Text(id);
      const std::string now = moved.Text(id);
      item->setText(kBefore, ToQString(before));
      item->setText(kNow, ToQString(now));
      QFont font = this->font();
      font.setBold(now != before);
      item->setFont(kNow, font);
    }
  }
}

}  // namespace fragsmith
