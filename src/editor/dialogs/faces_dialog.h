#ifndef FRAGSMITH_EDITOR_DIALOGS_FACES_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_FACES_DIALOG_H_

#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>

#include "editor/dialogs/dialog_parts.h"
#include "editor/models/faces_model.h"
#include "editor/state/face_store.h"
#include "install/program/model_catalogue.h"

namespace fragsmith {

/// Chooses a model and skin by its face. The faces in sight are read one by
/// one behind the events.
class frmFaces : public QDialog {
  Q_OBJECT

 public:
  /// The catalogue and the store outlive the dialog.
  frmFaces(const ModelCatalogue& models, FaceStore& faces,
           const CatalogueSelection& selected, QWidget* parent = nullptr);

  /// What is selected, once accepted.
  CatalogueSelection Chosen() const;

  void accept() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void Filter(const QString& text);

  QLineEdit* filter_;
  QListView* list_;
  FacesModel* model_;
  QSortFilterProxyModel* matches_;
  HintLine* hint_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_FACES_DIALOG_H_
