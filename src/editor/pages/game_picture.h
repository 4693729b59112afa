#ifndef FRAGSMITH_EDITOR_PAGES_GAME_PICTURE_H_
#define FRAGSMITH_EDITOR_PAGES_GAME_PICTURE_H_

#include <QLabel>
#include <QStackedLayout>
#include <QWidget>

#include "editor/controls/skill_plot.h"
#include "editor/controls/weapon_bars.h"
#include "editor/state/current_bot.h"
#include "editor/toolkit/page_table.h"

namespace fragsmith {

/// Shows at the foot of a page what becomes of the parameter that is worked
/// on: a characteristic by skill or the order of the weapons, and beside it
/// what the parameter does in the game.
class GamePicture : public QWidget {
  Q_OBJECT

 public:
  GamePicture(const PageRow& page, CurrentBot& current,
              QWidget* parent = nullptr);

  /// Turns to a parameter of the page, of whichever level.
  void Show(ParameterId id);

  /// Draws anew, after an edit.
  void ShowBot();

  /// As high as with a picture.
  QSize sizeHint() const override;
  /// The same for each parameter of the page, so that nothing jumps.
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const PageRow& page_;
  CurrentBot& current_;
  ParameterId id_;
  SkillPlot* plot_ = nullptr;   ///< On pages of characteristics by level.
  WeaponBars* bars_ = nullptr;  ///< On the page of the weapons' use.
  QLabel* name_;
  QLabel* help_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_GAME_PICTURE_H_
