#include "editor/commands/model_list_commands.h"

#include <QCoreApplication>
#include <set>
#include <string>
#include <utility>

#include "editor/dialogs/faces_dialog.h"
#include "editor/dialogs/model_dialog.h"
#include "editor/dialogs/search_progress.h"
#include "editor/toolkit/game_text_conversion.h"
#include "install/program/gone_packages.h"
#include "install/program/model_commands.h"
#include "support/files.h"
#include "support/localization.h"

namespace fragsmith {

std::optional<ModelListCommands::Scan> ModelListCommands::CheckBaseq3() {
  frmSearchBaseQ3 progress(&window_);
  window_.setEnabled(false);
  CatalogueSelection selection = models_.Selection();
  Notes notes;
  const std::optional<ScanSummary> summary = fragsmith::CheckBaseq3(
      state_.settings, state_.lists, selection, state_.prompts,
      [&progress](std::size_t done, std::size_t total) {
        progress.show();
        progress.ShowProgress(done, total);
        return !progress.WasCancelled();
      },
      notes);
  progress.hide();
  window_.setEnabled(true);
  if (!summary) return std::nullopt;
  models_.Refill();
  models_.RefreshIcon();
  if (models_.IsMissing()) {
    notes.Add(
        {.file = "baseq3",
         .line = 0,
         .text = Localized("The model or skin of this bot is in no package "
                           "any more; the bot keeps it.")});
  }
  // What cannot be written is told at the end of the program.
  static_cast<void>(state_.Save(EmptyList::kReplacesOldFile));
  return Scan{*summary, std::move(notes)};
}

QString ModelListCommands::DropGoneAddOns() {
  const std::set<std::string> gone =
      GonePackages(PathFromBytes(state_.settings.Q3Baseq3), state_.lists);
  if (gone.empty()) return {};
  DropPackages(gone, state_.lists);
  models_.Refill();
  // By now the lists may be empty, which is to last.
  static_cast<void>(state_.Save(EmptyList::kReplacesOldFile));
  QStringList names;
  for (const std::string& name : gone) names << ToQString(name);
  return QCoreApplication::translate(
             "ModelListCommands",
             "Not in the game any more, and dropped from the lists of models "
             "and bots: %1.")
      .arg(names.join(QStringLiteral(", ")));
}

void ModelListCommands::ChooseFace() {
  frmFaces dialog(state_.lists.models, faces_, models_.Selection(), &window_);
  if (dialog.exec() == QDialog::Accepted) models_.Choose(dialog.Chosen());
}

void ModelListCommands::AddModel() {
  frmModelDialog dialog(state_.prompts, &window_);
  if (dialog.exec() == QDialog::Accepted) frmModel_GiveName(dialog);
}

void ModelListCommands::frmModel_GiveName(const frmModelDialog& dialog) {
  if (fragsmith::AddModel(state_.lists.models, dialog.Name(),
                          dialog.CreatesRedAndBlue(), state_.prompts)) {
    models_.Refill();
  }
}

void ModelListCommands::AddSkin() {
  const CatalogueSelection selection = models_.Selection();
  if (fragsmith::AddSkin(state_.lists.models, selection.modelIndex,
                         state_.prompts)) {
    models_.Refill();
  }
}

void ModelListCommands::RemoveModel() {
  const CatalogueSelection selection = models_.Selection();
  if (fragsmith::RemoveModel(state_.lists.models, selection.modelIndex,
                             state_.prompts)) {
    models_.RefillModelSelector(0, 0);
  }
}

void ModelListCommands::RemoveSkin() {
  const CatalogueSelection selection = models_.Selection();
  if (fragsmith::RemoveSkin(state_.lists.models, selection.modelIndex,
                            selection.skinIndex, state_.prompts)) {
    models_.RefillModelSelector(selection.modelIndex, 0);
  }
}

}  // namespace fragsmith
