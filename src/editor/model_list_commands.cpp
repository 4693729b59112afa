#include "editor/model_list_commands.h"

#include "editor/dialogs/model_dialog.h"
#include "install/model_commands.h"

namespace fragsmith {

void ModelListCommands::AddModel() {
  frmModelDialog dialog(state_.prompts, &window_);
  if (dialog.exec() == QDialog::Accepted) frmModel_GiveName(dialog);
}

void ModelListCommands::frmModel_GiveName(const frmModelDialog& dialog) {
  const CatalogueSelection place = models_.Selection();
  if (fragsmith::AddModel(state_.lists.models, dialog.Name(),
                          dialog.CreatesRedAndBlue(), state_.prompts)) {
    models_.RefillModelSelector(place.modelIndex, place.skinIndex);
  }
}

void ModelListCommands::AddSkin() {
  const CatalogueSelection place = models_.Selection();
  if (fragsmith::AddSkin(state_.lists.models, place.modelIndex,
                         state_.prompts)) {
    models_.RefillModelSelector(place.modelIndex, place.skinIndex);
  }
}

void ModelListCommands::RemoveModel() {
  const CatalogueSelection place = models_.Selection();
  if (fragsmith::RemoveModel(state_.lists.models, place.modelIndex,
                             state_.prompts)) {
    models_.RefillModelSelector(0, 0);
  }
}

void ModelListCommands::RemoveSkin() {
  const CatalogueSelection place = models_.Selection();
  if (fragsmith::RemoveSkin(state_.lists.models, place.modelIndex,
                            place.skinIndex, state_.prompts)) {
    models_.RefillModelSelector(place.modelIndex, 0);
  }
}

}  // namespace fragsmith
