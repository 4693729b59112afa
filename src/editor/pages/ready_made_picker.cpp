#include "editor/pages/ready_made_picker.h"

#include <QPushButton>
#include <string>

#include "chat/chat_catalogue.h"
#include "editor/pages/chat_page_parts.h"
#include "editor/pages/remark_delegate.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/tool_tip.h"
#include "game/spoken_line.h"

namespace fragsmith {
namespace {

constexpr int kNumberRole = kRemarkRole + 1;

}  // namespace

ReadyMadePicker::ReadyMadePicker(QGridLayout& grid, int column, QObject* parent)
    : QObject(parent) {
  groups_ = MakeList(QStringLiteral("lstPreDef"),
                     QStringLiteral("Pre-def chat &lists:"), grid, column, 1);
  for (const ChatGroup& group : kChatGroups) {
    AddEntry(*groups_, group.Caption,
             tr("Ready-made lines of the game, under the name %1. "
                "Which there are depends on its data.")
                 .arg(QString::fromUtf8(group.Name)));
  }
  FitWidth(*groups_);
  numbers_ = new QListWidget;
  numbers_->setObjectName(QStringLiteral("lstPreDefNumber"));
  numbers_->setAccessibleName(tr("Number in the chat list"));
  numbers_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  numbers_->setItemDelegate(new RemarkDelegate(QStringLiteral("00"), numbers_));
  constexpr int kLeastRows = 3;
  numbers_->setMinimumHeight(numbers_->fontMetrics().lineSpacing() *
                             kLeastRows);
  // As high as there is room for, and no page scrolls for it.
  for (QListWidget* const list : {groups_, numbers_}) {
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  }
  // Below the words as well: the lines are long.
  grid.addWidget(numbers_, 2, column, 1, 2);
  connect(groups_, &QListWidget::currentRowChanged, this,
          &ReadyMadePicker::ShowNumbers);
  OnChoice(*groups_, this, [this] { Choose(); });
  OnChoice(*numbers_, this, [this] { Choose(); });
  QPushButton* const add = MakeButton(
      QStringLiteral("cmdAddList"), QStringLiteral("Add &selected list"),
      tr("Puts the ready-made line into the selected line when "
         "that is empty, otherwise into a new one."));
  connect(add, &QPushButton::clicked, this, &ReadyMadePicker::Choose);
  grid.addWidget(add, 3, column);
  groups_->setCurrentRow(0);
}

void ReadyMadePicker::ShowType(ChatTypeId type) {
  type_ = type;
  groups_->setCurrentRow(FittingGroup(type));
  // The same group says other things elsewhere.
  ShowRemarks();
}

void ReadyMadePicker::SetWords(const WordLists* words) {
  words_ = words;
  ShowRemarks();
}

void ReadyMadePicker::ShowNumbers() {
  numbers_->clear();
  const int group = groups_->currentRow();
  if (group < 0) return;
  for (const int number : MemberNumbers(group)) {
    auto* const item = new QListWidgetItem(QString::number(number), numbers_);
    item->setData(kNumberRole, number);
  }
  numbers_->setCurrentRow(0);
  ShowRemarks();
}

void ReadyMadePicker::ShowRemarks() {
  int first = -1;
  for (int row = 0; row < numbers_->count(); ++row) {
    QListWidgetItem& item = *numbers_->item(row);
    QString remark;
    bool is_missing = false;
    if (words_ != nullptr) {
      // The first of its lines, so that it reads the same each time.
      const SpokenLine line =
          SpeakLine(type_,
                    GroupMember(groups_->currentRow(),
                                std::to_string(item.data(kNumberRole).toInt())),
                    {}, *words_, [] { return 0.0; });
      is_missing = !line.unknown_lists.empty();
      remark = is_missing ? tr("(not in this game)") : ToQString(line.text);
    }
    if (!is_missing && first < 0) first = row;
    item.setData(kFaintRole, is_missing);
    item.setData(kRemarkRole, remark);
    item.setData(Qt::AccessibleDescriptionRole, remark);
    item.setToolTip(remark.isEmpty() ? QString() : WrappedToolTip({}, remark));
  }
  const QListWidgetItem* const current = numbers_->currentItem();
  if (first >= 0 && current != nullptr && current->data(kFaintRole).toBool()) {
    numbers_->setCurrentRow(first);
  }
}

void ReadyMadePicker::Choose() {
  const QListWidgetItem* const number = numbers_->currentItem();
  if (groups_->currentRow() < 0 || number == nullptr) return;
  emit Chosen(groups_->currentRow(), number->data(kNumberRole).toInt());
}

}  // namespace fragsmith
