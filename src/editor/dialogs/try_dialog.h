#ifndef FRAGSMITH_EDITOR_DIALOGS_TRY_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_TRY_DIALOG_H_

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QTimer>
#include <optional>
#include <vector>

#include "checks/finding.h"
#include "checks/game_trial.h"
#include "checks/trial_reader.h"
#include "editor/controls/findings_view.h"
#include "editor/dialogs/dialog_parts.h"
#include "editor/program_state.h"
#include "model/bot.h"
#include "support/temporary_folder.h"

namespace fragsmith {

/// Lets a game take the bot as it stands in the window, saved or not, and
/// shows what the game says of it. What is chosen is there again the next
/// time. The game runs beside the dialog and ends with it at the latest; of
/// what it wrote nothing stays.
class frmTry : public QDialog {
  Q_OBJECT

 public:
  /// Shows beside the game's words what the checks found in the bot. Both are
  /// copied: later edits take no part.
  frmTry(const Bot& bot, const std::vector<Finding>& findings,
         ProgramState& state, QWidget* parent = nullptr);
  ~frmTry() override;

  /// Ends the game and keeps the choices, however the dialog is closed.
  void done(int result) override;

 private:
  QLayout* MakeFields();
  QWidget* MakeLists(const std::vector<Finding>& findings);
  QWidget* MakeButtonRow();
  QLineEdit* AddField(const char* caption, const char* name,
                      QFormLayout* fields);
  void FillEngines();
  void LoadChoices();
  void SaveChoices() const;
  /// Puts a game and a map that go with the engine.
  void SuggestGame();

  TrialSetup Setup() const;
  void StartOrStop();
  void Start();
  void ShowOutput();
  void ShowEnd();
  void ShowFault(const QString& text);
  void SetRunning(bool is_running);
  void EndNow();

  const Bot bot_;
  ProgramState& state_;
  QProcess process_;
  /// Ends a game that does not end by itself when it is asked to.
  QTimer patience_;
  std::optional<TemporaryFolder> scratch_;
  std::optional<TrialReader> reader_;
  bool is_stopped_ = false;

  QComboBox* engine_;
  QLineEdit* data_ = nullptr;
  QLineEdit* game_ = nullptr;
  QLineEdit* map_ = nullptr;
  QComboBox* skill_;
  QLineEdit* opponents_ = nullptr;
  QPushButton* start_;
  QPushButton* close_ = nullptr;
  QListWidget* lines_;
  FindingsView* found_ = nullptr;
  HintLine* verdict_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_TRY_DIALOG_H_
