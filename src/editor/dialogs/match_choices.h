#ifndef FRAGSMITH_EDITOR_DIALOGS_MATCH_CHOICES_H_
#define FRAGSMITH_EDITOR_DIALOGS_MATCH_CHOICES_H_

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <QWidget>
#include <string>
#include <vector>

#include "editor/dialogs/engine_fields.h"
#include "editor/dialogs/skill_box.h"
#include "editor/state/program_state.h"
#include "game/game_data.h"
#include "trial/match.h"

namespace fragsmith {

/// Against whom a bot is to play, and how. The choices are kept from one start
/// of the program to the next.
class MatchChoices : public QWidget {
  Q_OBJECT

 public:
  /// The state outlives it.
  MatchChoices(const ProgramState& state, QWidget* parent);

  enum class OpponentKind { kAsLoaded, kAsSaved, kNamed };

  /// Offers the bot as it was, and those of the game; null is no game.
  void FillOpponents(bool was_saved, const GameData* game);
  OpponentKind Opponent() const;
  std::string OpponentName() const;  ///< UTF-8; may be empty.

  int Skill() const { return skill_->Skill(); }
  int Minutes() const { return minutes_->value(); }
  int Games() const { return games_->value(); }
  bool IsUntilSure() const { return until_sure_->isChecked(); }
  double WishedShare() const;  ///< 0 to 1.
  int Jobs() const { return jobs_->value(); }
  /// Without blanks; none where nothing was entered.
  std::vector<std::string> Maps() const;
  MatchServer Server() const;

  void FocusOpponent() { opponent_->setFocus(); }
  void FocusMap() { engine_->map().setFocus(); }

  void Load();
  void Save() const;
  /// While matches are played, nothing can be chosen.
  void SetRunning(bool is_running);

 private:
  /// As the file holds it.
  QString SavedOpponent() const;

  const ProgramState& state_;
  QComboBox* opponent_;
  EngineFields* engine_;
  SkillBox* skill_;
  QSpinBox* minutes_;
  QSpinBox* games_;
  QCheckBox* until_sure_;
  QSpinBox* share_;
  QSpinBox* jobs_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_MATCH_CHOICES_H_
