#include "editor/models/faces_model.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPalette>
#include <algorithm>
#include <iterator>
#include <utility>

#include "editor/toolkit/game_text_conversion.h"

namespace fragsmith {

FacesModel::FacesModel(const ModelCatalogue& models, FaceOf face_of,
                       QObject* parent)
    : QAbstractListModel(parent),
      models_(models),
      face_of_(std::move(face_of)) {
  const std::vector<ModelEntry>& entries = models.models();
  for (std::size_t model = 0; model < entries.size(); ++model) {
    for (std::size_t skin = 0; skin < entries[model].Skins.size(); ++skin) {
      selections_.push_back({.modelIndex = model, .skinIndex = skin});
    }
  }
}

int FacesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(selections_.size());
}

QVariant FacesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const SkinEntry& skin = SkinAt(index.row());
  const QString skin_name = ToQString(skin.Name);
  const QString model_name =
      ToQString(models_.models()[SelectionAt(index.row()).modelIndex].Name);
  switch (role) {
    case Qt::DisplayRole:
      return model_name + u'\n' + skin_name;
    case kWordsRole:
      return model_name + u' ' + skin_name;
    case Qt::AccessibleTextRole:
      return tr("%1, skin %2").arg(model_name, skin_name);
    default:
      break;
  }
  const std::optional<Shown> face = face_of_(skin);
  if (!face) return {};
  switch (role) {
    case Qt::DecorationRole:
      return face->is_missing
                 ? QIcon(QIcon(face->picture)
                             .pixmap(face->picture.size(), QIcon::Disabled))
                 : QIcon(face->picture);
    case Qt::AccessibleDescriptionRole:
    case Qt::ToolTipRole:
      return face->about;
    case Qt::ForegroundRole:
      if (!face->is_missing) return {};
      return QGuiApplication::palette().brush(QPalette::PlaceholderText);
    default:
      return {};
  }
}

CatalogueSelection FacesModel::SelectionAt(int row) const {
  return selections_.at(static_cast<std::size_t>(row));
}

const SkinEntry& FacesModel::SkinAt(int row) const {
  const CatalogueSelection selection = SelectionAt(row);
  return models_.models()
      .at(selection.modelIndex)
      .Skins.at(selection.skinIndex);
}

int FacesModel::RowOf(const CatalogueSelection& selection) const {
  const auto found =
      std::find(selections_.begin(), selections_.end(), selection);
  return found == selections_.end()
             ? 0
             : static_cast<int>(std::distance(selections_.begin(), found));
}

}  // namespace fragsmith
