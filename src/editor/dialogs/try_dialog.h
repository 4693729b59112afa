#ifndef FRAGSMITH_EDITOR_DIALOGS_TRY_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_TRY_DIALOG_H_

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <optional>
#include <string>
#include <vector>

#include "checks/bot_location.h"
#include "checks/finding.h"
#include "checks/location_checks.h"
#include "editor/controls/findings_view.h"
#include "editor/dialogs/dialog_parts.h"
#include "editor/dialogs/engine_fields.h"
#include "editor/dialogs/skill_box.h"
#include "editor/state/program_state.h"
#include "editor/toolkit/program_end.h"
#include "model/bot.h"
#include "support/temporary_folder.h"
#include "trial/game_trial.h"
#include "trial/trial_reader.h"
#include "trial/trial_run.h"

namespace fragsmith {

/// Lets a game take the bot as it stands in the window, saved or not, or its
/// files as they are, and shows what the game says of it. What is chosen is
/// there again the next time. The game runs beside the dialog and ends with it
/// at the latest, also when the program or the session ends; of what it wrote
/// nothing stays.
class frmTry : public QDialog {
  Q_OBJECT

 public:
  /// Shows beside the game's words what the checks found in the bot. Both are
  /// copied: later edits take no part. Its files, where it has some, are
  /// offered when they say anything else; the game, null where none is known,
  /// is for their checks.
  frmTry(const Bot& bot, const std::vector<Finding>& findings,
         std::optional<BotLocation> on_disk, const InstalledGame* game,
         ProgramState& state, QWidget* parent = nullptr);
  ~frmTry() override;

  /// Ends the game and keeps the choices, however the dialog is closed.
  void done(int result) override;

 private:
  QLayout* MakeFields();
  QWidget* MakeLists();
  /// Whether the bot is tried as its files have it.
  bool IsAsOnDisk() const;
  bool DiffersOnDisk() const;
  void ShowFindings();
  QWidget* MakeButtonRow();
  void LoadChoices();
  void SaveChoices() const;

  TrialSetup Setup() const;
  void StartOrStop();
  void Start();
  Result<void> StartEngine(TrialSetup setup);
  /// Puts what is tried into the scratch folder.
  Result<void> PutBot(const std::filesystem::path& home);
  void Watch();
  void ShowOutput();
  void ShowEnd(bool is_stopped);
  void ShowFault(const QString& text);
  void SetRunning(bool is_running);
  /// Ends the game and takes away what it wrote.
  void EndNow();

  const Bot bot_;
  const std::vector<Finding> findings_;  ///< Of the window.
  const std::optional<BotLocation> on_disk_;
  const InstalledGame* const game_data_;
  std::string added_name_;  ///< By which the game adds what is tried.
  ProgramState& state_;
  /// Looks what the engine has done since.
  QTimer watch_;
  /// Made before the run and gone after it: the engine writes there.
  std::optional<TemporaryFolder> scratch_;
  std::optional<TrialRun> run_;
  std::optional<TrialReader> reader_;

  QComboBox* what_;
  EngineFields* engine_;
  SkillBox* skill_;
  QLineEdit* opponents_;
  QPushButton* start_;
  QPushButton* close_ = nullptr;
  QListWidget* lines_;
  FindingsView* found_ = nullptr;
  HintLine* verdict_;
  AtProgramEnd at_program_end_{[this] { EndNow(); }};
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_TRY_DIALOG_H_
