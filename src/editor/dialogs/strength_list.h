#ifndef FRAGSMITH_EDITOR_DIALOGS_STRENGTH_LIST_H_
#define FRAGSMITH_EDITOR_DIALOGS_STRENGTH_LIST_H_

#include <QTreeWidget>

#include "model/bot.h"

namespace fragsmith {

/// The values that make a bot weaker or stronger: what they are, what they come
/// to, and the two ends between which they are moved.
class StrengthList : public QTreeWidget {
  Q_OBJECT

 public:
  explicit StrengthList(QWidget* parent);

  /// The bot as it is, and at the strength.
  void ShowStrength(const Bot& bot, double strength);
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_STRENGTH_LIST_H_
