#ifndef FRAGSMITH_EDITOR_PAGES_SPOKEN_PREVIEW_H_
#define FRAGSMITH_EDITOR_PAGES_SPOKEN_PREVIEW_H_

#include <QLabel>
#include <QWidget>
#include <string>

#include "editor/controls/fun_name_preview.h"
#include "game/game_data.h"
#include "model/bot.h"
#include "support/random.h"

namespace fragsmith {

/// What the game would say for a chat line, with sample names and words, how
/// long the line is for the game, and when its type is spoken at all.
class SpokenPreview : public QWidget {
  Q_OBJECT

 public:
  explicit SpokenPreview(RandomSource random, QWidget* parent = nullptr);

  /// The game's own words; null for a small sample set. Kept, not copied.
  void SetGame(const GameData* game);

  /// The line (8-bit, editor form) of a chat type.
  void ShowLine(const Bot& bot, ChatTypeId type, const std::string& line);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SayAnother();
  void ShowWhen(const Bot& bot);

  RandomSource random_;
  const GameData* game_ = nullptr;
  ChatTypeId type_{0};
  std::string line_;
  std::string own_name_;
  QLabel* source_;
  FunNamePreview* text_;
  QLabel* lengths_;
  QLabel* when_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_SPOKEN_PREVIEW_H_
