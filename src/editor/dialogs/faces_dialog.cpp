#include "editor/dialogs/faces_dialog.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <optional>

#include "editor/controls/face_delegate.h"

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
      faces_(faces),
      filter_(new QLineEdit(this)),
      list_(new QListView(this)),
      model_(new FacesModel(models, FacesOf(faces), list_)),
      matches_(new QSortFilterProxyModel(list_)),
      hint_(new HintLine(1, this)) {
  setObjectName(QStringLiteral("frmFaces"));
  setWindowTitle(tr("Choose a model and skin"));
  setSizeGripEnabled(true);
  faces_.ForgetMissing();
  filter_->setObjectName(QStringLiteral("txtFaceFilter"));
  filter_->setAccessibleName(tr("Part of a name"));
  filter_->setPlaceholderText(tr("Part of a name"));
  filter_->setClearButtonEnabled(true);
  filter_->installEventFilter(this);
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
  column->addWidget(
      MakeButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this));
  connect(filter_, &QLineEdit::textChanged, this, &frmFaces::Filter);
  connect(list_, &QListView::doubleClicked, this, &frmFaces::accept);

  constexpr int kLines = 36;
  resize(3 * kLines * fontMetrics().averageCharWidth(),
         kLines * fontMetrics().lineSpacing());
  list_->setCurrentIndex(
      matches_->mapFromSource(model_->index(model_->RowOf(selected))));
  Filter({});
  reading_.setSingleShot(true);
  connect(&reading_, &QTimer::timeout, this, &frmFaces::ReadNext);
  const auto read = [this] { reading_.start(); };
  connect(list_->verticalScrollBar(), &QScrollBar::valueChanged, this, read);
  connect(list_->verticalScrollBar(), &QScrollBar::rangeChanged, this, read);
  connect(matches_, &QAbstractItemModel::layoutChanged, this, read);
  filter_->setFocus();
}

void frmFaces::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  list_->scrollTo(list_->currentIndex(), QAbstractItemView::PositionAtCenter);
  reading_.start();
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
  reading_.start();
}

int frmFaces::NextRow() const {
  const QRect sight = list_->viewport()->rect();
  for (int row = 0; row < matches_->rowCount(); ++row) {
    const QModelIndex index = matches_->index(row, 0);
    const QRect place = list_->visualRect(index);
    if (place.top() > sight.bottom()) break;
    const int source = matches_->mapToSource(index).row();
    if (place.intersects(sight) &&
        faces_.Find(model_->SkinAt(source)) == nullptr) {
      return source;
    }
  }
  return -1;
}

void frmFaces::ReadNext() {
  if (is_reading_ || !isVisible()) return;
  const int row = NextRow();
  if (row < 0) return;
  // While the tool works, the events come to this dialog, which may be closed
  // by them; it lasts until its loop has come back here.
  is_reading_ = true;
  faces_.Read(model_->SkinAt(row), [this] {
    QCoreApplication::processEvents();
    return isVisible();
  });
  is_reading_ = false;
  model_->ShowFace(row);
  reading_.start();
}

CatalogueSelection frmFaces::Chosen() const {
  const QModelIndex current = list_->currentIndex();
  return current.isValid()
             ? model_->PlaceAt(matches_->mapToSource(current).row())
             : CatalogueSelection();
}

void frmFaces::accept() {
  // Nothing found is nothing to choose: the words stay to be mended.
  if (list_->currentIndex().isValid()) QDialog::accept();
}

bool frmFaces::eventFilter(QObject* watched, QEvent* event) {
  if (watched == filter_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
        key == Qt::Key_PageDown) {
      QCoreApplication::sendEvent(list_, event);
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace fragsmith
