// The options of the window, and what follows where they name another game.

#include <string>
#include <vector>

#include "editor/commands/bot_commands.h"
#include "editor/dialogs/options_dialog.h"
#include "editor/frm_main.h"
#include "install/program/game_folder.h"
#include "support/files.h"
#include "support/localization.h"

namespace fragsmith {

void frmMain::ShowOptions() {
  frmOptions dialog(
      state_.prompts, this,
      [this](const std::filesystem::path& folder) {
        return state_.FirstFolder(folder);
      },
      commands_->Places());
  for (int index = 0; index < kOptionCount; ++index) {
    dialog.SetOptionValue(index, GetOptionValue(state_.settings, index));
  }
  const ProgramSettings before = state_.settings;
  bool goes_on = true;
  while (goes_on && dialog.exec() == QDialog::Accepted) {
    frmOption_SaveValues(dialog);
    goes_on = !dialog.GetOptionValue(0).empty() &&
              state_.settings.Q3Baseq3.empty() &&
              WantsOtherGame(before.Q3Baseq3);
    dialog.BeginAtGameFolder();
  }
  if (state_.settings.Q3Baseq3 == before.Q3Baseq3) {
    state_.settings.BaseQ3Check = before.BaseQ3Check;
  }
}

bool frmMain::WantsOtherGame(const std::string& before) {
  const bool has_before = HasGameProgram(PathFromBytes(before));
  std::string text = Localized("There is no game folder now.");
  std::vector<std::string> buttons = {Localized("Go on without"),
                                      Localized("Correct it")};
  if (has_before) {
    text += " " + Localized("The one before was '%1'.", {before});
    buttons.insert(buttons.begin(), Localized("Keep the one before"));
  }
  enum : std::size_t { kKeep, kNone, kCorrect };
  const std::size_t choice =
      (has_before ? kKeep : kNone) +
      state_.prompts.Choose(std::string(kProgramTitle), text, buttons);
  if (choice == kKeep) {
    state_.SetGameFolder(before);
    models_->RefreshIcon();
    ReadGame();
  }
  return choice == kCorrect;
}

void frmMain::frmOption_SaveValues(const frmOptions& dialog) {
  const std::string game = state_.settings.Q3Baseq3;
  for (int index = 0; index < kEditableOptionCount; ++index) {
    SetOptionValue(state_.settings, index, dialog.GetOptionValue(index));
  }
  const std::filesystem::path folder = state_.folder_state.CurrentFolder;
  state_.InitByValues();
  // What is known is of the other game.
  if (state_.settings.Q3Baseq3 != game) state_.settings.BaseQ3Check = false;
  if (state_.folder_state.CurrentFolder != folder) {
    commands_->ForgetLastFolder();
  }
  models_->RefreshIcon();
  ReadGame();
}

void frmMain::CheckBaseq3() {
  const std::optional<ModelListCommands::Scan> scan =
      model_list_->CheckBaseq3();
  if (!scan) return;
  AddNotes(scan->notes);
  Say(QString::fromStdString(Describe(scan->summary)));
  ReadGame();
}

void frmMain::DropGoneAddOns() {
  const QString text = model_list_->DropGoneAddOns();
  if (!text.isEmpty()) Say(text);
}

}  // namespace fragsmith
