#include "editor/dialogs/faces_dialog.h"

#include <QVBoxLayout>
#include <optional>

#include "editor/controls/face_delegate.h"
#include "editor/dialogs/face_reader.h"

namespace fragsmith {
namespace {

FacesModel::FaceOf FacesOf(const FaceStore& faces) {
  return [&faces](const SkinEntry& skin) -> std::optional<FacesModel::Shown> {
    const Face* const face = faces.Find(skin);
    if (face == nullptr) return std::nullopt;
    return FacesModel::Shown{.picture = face->picture,
                             .about = face->kind == IconKind::kIcon
                                          ? QString()
                                          : DescribeIcon(face->kind),
                             .is_missing = face->kind == IconKind::kNoPackage ||
                                           face->kind == IconKind::kNotFound};
  };
}

}  // namespace

frmFaces::frmFaces(const ModelCatalogue& models, FaceStore& faces,
                   const CatalogueSelection& selected, QWidget* parent)
    : QDialog(parent),
      filter_(new QLineEdit(this)),
      list_(new QListView(this)),
      model_(new FacesModel(models, FacesOf(faces), list_)),
      matches_(new QSortFilterProxyModel(list_)),
      hint_(new HintLine(1, this)) {
  setObjectName(QStringLiteral("frmFaces"));
  setWindowTitle(tr("Choose a model and skin"));
  setSizeGripEnabled(true);
  filter_->setObjectName(QStringLiteral("txtFaceFilter"));
  filter_->setAccessibleName(tr("Part of a name"));
  filter_->setPlaceholderText(tr("Part of a name"));
  filter_->setClearButtonEnabled(true);
  LetBoxLeadList(filter_, list_);
  matches_->setSourceModel(model_);
  matches_->setFilterRole(FacesModel::kWordsRole);
  matches_->setFilterCaseSensitivity(Qt::CaseInsensitive);
  list_->setObjectName(QStringLiteral("lstFaces"));
  list_->setAccessibleName(tr("Models and skins"));
  list_->setModel(matches_);
  list_->setViewMode(QListView::IconMode);
  list_->setMovement(QListView::Static);
  list_->setResizeMode(QListView::Adjust);
  list_->setUniformItemSizes(true);
  list_->setItemDelegate(new FaceDelegate(list_));
  constexpr int kBetween = 4;
  list_->setSpacing(kBetween);

  auto* const column = new QVBoxLayout(this);
  column->addWidget(filter_);
  column->addWidget(list_, 1);
  column->addWidget(hint_);
  column->addWidget(MakeButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
                                this, tr("Cancel")));
  connect(filter_, &QLineEdit::textChanged, this, &frmFaces::Filter);
  connect(list_, &QListView::doubleClicked, this, &frmFaces::accept);

  constexpr int kLines = 36;
  resize(3 * kLines * fontMetrics().averageCharWidth(),
         kLines * fontMetrics().lineSpacing());
  list_->setCurrentIndex(
      matches_->mapFromSource(model_->index(model_->RowOf(selected))));
  Filter({});
  new FaceReader(faces, *list_, [this](const QModelIndex& index) {
    return &model_->SkinAt(matches_->mapToSource(index).row());
  });
  filter_->setFocus();
}

void frmFaces::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  list_->scrollTo(list_->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void frmFaces::Filter(const QString& text) {
  matches_->setFilterFixedString(text.simplified());
  if (!list_->currentIndex().isValid()) {
    list_->setCurrentIndex(matches_->index(0, 0));
  }
  list_->scrollTo(list_->currentIndex());
  const int count = matches_->rowCount();
  hint_->Say(count == 0 ? tr("No model or skin has this in its name.")
                        : tr("%1 of %2 skins. Grey ones have no icon in the "
                             "game.")
                              .arg(count)
                              .arg(model_->rowCount({})));
}

CatalogueSelection frmFaces::Chosen() const {
  const QModelIndex current = list_->currentIndex();
  return current.isValid()
             ? model_->SelectionAt(matches_->mapToSource(current).row())
             : CatalogueSelection();
}

void frmFaces::accept() {
  // Nothing found is nothing to choose: the words stay to be mended.
  if (list_->currentIndex().isValid()) QDialog::accept();
}

}  // namespace fragsmith
