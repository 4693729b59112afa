#include "editor/dialogs/compare_dialog.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "editor/dialogs/dialog_parts.h"
#include "editor/models/compare_groups.h"

namespace fragsmith {
namespace {

QString WholeText(int group) {
  return frmCompare::tr("&All of \"%1\"").arg(GroupTitle(group));
}

}  // namespace

frmCompare::frmCompare(CurrentBot& current, Bot other,
                       const QString& other_title, QWidget* parent)
    : QDialog(parent),
      current_(current),
      other_title_(other_title),
      first_step_(current.steps().index()),
      only_differences_(new QCheckBox(tr("Only &differences"), this)),
      count_(new QLabel(this)),
      list_(new CompareView(std::move(other), other_title, this)) {
  setObjectName(QStringLiteral("frmCompare"));
  setWindowTitle(tr("Compare with %1").arg(other_title_));
  setSizeGripEnabled(true);
  setModal(true);
  MakeList();
  auto* const column = new QVBoxLayout(this);
  column->addLayout(MakeTop());
  column->addWidget(list_, 1);
  auto* const copies =
      new QLabel(tr("Copy from %1 to this bot:").arg(other_title_), this);
  copies->setTextFormat(Qt::PlainText);
  column->addWidget(copies);
  column->addLayout(MakeButtonRows());

  const int line = fontMetrics().lineSpacing();
  const QSize room = QGuiApplication::primaryScreen()->availableSize();
  resize(QSize(56 * line, 40 * line).boundedTo(room * 9 / 10));
  for (const auto& edited : {&CurrentBot::Replaced, &CurrentBot::ChatsEdited}) {
    connect(&current_, edited, this, &frmCompare::ShowBots);
  }
  connect(&current_, &CurrentBot::Stepped, this, &frmCompare::ShowBots);
  connect(&current_, &CurrentBot::ParameterEdited, this, &frmCompare::ShowBots);
  connect(&current_.steps(), &QUndoStack::indexChanged, this,
          &frmCompare::ShowButtons);
  ShowBots();
  list_->setFocus();
}

void frmCompare::MakeList() {
  list_->setObjectName(QStringLiteral("lstDifferences"));
  list_->setAccessibleName(tr("This bot and %1").arg(other_title_));
  connect(list_, &CompareView::SelectionShown, this, &frmCompare::ShowButtons);
}

QLayout* frmCompare::MakeTop() {
  only_differences_->setObjectName(QStringLiteral("chkOnlyDifferences"));
  only_differences_->setChecked(true);
  connect(only_differences_, &QCheckBox::toggled, list_,
          &CompareView::SetOnlyDifferences);
  count_->setObjectName(QStringLiteral("lblCount"));
  auto* const row = new QHBoxLayout;
  row->addWidget(only_differences_);
  row->addStretch();
  row->addWidget(count_);
  return row;
}

QPushButton* frmCompare::MakeButton(const QString& text, const QString& name,
                                    const std::function<void()>& press) {
  auto* const button = new QPushButton(text, this);
  button->setObjectName(name);
  connect(button, &QPushButton::clicked, this, press);
  return button;
}

QLayout* frmCompare::MakeButtonRows() {
  auto* const copies = new QHBoxLayout;
  selected_ =
      MakeButton(tr("&Selected rows"), QStringLiteral("cmdCopySelected"),
                 [this] { CopySelected(); });
  copies->addWidget(selected_);
  for (const Level level : kLevels) {
    const int number = NumberOf(level);
    QPushButton* const button = MakeButton(
        tr("Level &%1").arg(number),
        QStringLiteral("cmdCopyLevel_%1").arg(number), [this, level, number] {
          Copy(tr("level %1").arg(number), WhichAreAtLevel(level));
        });
    copies->addWidget(button);
    levels_.at(IndexOf(level)) = button;
  }
  chats_ = MakeButton(tr("All &chats"), QStringLiteral("cmdCopyChats"), [this] {
    Copy(tr("all chats"), WhichAreIn(kChatGroup));
  });
  copies->addWidget(chats_);
  page_ = MakeButton({}, QStringLiteral("cmdCopyPage"), [this] {
    const int group = CurrentGroup();
    Copy(GroupTitle(group), WhichAreIn(group));
    if (CurrentGroup() == group) return;
    // Pressed once more, it is not to copy what has come to the place.
    list_->setCurrentIndex({});
    ShowButtons();
  });
  // No button moves when its text changes.
  int width = 0;
  for (int group = kIdentityGroup; group < kGroupCount; ++group) {
    page_->setText(WholeText(group));
    width = std::max(width, page_->sizeHint().width());
  }
  page_->setMinimumWidth(width);
  copies->addWidget(page_);
  copies->addStretch();

  undo_ = MakeButton(tr("&Undo"), QStringLiteral("cmdUndo"),
                     [this] { current_.steps().undo(); });
  connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, undo_,
          &QPushButton::click);
  auto* const buttons = MakeButtons(QDialogButtonBox::Close, this);
  QPushButton* const close = buttons->button(QDialogButtonBox::Close);
  close->setObjectName(QStringLiteral("cmdClose"));
  close->setText(tr("Close"));
  close->setDefault(true);
  auto* const last = new QHBoxLayout;
  last->addWidget(undo_);
  last->addStretch();
  last->addWidget(buttons);
  auto* const rows = new QVBoxLayout;
  rows->addLayout(copies);
  rows->addLayout(last);
  return rows;
}

