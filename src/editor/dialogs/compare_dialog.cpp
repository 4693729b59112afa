#include "editor/dialogs/compare_dialog.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "checks/parameter_words.h"
#include "editor/dialogs/compare_groups.h"
#include "editor/dialogs/dialog_parts.h"
#include "editor/game_text_conversion.h"
#include "editor/parameter_names.h"

namespace fragsmith {
namespace {

enum Column { kWhat = 0, kThisBot = 1, kOtherBot = 2 };

constexpr int kPlaceRole = Qt::UserRole;  ///< In the differences, or kNone.
constexpr int kGroupRole = Qt::UserRole + 1;
constexpr int kNone = -1;

// A bad file may have millions of lines, and one of them may be as long.
constexpr int kMostLines = 200;
constexpr int kMostLetters = 500;

constexpr int kFirstLevelIndex = 100;

std::size_t Place(int number) { return static_cast<std::size_t>(number); }

QString Utf8(const std::string& text) { return QString::fromStdString(text); }

/// What is not there is said, for those who hear the list too.
const QString& NoneText() {
  static const QString kText = QStringLiteral("(none)");
  return kText;
}

QString OrNone(const QString& text) {
  return text.isEmpty() ? NoneText() : text.left(kMostLetters);
}

QString Shown(const Bot& bot, int parameter) {
  return OrNone(IsIdentityField(parameter)
                    ? ToQString(bot.Text(parameter))
                    : Utf8(ShownValue(bot.Parameter(parameter))));
}

/// The line as it is counted in the bot that is compared; one that it lacks,
/// as in the other.
QString LineTitle(const BotDifference& difference) {
  const int line =
      difference.is_in_left ? difference.left_line : difference.right_line;
  return QStringLiteral("Line %1").arg(line + 1);
}

/// Without the unit, which stands in the captions of the pages.
QString NameOf(int parameter) {
  if (IsIdentityField(parameter)) return ParameterTitle(parameter);
  const QString name = TableText(ParameterName(parameter));
  return parameter < kFirstLevelIndex
             ? name
             : name + QStringLiteral(", level %1")
                          .arg(parameter / kFirstLevelIndex);
}

QString TitleOf(const BotDifference& difference) {
  if (difference.chat_type == kNone) return NameOf(difference.parameter);
  return GroupTitle(GroupOf(difference)) + QStringLiteral(", ") +
         LineTitle(difference).toLower();
}

QString WholeText(int group) {
  return QStringLiteral("&All of \"%1\"").arg(GroupTitle(group));
}

/// Gives a row the height that its texts need when they are broken: a tree
/// leaves the width of its columns out of account. What the values are of
/// keeps its distance from them.
class WrappingDelegate : public QStyledItemDelegate {
 public:
  explicit WrappingDelegate(QTreeView* view)
      : QStyledItemDelegate(view), view_(view) {}

