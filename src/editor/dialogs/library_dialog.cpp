#include "editor/dialogs/library_dialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "editor/controls/fun_name_preview.h"
#include "editor/dialogs/face_reader.h"

namespace fragsmith {
namespace {

constexpr int kFaceSide = 32;

/// Draws fun names in their colours, on the game's ground.
class FunNameDelegate : public QStyledItemDelegate {
 public:
  explicit FunNameDelegate(QObject* parent) : QStyledItemDelegate(parent) {
    constexpr double kLetterScale = 1;
    name_.SetLetterScale(kLetterScale);
    name_.StandOnGameGround();
  }

  QSize sizeHint(const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override {
    constexpr int kBetween = 4;
    return QStyledItemDelegate::sizeHint(option, index)
        .expandedTo({0, kFaceSide + kBetween});
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem ground = option;
    option.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &ground,
                                          painter, option.widget);
    constexpr int kInside = 4;
    const QRect area =
        option.rect.adjusted(kInside, kInside, -kInside, -kInside);
    name_.setFont(option.font);
    name_.resize(area.size());
    name_.DrawFunName(index.data().toString());
    painter->save();
    painter->translate(area.topLeft());
    name_.render(painter, {}, {}, QWidget::DrawChildren);
    painter->restore();
  }

 private:
  mutable FunNamePreview name_;
};

LibraryModel::IconOf FacesOf(const FaceStore& faces) {
  // The names stand in line where there is no face, too.
  QPixmap none(kFaceSide, kFaceSide);
  none.fill(Qt::transparent);
  return [&faces, none](const SkinEntry* skin) {
    const Face* const face = skin == nullptr ? nullptr : faces.Find(*skin);
    return QIcon(face == nullptr ? none : face->picture);
  };
}

}  // namespace

frmLibrary::frmLibrary(std::vector<LibraryBot> bots, Work work,
                       FaceStore& faces, QWidget* parent)
    : QDialog(parent),
      filter_(new QLineEdit(this)),
      list_(new QTreeView(this)),
      model_(new LibraryModel(std::move(bots), FacesOf(faces), list_)),
      matches_(new QSortFilterProxyModel(list_)),
      hint_(new HintLine(1, this)),
      work_(std::move(work)) {
  setObjectName(QStringLiteral("frmLibrary"));
  setWindowTitle(tr("Bot library"));
  setSizeGripEnabled(true);
  filter_->setObjectName(QStringLiteral("txtLibraryFilter"));
  filter_->setAccessibleName(tr("Part of a name, model or place"));
  filter_->setPlaceholderText(filter_->accessibleName());
  filter_->setClearButtonEnabled(true);
  LetBoxLeadList(filter_, list_);
  MakeList(faces);

  auto* const column = new QVBoxLayout(this);
  column->addWidget(filter_);
  column->addWidget(list_, 1);
  column->addWidget(hint_);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(MakeButton("cmdOpenBot", tr("&Open"), Action::kOpen));
  buttons->addWidget(MakeButton("cmdDuplicateBot", tr("&Duplicate as new"),
                                Action::kDuplicate));
  buttons->addWidget(
      MakeButton("cmdCompareBot", tr("Com&pare with"), Action::kCompare));
  remove_ = MakeButton("cmdRemoveBot", tr("&Remove..."));
  connect(remove_, &QPushButton::clicked, this, &frmLibrary::Remove);
  buttons->addWidget(remove_);
  buttons->addStretch(1);
  QPushButton* const close = MakeButton("cmdClose", tr("&Close"));
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  buttons->addWidget(close);
  column->addLayout(buttons);
  actions_.front()->setDefault(true);
  connect(filter_, &QLineEdit::textChanged, this, &frmLibrary::Filter);
  connect(list_, &QTreeView::doubleClicked, this,
          [this] { Finish(Action::kOpen); });
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list_, &QWidget::customContextMenuRequested, this,
          &frmLibrary::ShowMenu);
  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &frmLibrary::ShowButtons);
  checking_.setSingleShot(true);
  connect(&checking_, &QTimer::timeout, this, &frmLibrary::CheckNext);
  Filter({});
  filter_->setFocus();
}

