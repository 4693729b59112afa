#ifndef FRAGSMITH_TRIAL_SAID_LINES_H_
#define FRAGSMITH_TRIAL_SAID_LINES_H_

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "game/word_lists.h"
#include "model/bot.h"
#include "model/bot_place.h"

namespace fragsmith {

/// A chat line of a bot. One that stands in several situations is one line.
struct OwnLine {
  std::string text;               ///< In editor form.
  std::vector<ChatPlace> places;  ///< At least one.
  /// Where it is nothing but a list that nobody knows the words of, nobody can
  /// say whether it was heard.
  bool can_be_told = true;
};

/// Finds the chat lines behind what the game let a bot say. The game has put
/// names and words into them and exchanged others for their synonyms, so that
/// it is the line whose own words are there most.
class SaidLines {
 public:
  /// The lists are those that the game speaks with.
  SaidLines(const Bot& bot, const WordLists& words);

  /// In the order of the situations, without the empty ones.
  const std::vector<OwnLine>& lines() const { return lines_; }

  /// The number of the line that was said (game text); nothing for what is
  /// none of the bot's.
  std::optional<std::size_t> Find(const std::string& said);

 private:
  /// Words in lower case; an empty one stands for any words, or none.
  using Words = std::vector<std::string>;

  struct Pattern {
    std::size_t line;
    Words words;
  };

  void Add(std::size_t line, ChatTypeId type, const WordLists& words);

  std::vector<OwnLine> lines_;
  std::vector<Pattern> patterns_;
  std::map<std::string, std::optional<std::size_t>> found_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_SAID_LINES_H_
