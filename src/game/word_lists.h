#ifndef FRAGSMITH_GAME_WORD_LISTS_H_
#define FRAGSMITH_GAME_WORD_LISTS_H_

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "game/chat_message.h"

namespace fragsmith {

/// A list of which the game speaks a random line.
struct GameWordList {
  std::vector<ChatMessage> lines;
  /// Bytes of its longest line with all that it draws on; beyond the game's
  /// limit of a message it is that limit and one.
  std::size_t longest = 0;
};

/// The lists of the game's rnd.c, by names in which case counts.
class WordLists {
 public:
  /// What is no list is passed over.
  static WordLists Parse(std::string_view bytes);

  /// A few words of our own for each list of the editor, for when there is no
  /// game to read: they show how a line sounds, not what the game has.
  static const WordLists& Sample();

  /// Null when there is no such list.
  const GameWordList* Find(std::string_view name) const;

  bool empty() const { return lists_.empty(); }
  std::size_t size() const { return lists_.size(); }

 private:
  void MeasureLongest();

  std::map<std::string, GameWordList, std::less<>> lists_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_WORD_LISTS_H_
