#ifndef FRAGSMITH_EDITOR_COMMANDS_MODEL_LIST_COMMANDS_H_
#define FRAGSMITH_EDITOR_COMMANDS_MODEL_LIST_COMMANDS_H_

#include <QString>
#include <QWidget>
#include <optional>

#include "editor/panels/model_selector.h"
#include "editor/state/face_store.h"
#include "editor/state/program_state.h"
#include "install/program/base_scan.h"

namespace fragsmith {

class frmModelDialog;

/// The commands around the lists of models and bots: they scan the game, add
/// models and skins of the user's own and remove them, and let one be chosen.
class ModelListCommands {
 public:
  ModelListCommands(ProgramState& state, ModelSelector& models, QWidget& window)
      : state_(state), models_(models), window_(window), faces_(state) {}

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

  /// Lets the user choose the bot's model and skin by their faces.
  void ChooseFace();

  FaceStore& faces() { return faces_; }

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
  FaceStore faces_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_MODEL_LIST_COMMANDS_H_