  QSize sizeHint(const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override {
    QStyleOptionViewItem bounded = option;
    constexpr int kRoom = 4;
    QSize room(0, kRoom);
    if (index.column() == kWhat) {
      room.setWidth(2 * option.fontMetrics.averageCharWidth());
    } else {
      bounded.rect = QRect(0, 0, view_->columnWidth(index.column()), 1);
    }
    return QStyledItemDelegate::sizeHint(bounded, index) + room;
  }

 private:
  QTreeView* view_;
};

}  // namespace

frmCompare::frmCompare(CurrentBot& current, Bot other,
                       const QString& other_title, QWidget* parent)
    : QDialog(parent),
      current_(current),
      other_(std::move(other)),
      other_title_(other_title),
      first_step_(current.steps().index()),
      only_differences_(
          new QCheckBox(QStringLiteral("Only &differences"), this)),
      count_(new QLabel(this)),
      list_(new QTreeWidget(this)) {
  setObjectName(QStringLiteral("frmCompare"));
  setWindowTitle(QStringLiteral("Compare with %1").arg(other_title_));
  setSizeGripEnabled(true);
  setModal(true);
  MakeList();
  auto* const column = new QVBoxLayout(this);
  column->addLayout(MakeTop());
  column->addWidget(list_, 1);
  auto* const copies = new QLabel(
      QStringLiteral("Copy from %1 to this bot:").arg(other_title_), this);
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
  list_->setAccessibleName(QStringLiteral("This bot and %1").arg(other_title_));
  list_->setHeaderLabels(
      {QStringLiteral("What"), QStringLiteral("This bot"), other_title_});
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->setWordWrap(true);
  list_->setItemDelegate(new WrappingDelegate(list_));
  QHeaderView* const header = list_->header();
  header->setStretchLastSection(false);
  header->setSectionsMovable(false);
  header->setSectionResizeMode(kWhat, QHeaderView::ResizeToContents);
  header->setSectionResizeMode(kThisBot, QHeaderView::Stretch);
  header->setSectionResizeMode(kOtherBot, QHeaderView::Stretch);
  connect(header, &QHeaderView::sectionResized, list_,
          &QTreeWidget::doItemsLayout, Qt::QueuedConnection);
  connect(list_, &QTreeWidget::itemSelectionChanged, this,
          &frmCompare::ShowButtons);
  connect(list_, &QTreeWidget::currentItemChanged, this,
          &frmCompare::ShowButtons);
}

QLayout* frmCompare::MakeTop() {
  only_differences_->setObjectName(QStringLiteral("chkOnlyDifferences"));
  only_differences_->setChecked(true);
  connect(only_differences_, &QCheckBox::toggled, this, &frmCompare::ShowBots);
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
      MakeButton(QStringLiteral("&Selected rows"),
                 QStringLiteral("cmdCopySelected"), [this] { CopySelected(); });
  copies->addWidget(selected_);
  for (std::size_t place = 0; place < kSkillLevels.size(); ++place) {
    const int level = kSkillLevels.at(place);
    levels_.at(place) = MakeButton(
        QStringLiteral("Level &%1").arg(level),
        QStringLiteral("cmdCopyLevel_%1").arg(level), [this, level] {
          Copy(QStringLiteral("level %1").arg(level), WhichAreAtLevel(level));
        });
    copies->addWidget(levels_.at(place));
  }
  chats_ = MakeButton(
      QStringLiteral("All &chats"), QStringLiteral("cmdCopyChats"),
      [this] { Copy(QStringLiteral("all chats"), WhichAreIn(kChatGroup)); });
  copies->addWidget(chats_);
  page_ = MakeButton({}, QStringLiteral("cmdCopyPage"), [this] {
    const int group = CurrentGroup();
    Copy(GroupTitle(group), WhichAreIn(group));
    if (CurrentGroup() == group) return;
    // Pressed once more, it is not to copy what has come to the place.
    list_->setCurrentItem(nullptr);
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

  undo_ = MakeButton(QStringLiteral("&Undo"), QStringLiteral("cmdUndo"),
                     [this] { current_.steps().undo(); });
  connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, undo_,
          &QPushButton::click);
  auto* const buttons = MakeButtons(QDialogButtonBox::Close, this);
  QPushButton* const close = buttons->button(QDialogButtonBox::Close);
  close->setObjectName(QStringLiteral("cmdClose"));
  close->setText(QStringLiteral("Close"));
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
  differences_ = CompareBots(current_.bot(), other_);
  count_->setText(
      differences_.empty() ? QStringLiteral("No differences")
      : differences_.size() == 1
          ? QStringLiteral("1 difference")
          : QStringLiteral("%1 differences").arg(differences_.size()));
  FillList();
  ShowButtons();
}

void frmCompare::FillList() {
  const QSignalBlocker silence(list_);
  // What was current is looked for by its name; where it is gone, what has
  // come to its place is current.
  const QTreeWidgetItem* const old = list_->currentItem();
  const int old_group = CurrentGroup();
  const QString old_title = old != nullptr ? old->text(kWhat) : QString();
  const int scroll = list_->verticalScrollBar()->value();
  std::set<int> closed;
  int old_row = 0;
  int row = 0;
  for (QTreeWidgetItemIterator at(list_); *at != nullptr; ++at, ++row) {
    if (*at == old) old_row = row;
    if ((*at)->childCount() > 0 && !(*at)->isExpanded()) {
      closed.insert((*at)->data(kWhat, kGroupRole).toInt());
    }
  }

  list_->clear();
  for (int group = kIdentityGroup; group < kChatGroup; ++group) {
    AddParameters(group);
  }
  AddLines();
  QTreeWidgetItem* found = nullptr;
  QTreeWidgetItem* fallback = nullptr;
  row = 0;
  for (QTreeWidgetItemIterator at(list_); *at != nullptr; ++at, ++row) {
    const int group = (*at)->data(kWhat, kGroupRole).toInt();
    if ((*at)->childCount() > 0) {
      (*at)->setExpanded(!closed.contains(group));
    }
    const QTreeWidgetItem* const parent = (*at)->parent();
    const bool is_in_sight = parent == nullptr || parent->isExpanded();
    if (row <= old_row && is_in_sight) fallback = *at;
    if (group == old_group && (*at)->text(kWhat) == old_title) found = *at;
  }
  while (found == nullptr && fallback != nullptr &&
         fallback->childCount() > 0 && fallback->isExpanded()) {
    fallback = fallback->child(0);
  }
  list_->setCurrentItem(found != nullptr ? found : fallback);
  // Moving there lays the rows out, without which none can be scrolled to.
  list_->scrollToItem(list_->currentItem());
  list_->verticalScrollBar()->setValue(scroll);
  list_->scrollToItem(list_->currentItem());
  // The heading of the very first row would stay out of sight.
  if (old == nullptr) list_->scrollToTop();
}

QTreeWidgetItem* frmCompare::AddGroup(int group, QTreeWidgetItem* parent) {
  auto* const item = new QTreeWidgetItem(parent, {GroupTitle(group)});
  item->setData(kWhat, kPlaceRole, kNone);
  item->setData(kWhat, kGroupRole, group);
  QFont bold = font();
  bold.setBold(true);
  item->setFont(kWhat, bold);
  item->setFirstColumnSpanned(true);
  return item;
}

void frmCompare::AddRow(int group, int place, const QStringList& texts,
                        QTreeWidgetItem* parent) {
  auto* const item = new QTreeWidgetItem(parent, texts);
  item->setData(kWhat, kPlaceRole, place);
  item->setData(kWhat, kGroupRole, group);
  QColor dimmer = palette().color(QPalette::Text);
  dimmer.setAlphaF(0.6F);
  for (const Column column : {kWhat, kThisBot, kOtherBot}) {
    if (place == kNone || item->text(column) == NoneText()) {
      item->setForeground(column, dimmer);
    }
  }
}

void frmCompare::AddParameters(int group) {
  std::map<int, int> places;
  for (std::size_t place = 0; place < differences_.size(); ++place) {
    places[differences_[place].parameter] = static_cast<int>(place);
  }
  QTreeWidgetItem* group_item = nullptr;
  for (const int parameter : ParametersOf(group)) {
    const auto found = places.find(parameter);
    const bool is_equal = found == places.end();
    if (is_equal && only_differences_->isChecked()) continue;
    if (group_item == nullptr) {
      group_item = AddGroup(group, list_->invisibleRootItem());
    }
    AddRow(group, is_equal ? kNone : found->second,
           {NameOf(parameter), Shown(current_.bot(), parameter),
            Shown(other_, parameter)},
           group_item);
  }
}

void frmCompare::AddLines() {
  QTreeWidgetItem* all_types = nullptr;
  std::map<int, QTreeWidgetItem*> types;
  std::map<int, int> left_out;
  for (std::size_t place = 0; place < differences_.size(); ++place) {
    const BotDifference& difference = differences_[place];
    if (difference.chat_type == kNone) continue;
    if (all_types == nullptr) {
      all_types = AddGroup(kChatGroup, list_->invisibleRootItem());
    }
    const int group = GroupOf(difference);
    QTreeWidgetItem*& type = types[group];
    if (type == nullptr) type = AddGroup(group, all_types);
    if (type->childCount() == kMostLines) {
      ++left_out[group];
      continue;
    }
    AddRow(group, static_cast<int>(place),
           {LineTitle(difference), OrNone(Utf8(difference.left)),
            OrNone(Utf8(difference.right))},
           type);
  }
  for (const auto& [group, count] : left_out) {
    AddRow(group, kNone, {QStringLiteral("and %1 more").arg(count)},
           types[group]);
  }
}

int frmCompare::CurrentGroup() const {
  const QTreeWidgetItem* const item = list_->currentItem();
  return item == nullptr ? kNoGroup : item->data(kWhat, kGroupRole).toInt();
}

std::vector<std::size_t> frmCompare::WhichFit(
    const std::function<bool(const BotDifference&)>& fits) const {
  std::vector<std::size_t> places;
  for (std::size_t place = 0; place < differences_.size(); ++place) {
    if (fits(differences_[place])) places.push_back(place);
  }
  return places;
}

std::vector<std::size_t> frmCompare::WhichAreAtLevel(int level) const {
  return WhichFit([level](const BotDifference& difference) {
    return difference.parameter / kFirstLevelIndex == level;
  });
}

std::vector<std::size_t> frmCompare::WhichAreIn(int group) const {
  return WhichFit([group](const BotDifference& difference) {
    const int own = GroupOf(difference);
    return own == group || (group == kChatGroup && own > kChatGroup);
  });
}

std::vector<std::size_t> frmCompare::WhichAreSelected() const {
  std::set<std::size_t> places;
  for (const QTreeWidgetItem* const item : list_->selectedItems()) {
    const int place = item->data(kWhat, kPlaceRole).toInt();
    if (item->childCount() > 0) {
      const auto all = WhichAreIn(item->data(kWhat, kGroupRole).toInt());
      places.insert(all.begin(), all.end());
    } else if (place != kNone) {
      places.insert(static_cast<std::size_t>(place));
    }
  }
  return {places.begin(), places.end()};
}

void frmCompare::ShowButtons() {
  selected_->setEnabled(!WhichAreSelected().empty());
  for (std::size_t place = 0; place < kSkillLevels.size(); ++place) {
    levels_.at(place)->setEnabled(
        !WhichAreAtLevel(kSkillLevels.at(place)).empty());
  }
  chats_->setEnabled(!WhichAreIn(kChatGroup).empty());
  const int group = CurrentGroup();
  page_->setText(WholeText(group == kNoGroup ? kIdentityGroup : group));
  page_->setEnabled(!WhichAreIn(group).empty());
  undo_->setEnabled(current_.steps().index() > first_step_);
  undo_->setToolTip(current_.steps().undoText().toHtmlEscaped());
}

void frmCompare::CopySelected() {
  const std::vector<std::size_t> places = WhichAreSelected();
  if (places.size() == 1) {
    const BotDifference& only = differences_[places.front()];
    FindingPlace shown;
    shown.parameter = only.parameter;
    shown.chat_type = only.chat_type;
    Copy(TitleOf(only), places, shown);
  } else {
    Copy(QStringLiteral("%1 values").arg(places.size()), places, {});
  }
}

void frmCompare::Copy(const QString& what,
                      const std::vector<std::size_t>& places,
                      const FindingPlace& shown) {
  // What is left of the differences of each chat type: none, where it is
  // copied as a whole, which takes no time however many lines there are.
  std::array<std::size_t, kChatTypeCount> left{};
  for (const BotDifference& difference : differences_) {
    if (difference.chat_type != kNone) ++left.at(Place(difference.chat_type));
  }
  for (const std::size_t place : places) {
    const int type = differences_[place].chat_type;
    if (type != kNone) --left.at(Place(type));
  }
  current_.Edit(
      {.text = QStringLiteral("Copy from %1: %2").arg(other_title_, what),
       .place = shown,
       .merges = false},
      [this, &places, &left](Bot& bot) {
        int whole = kNone;
        for (std::size_t at = places.size(); at-- > 0;) {
          const BotDifference& difference = differences_[places[at]];
          const int type = difference.chat_type;
          if (type == kNone || left.at(Place(type)) > 0) {
            CopyToRight(Reversed(difference), other_, bot);
          } else if (std::exchange(whole, type) != type) {
            CopyChatType(type, other_, bot);
          }
        }
      });
  // A button with nothing left to do would hand the focus to its neighbour,
  // and the next press would copy something else.
  list_->setFocus();
}

}  // namespace fragsmith