void frmCompare::ShowBots() {
  list_->ShowBot(current_.bot());
  const std::size_t count = differences().size();
  count_->setText(count == 0   ? tr("No differences")
                  : count == 1 ? tr("1 difference")
                               : tr("%1 differences").arg(count));
}

int frmCompare::CurrentGroup() const {
  return list_->bots().GroupAt(list_->Current());
}

std::vector<std::size_t> frmCompare::WhichFit(
    const std::function<bool(const BotDifference&)>& fits) const {
  std::vector<std::size_t> indices;
  for (std::size_t index = 0; index < differences().size(); ++index) {
    if (fits(differences()[index])) indices.push_back(index);
  }
  return indices;
}

std::vector<std::size_t> frmCompare::WhichAreAtLevel(Level level) const {
  return WhichFit([level](const BotDifference& difference) {
    return difference.parameter && difference.parameter->level() == level;
  });
}

std::vector<std::size_t> frmCompare::WhichAreIn(int group) const {
  return WhichFit([group](const BotDifference& difference) {
    const int own = GroupOf(difference);
    return own == group || (group == kChatGroup && own > kChatGroup);
  });
}

std::vector<std::size_t> frmCompare::WhichAreSelected() const {
  std::set<std::size_t> indices;
  const DifferencesModel& bots = list_->bots();
  for (const QModelIndex& row : list_->Selected()) {
    if (bots.IsGroup(row)) {
      const auto all = WhichAreIn(bots.GroupAt(row));
      indices.insert(all.begin(), all.end());
    } else if (const auto index = bots.DifferenceAt(row)) {
      indices.insert(*index);
    }
  }
  return {indices.begin(), indices.end()};
}

void frmCompare::ShowButtons() {
  selected_->setEnabled(!WhichAreSelected().empty());
  for (const Level level : kLevels) {
    levels_.at(IndexOf(level))->setEnabled(!WhichAreAtLevel(level).empty());
  }
  chats_->setEnabled(!WhichAreIn(kChatGroup).empty());
  const int group = CurrentGroup();
  page_->setText(WholeText(group == kNoGroup ? kIdentityGroup : group));
  page_->setEnabled(!WhichAreIn(group).empty());
  undo_->setEnabled(current_.steps().index() > first_step_);
  undo_->setToolTip(current_.steps().undoText().toHtmlEscaped());
}

void frmCompare::CopySelected() {
  const std::vector<std::size_t> indices = WhichAreSelected();
  if (indices.size() == 1) {
    const BotDifference& only = differences()[indices.front()];
    const BotPlace shown = only.parameter ? BotPlace(*only.parameter)
                                          : ChatPlace{.type = *only.chat_type,
                                                      .line = std::nullopt};
    Copy(DifferenceTitle(only), indices, shown);
  } else {
    Copy(tr("%1 values").arg(indices.size()), indices, {});
  }
}

void frmCompare::Copy(const QString& what,
                      const std::vector<std::size_t>& indices,
                      const BotPlace& shown) {
  // What is left of the differences of each chat type: none, where it is
  // copied as a whole, which takes no time however many lines there are.
  std::array<std::size_t, kChatTypeCount> left{};
  for (const BotDifference& difference : differences()) {
    if (difference.chat_type) ++left.at(IndexOf(*difference.chat_type));
  }
  for (const std::size_t index : indices) {
    const auto type = differences()[index].chat_type;
    if (type) --left.at(IndexOf(*type));
  }
  current_.Edit(
      {.text = tr("Copy from %1: %2").arg(other_title_, what),
       .place = shown,
       .merges = false},
      [this, &indices, &left](Bot& bot) {
        std::optional<ChatTypeId> whole;
        for (std::size_t at = indices.size(); at-- > 0;) {
          const BotDifference& difference = differences()[indices[at]];
          const auto type = difference.chat_type;
          if (!type || left.at(IndexOf(*type)) > 0) {
            CopyToRight(Reversed(difference), list_->bots().other(), bot);
          } else if (std::exchange(whole, type) != type) {
            CopyChatType(*type, list_->bots().other(), bot);
          }
        }
      });
  // A button with nothing left to do would hand the focus to its neighbour,
  // and the next press would copy something else.
  list_->setFocus();
}

}  // namespace fragsmith
