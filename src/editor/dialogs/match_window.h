#ifndef FRAGSMITH_EDITOR_DIALOGS_MATCH_WINDOW_H_
#define FRAGSMITH_EDITOR_DIALOGS_MATCH_WINDOW_H_

#include <QDialog>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "editor/dialogs/dialog_parts.h"
#include "editor/dialogs/match_choices.h"
#include "editor/dialogs/match_results.h"
#include "editor/state/bot_checker.h"
#include "editor/state/current_bot.h"
#include "editor/state/match_runner.h"
#include "editor/state/program_state.h"
#include "model/bot_place.h"

namespace fragsmith {

/// Lets the current bot play matches in fast time, against how it was or
/// against one of the game's, beside the main window, which stays usable, or
/// looks for the strength at which it takes a wished share. The runs of the
/// session are kept and stand beside each other; no server outlives the
/// window's closing.
class frmMatch : public QDialog {
  Q_OBJECT

 public:
  /// All but the parent outlive it. `store` puts what is being typed into the
  /// bot; it says false where that cannot be.
  frmMatch(CurrentBot& current, BotChecker& checker, ProgramState& state,
           std::function<bool()> store, QWidget* parent);

  /// Shows it, or brings it to the front.
  void Present();

  /// Ends the run and keeps the choices, however the window is closed.
  void done(int result) override;

 signals:
  void GoTo(const fragsmith::BotPlace& place);

 private:
  /// The bot to play against.
  struct Opponent {
    std::string name;          ///< For people.
    std::string source;        ///< For files, in English.
    const Bot* bot = nullptr;  ///< Null for one of the installed game.
  };

  QLayout* MakeStartRow();
  QWidget* MakeRuns();
  QWidget* MakeButtonRow();
  void FillOpponents();

  Opponent ChosenOpponent() const;
  void StartOrStop();
  /// With `search` for the strength at which the bot takes the wished share.
  void Start(bool search);
  /// What is to be played; the reason when nothing can be.
  Result<std::unique_ptr<MatchSession>> MakeSession(bool search);
  void SetRunning(bool is_running);
  void ShowProgress();
  void ShowNews();
  static void ShowRun(QTreeWidgetItem& row, const MatchSession& session);
  void ShowSelected();
  MatchSession* Selected() const;
  const MatchSession& SessionOf(QTreeWidgetItem& row) const;
  /// Gives the bot the strength that the shown search has come to.
  void TakeStrength();
  /// Whether the bot that played is in the window; says so where it is not.
  bool IsHere(const MatchSession& session);
  void GoToLine(const ChatPlace& place, const std::string& text);
  void Export(const QString& title, const QString& ending,
              const std::function<std::string()>& bytes);

  CurrentBot& current_;
  BotChecker& checker_;
  ProgramState& state_;
  std::function<bool()> store_;
  std::vector<std::unique_ptr<MatchSession>> sessions_;
  MatchRunner runner_;  ///< Goes before the sessions do.

  MatchChoices* choices_;
  QTreeWidget* runs_;
  MatchResults* results_;
  QStackedWidget* shown_ = nullptr;  ///< The results, or what to do first.
  QPushButton* start_;
  QPushButton* tune_;
  QPushButton* take_;
  QPushButton* export_;
  HintLine* progress_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_MATCH_WINDOW_H_