void frmLibrary::MakeList(FaceStore& faces) {
  matches_->setSourceModel(model_);
  matches_->setFilterRole(LibraryModel::kWordsRole);
  matches_->setFilterCaseSensitivity(Qt::CaseInsensitive);
  matches_->setSortCaseSensitivity(Qt::CaseInsensitive);
  matches_->setSortRole(LibraryModel::kSortRole);
  // Rows keep their places while bots are checked.
  matches_->setDynamicSortFilter(false);
  list_->setObjectName(QStringLiteral("lstLibrary"));
  list_->setAccessibleName(tr("Bots"));
  list_->setModel(matches_);
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->setIconSize(QSize(kFaceSide, kFaceSide));
  list_->setItemDelegateForColumn(LibraryModel::kFunName,
                                  new FunNameDelegate(list_));
  list_->setSortingEnabled(true);
  list_->sortByColumn(LibraryModel::kName, Qt::AscendingOrder);
  list_->setCurrentIndex(matches_->index(0, 0));
  const int letter = fontMetrics().averageCharWidth();
  constexpr int kColumnLetters = 24;
  for (const int column : {LibraryModel::kName, LibraryModel::kFunName,
                           LibraryModel::kModel, LibraryModel::kFindings}) {
    list_->setColumnWidth(column, kColumnLetters * letter);
  }
  constexpr int kLines = 36;
  resize(5 * kColumnLetters * letter + kFaceSide,
         kLines * fontMetrics().lineSpacing());
  // The list ends it.
  new FaceReader(faces, *list_, [this](const QModelIndex& index) {
    return model_->At(matches_->mapToSource(index).row()).skin;
  });
}

QPushButton* frmLibrary::MakeButton(const char* name, const QString& text) {
  auto* const button = new QPushButton(text, this);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
  return button;
}

QPushButton* frmLibrary::MakeButton(const char* name, const QString& text,
                                    Action action) {
  QPushButton* const button = MakeButton(name, text);
  connect(button, &QPushButton::clicked, this,
          [this, action] { Finish(action); });
  actions_.push_back(button);
  return button;
}

void frmLibrary::Filter(const QString& text) {
  matches_->setFilterFixedString(text.simplified());
  if (!list_->currentIndex().isValid()) {
    list_->setCurrentIndex(matches_->index(0, 0));
  }
  list_->scrollTo(list_->currentIndex());
  ShowButtons();
  const int count = matches_->rowCount();
  hint_->Say(model_->rowCount({}) == 0
                 ? tr("No bots are known: set the game's folder in "
                      "Program/Options, then choose Tools/Check baseq3.")
             : count == 0
                 ? tr("No bot has this.")
                 : tr("%1 of %2 bots.").arg(count).arg(model_->rowCount({})));
}

void frmLibrary::ShowButtons() {
  const bool has_bot = list_->currentIndex().isValid();
  for (QPushButton* const button : actions_) button->setEnabled(has_bot);
  remove_->setEnabled(has_bot &&
                      model_->At(static_cast<int>(Chosen())).has_own_package);
}

void frmLibrary::ShowMenu(const QPoint& place) {
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  std::vector<QPushButton*> buttons = actions_;
  buttons.push_back(remove_);
  for (QPushButton* const button : buttons) {
    QAction* const action = menu->addAction(button->text());
    action->setEnabled(button->isEnabled());
    connect(action, &QAction::triggered, button, &QPushButton::click);
  }
  menu->popup(list_->viewport()->mapToGlobal(place));
}

void frmLibrary::Finish(Action action) {
  if (!list_->currentIndex().isValid()) return;
  action_ = action;
  accept();
}

void frmLibrary::Remove() {
  const Removal removal = work_.remove(Chosen());
  if (removal.is_done) {
    model_->Remove(static_cast<int>(Chosen()));
    Filter(filter_->text());
  }
  hint_->Say(removal.text);
}

void frmLibrary::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  checking_.start(0);
}

int frmLibrary::NextUnchecked() const {
  const auto is_unchecked = [this](int row) {
    return !model_->At(row).findings;
  };
  const int first = std::max(list_->indexAt(QPoint(0, 0)).row(), 0);
  const int count = matches_->rowCount();
  for (int step = 0; step < count; ++step) {
    const QModelIndex shown = matches_->index((first + step) % count, 0);
    const int row = matches_->mapToSource(shown).row();
    if (is_unchecked(row)) return row;
  }
  // What the filter hides comes last.
  for (int row = 0; row < model_->rowCount({}); ++row) {
    if (is_unchecked(row)) return row;
  }
  return -1;
}

void frmLibrary::CheckNext() {
  if (!isVisible()) return;
  const int row = NextUnchecked();
  if (row < 0) {
    const QHeaderView& header = *list_->header();
    matches_->sort(header.sortIndicatorSection(), header.sortIndicatorOrder());
    return;
  }
  model_->SetFindings(row, work_.check(static_cast<std::size_t>(row)));
  checking_.start(0);
}

std::size_t frmLibrary::Chosen() const {
  return static_cast<std::size_t>(
      matches_->mapToSource(list_->currentIndex()).row());
}

}  // namespace fragsmith
