#ifndef FRAGSMITH_EDITOR_DIALOGS_MATCH_FINDINGS_H_
#define FRAGSMITH_EDITOR_DIALOGS_MATCH_FINDINGS_H_

#include <QTreeWidget>
#include <vector>

#include "model/bot_place.h"
#include "trial/match_evidence.h"

namespace fragsmith {

/// What was found in the bot before it played, beside what the matches show of
/// it.
class MatchFindings : public QTreeWidget {
  Q_OBJECT

 public:
  explicit MatchFindings(QWidget* parent);

  /// The findings that the evidence is about.
  void ShowEvidence(const std::vector<Finding>& findings,
                    const std::vector<MatchEvidence>& evidence);

 signals:
  void PlaceWanted(const fragsmith::BotPlace& place);

 private:
  std::vector<BotPlace> places_;  ///< Of the rows.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_MATCH_FINDINGS_H_
