#ifndef FRAGSMITH_EDITOR_GAME_PICTURE_H_
#define FRAGSMITH_EDITOR_GAME_PICTURE_H_

#include <QStackedWidget>

#include "editor/controls/skill_plot.h"
#include "editor/controls/weapon_bars.h"
#include "editor/current_bot.h"

namespace fragsmith {

/// Shows what becomes of the parameter whose slider has or had the focus: a
/// characteristic by skill, or the order of the weapons.
class GamePicture : public QStackedWidget {
  Q_OBJECT

 public:
  explicit GamePicture(CurrentBot& current, QWidget* parent = nullptr);

  /// Draws anew, after an edit.
  void ShowBot();

 private:
  void Follow(QWidget* focused);

  CurrentBot& current_;
  SkillPlot* plot_;
  WeaponBars* bars_;
  int characteristic_ = 2;  ///< The first of the pages.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_GAME_PICTURE_H_
