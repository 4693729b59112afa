#ifndef FRAGSMITH_EDITOR_CONTROLS_WEAPON_BARS_H_
#define FRAGSMITH_EDITOR_CONTROLS_WEAPON_BARS_H_

#include <QComboBox>
#include <QWidget>
#include <vector>

#include "game/weapon_order.h"
#include "model/bot.h"

namespace fragsmith {

/// Draws the order in which a bot prefers its weapons, by distance where the
/// game's data looks at that.
class WeaponBars : public QWidget {
  Q_OBJECT

 public:
  explicit WeaponBars(QWidget* parent = nullptr);

  void ShowBot(const Bot& bot);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowOrder();

  Bot bot_;
  std::vector<WeaponRank> order_;
  QComboBox* distance_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_WEAPON_BARS_H_
