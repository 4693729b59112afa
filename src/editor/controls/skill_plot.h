#ifndef FRAGSMITH_EDITOR_CONTROLS_SKILL_PLOT_H_
#define FRAGSMITH_EDITOR_CONTROLS_SKILL_PLOT_H_

#include <QString>
#include <QWidget>
#include <span>
#include <vector>

#include "game/skill_mix.h"
#include "model/bot.h"

namespace fragsmith {

/// Draws what a characteristic is at the skills 1 to 5, as the game mixes it
/// from the levels, with the values at which the bot begins to act otherwise.
class SkillPlot : public QWidget {
  Q_OBJECT

 public:
  explicit SkillPlot(QWidget* parent = nullptr);

  /// A parameter that each level has, of any level.
  void ShowCharacteristic(const Bot& bot, ParameterId id);

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// The picture in words, for those who do not see it.
  QString Words() const;
  double Top() const;

  double top_ = 0;  ///< Of the range that the game takes.
  QString title_;
  std::vector<ValueAtSkill> values_;
  std::span<const Threshold> thresholds_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_SKILL_PLOT_H_
