#include "editor/dialogs/library_dialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
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

frmLibrary::frmLibrary(std::vector<LibraryBot> bots, FaceStore& faces,
                       QWidget* parent)
    : QDialog(parent),
      filter_(new QLineEdit(this)),
      list_(new QTreeView(this)),
      model_(new LibraryModel(std::move(bots), FacesOf(faces), list_)),
      matches_(new QSortFilterProxyModel(list_)),
      hint_(new HintLine(1, this)) {
  setObjectName(QStringLiteral("frmLibrary"));
  setWindowTitle(tr("Bot library"));
  setSizeGripEnabled(true);
  filter_->setObjectName(QStringLiteral("txtLibraryFilter"));
  filter_->setAccessibleName(tr("Part of a name, model or place"));
  filter_->setPlaceholderText(filter_->accessibleName());
  filter_->setClearButtonEnabled(true);
  LetBoxLeadList(filter_, list_);
  matches_->setSourceModel(model_);
  matches_->setFilterRole(LibraryModel::kWordsRole);
  matches_->setFilterCaseSensitivity(Qt::CaseInsensitive);
  matches_->setSortCaseSensitivity(Qt::CaseInsensitive);
  matches_->setSortRole(Qt::AccessibleTextRole);
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
  for (const int column :
       {LibraryModel::kName, LibraryModel::kFunName, LibraryModel::kModel}) {
    list_->setColumnWidth(column, kColumnLetters * letter);
  }

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
  buttons->addStretch(1);
  auto* const close = new QPushButton(tr("&Close"), this);
  close->setObjectName(QStringLiteral("cmdClose"));
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  buttons->addWidget(close);
  column->addLayout(buttons);
  actions_.front()->setDefault(true);
  connect(filter_, &QLineEdit::textChanged, this, &frmLibrary::Filter);
  connect(list_, &QTreeView::doubleClicked, this,
          [this] { Finish(Action::kOpen); });
  constexpr int kLines = 36;
  resize(4 * kColumnLetters * letter + kFaceSide,
         kLines * fontMetrics().lineSpacing());
  Filter({});
  // The list ends it.
  new FaceReader(faces, *list_, [this](const QModelIndex& index) {
    return model_->At(matches_->mapToSource(index).row()).skin;
  });
  filter_->setFocus();
}

QPushButton* frmLibrary::MakeButton(const char* name, const QString& text,
                                    Action action) {
  auto* const button = new QPushButton(text, this);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
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
  const int count = matches_->rowCount();
  for (QPushButton* const button : actions_) button->setEnabled(count > 0);
  hint_->Say(model_->rowCount({}) == 0
                 ? tr("No bots are known: set the game's folder in "
                      "Program/Options, then choose Tools/Check baseq3.")
             : count == 0
                 ? tr("No bot has this.")
                 : tr("%1 of %2 bots.").arg(count).arg(model_->rowCount({})));
}

void frmLibrary::Finish(Action action) {
  if (!list_->currentIndex().isValid()) return;
  action_ = action;
  accept();
}

std::size_t frmLibrary::Chosen() const {
  return static_cast<std::size_t>(
      matches_->mapToSource(list_->currentIndex()).row());
}

}  // namespace fragsmith
