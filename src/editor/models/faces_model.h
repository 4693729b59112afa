#ifndef FRAGSMITH_EDITOR_MODELS_FACES_MODEL_H_
#define FRAGSMITH_EDITOR_MODELS_FACES_MODEL_H_

#include <QAbstractListModel>
#include <QPixmap>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "install/program/model_catalogue.h"

namespace fragsmith {

/// Each skin of each model, to be chosen by its face. The catalogue outlives
/// the model and is not changed meanwhile.
class FacesModel : public QAbstractListModel {
  Q_OBJECT

 public:
  /// What is known of the icon of a skin.
  struct Shown {
    QPixmap picture;
    QString about;  ///< Why there is no icon; empty where it is one.
    bool is_missing = false;
  };
  /// Nothing as long as the icon was not read.
  using FaceOf = std::function<std::optional<Shown>(const SkinEntry&)>;

  /// The role that a filter looks at: "Sarge Default".
  static constexpr int kWordsRole = Qt::UserRole;

  FacesModel(const ModelCatalogue& models, FaceOf face_of,
             QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  CatalogueSelection SelectionAt(int row) const;
  const SkinEntry& SkinAt(int row) const;
  /// The row of a model and skin; 0 where there is none.
  int RowOf(const CatalogueSelection& selection) const;

 private:
  const ModelCatalogue& models_;
  FaceOf face_of_;
  std::vector<CatalogueSelection> selections_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MODELS_FACES_MODEL_H_
