#ifndef FRAGSMITH_EDITOR_DIALOGS_BOT_LIST_BOX_H_
#define FRAGSMITH_EDITOR_DIALOGS_BOT_LIST_BOX_H_

#include <QListWidget>
#include <QWidget>
#include <cstddef>
#include <optional>

#include "install/program/bot_list.h"

namespace fragsmith {

/// The bots of the game's folder, a line of fixed pitch for each, with a
/// heading over each of the three columns.
class BotListBox : public QWidget {
  Q_OBJECT

 public:
  explicit BotListBox(const BotList& bots, QWidget* parent = nullptr);

  /// Index of the chosen bot in the list.
  std::optional<std::size_t> Chosen() const;
  void ClearChoice();

  /// The list is there to be read; none of its bots can be chosen.
  void SetReadOnly();

 signals:
  void BotChosen();
  void BotActivated();

 private:
  void AddHeadings(QLayout* row);

  QListWidget* list_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_BOT_LIST_BOX_H_
