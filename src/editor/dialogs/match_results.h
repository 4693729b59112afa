#ifndef FRAGSMITH_EDITOR_DIALOGS_MATCH_RESULTS_H_
#define FRAGSMITH_EDITOR_DIALOGS_MATCH_RESULTS_H_

#include <QLabel>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>
#include <QWidget>
#include <string>

#include "editor/controls/kill_bars.h"
#include "editor/controls/share_plot.h"
#include "editor/dialogs/match_findings.h"
#include "editor/dialogs/strength_list.h"
#include "editor/state/match_runner.h"
#include "model/bot_place.h"

namespace fragsmith {

/// What came of a run of matches: the verdict, how the share settled, both
/// bots' figures, what they killed with, and what ours said and took.
class MatchResults : public QWidget {
  Q_OBJECT

 public:
  explicit MatchResults(QWidget* parent = nullptr);

  /// Shows a run, or what is new in the one that is shown, and how the shares
  /// of others settled beside its own. Rows stay where they are while the same
  /// run goes on.
  void ShowSession(MatchSession& session,
                   const std::vector<const MatchSession*>& others);

  /// For the room of a picture.
  static constexpr int kMargin = 8;

 signals:
  /// One of the bot's lines is wanted, by its place in the bot that played.
  void LineWanted(const fragsmith::ChatPlace& place, const std::string& text);
  /// What a finding is about is wanted.
  void PlaceWanted(const fragsmith::BotPlace& place);

 private:
  QWidget* MakeLists();
  void ShowFigures(const MatchReport& report,
                   const std::vector<std::string>& names);
  void ShowSaid(MatchSession& session, const Counts& said);
  void ShowTook(const MatchReport& report);
  void GoToLine(const QTreeWidgetItem& item);

  const MatchSession* shown_ = nullptr;
  QLabel* verdict_;
  SharePlot* share_;
  KillBars* kills_;
  QTableWidget* bots_;
  QTreeWidget* said_;
  QTreeWidget* took_;
  MatchFindings* evidence_;
  StrengthList* strength_;
  QTabWidget* lists_ = nullptr;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_MATCH_RESULTS_H_
