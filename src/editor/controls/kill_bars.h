#ifndef FRAGSMITH_EDITOR_CONTROLS_KILL_BARS_H_
#define FRAGSMITH_EDITOR_CONTROLS_KILL_BARS_H_

#include <QWidget>
#include <vector>

#include "model/bot.h"
#include "trial/match_log.h"

namespace fragsmith {

/// Draws what a bot and its opponent killed with, in the order in which the
/// bot's weights rank the weapons: what was foretold beside what happened.
class KillBars : public QWidget {
  Q_OBJECT

 public:
  explicit KillBars(QWidget* parent = nullptr);

  /// The kills are by weapon, as WeaponOfUsage calls these.
  void ShowKills(const Bot& bot, const Counts& kills, const Counts& other_kills,
                 const QString& other_name);

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Row {
    QString weapon;
    QString rank;  ///< "1st"; empty for what has no weight.
    int kills = 0;
    int other_kills = 0;
  };

  std::vector<Row> rows_;
  QString bot_name_;
  QString other_name_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_KILL_BARS_H_
