#ifndef FRAGSMITH_EDITOR_COMMANDS_MODEL_LIST_COMMANDS_H_
#define FRAGSMITH_EDITOR_COMMANDS_MODEL_LIST_COMMANDS_H_

#include <QString>
#include <QWidget>
#include <optional>

#include "editor/panels/model_selector.h"
#include "editor/state/program_state.h"
#include "install/program/base_scan.h"

namespace fragsmith {

class frmModelDialog;

/// The commands that change the lists of models and bots: they scan the game,
/// and add models and skins of the user's own and remove them.
class ModelListCommands {
 public:
  ModelListCommands(ProgramState& state, ModelSelector& models, QWidget& window)
      : state_(state), models_(models), window_(window) {}

  struct Scan {
    ScanSummary summary;
    Notes notes;
  };
  /// Scans the game behind a window that shows how far it is; nothing when it
  /// was cancelled or refused.
  std::optional<Scan> CheckBaseq3();

  /// Drops what stands in packages that are no longer there, and tells which;
  /// empty for none.
  QString DropGoneAddOns();

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

#endif  // FRAGSMITH_EDITOR_COMMANDS_MODEL_LIST_COMMANDS_H_
