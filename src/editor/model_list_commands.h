#ifndef FRAGSMITH_EDITOR_MODEL_LIST_COMMANDS_H_
#define FRAGSMITH_EDITOR_MODEL_LIST_COMMANDS_H_

#include <QWidget>

#include "editor/model_selector.h"
#include "editor/program_state.h"

namespace fragsmith {

class frmModelDialog;

/// The commands that add models and skins of the user's own and remove them.
class ModelListCommands {
 public:
  ModelListCommands(ProgramState& state, ModelSelector& models, QWidget& window)
      : state_(state), models_(models), window_(window) {}

  void AddModel();
  void AddSkin();
  void RemoveModel();
  void RemoveSkin();

 private:
  /// The callback of the dialog.
  void frmModel_GiveName(const frmModelDialog& dialog);

  ProgramState& state_;
  ModelSelector& models_;
  QWidget& window_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MODEL_LIST_COMMANDS_H_
