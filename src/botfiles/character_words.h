#ifndef FRAGSMITH_BOTFILES_CHARACTER_WORDS_H_
#define FRAGSMITH_BOTFILES_CHARACTER_WORDS_H_

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "botfiles/left_out.h"
#include "model/value.h"

namespace fragsmith {

/// A characteristic file word by word, as the game reads it: keys and values
/// in blocks, wherever the lines end.
class CharacterWords {
 public:
  struct Block {
    std::optional<int> level;
    std::size_t line = 0;  ///< Where it begins.
    /// The file had a block of this level before, which the game takes.
    bool is_repeated = false;
  };

  struct Found {
    int key = 0;
    std::size_t line = 0;  ///< Of the key.
    Value value = {};
    std::string_view word = {};  ///< Of the value; holds until the next line.
    bool is_bare = false;        ///< A text without quotes.
    bool is_numbered = false;    ///< The key is the game's bare number for it.
    Block block = {};            ///< Of the key.
  };

  /// What is no part of a bot goes to the one that collects such.
  explicit CharacterWords(LeftOut& left_out) : left_out_(left_out) {}

  /// The values that come to their end in the line, given without comments.
  const std::vector<Found>& TakeLine(std::string_view code, std::size_t line);

  /// A key at the end of the file, with nothing behind it.
  const std::vector<Found>& Finish();

  /// The block that the last line belongs to.
  const Block& block() const { return block_; }

 private:
  void TakeWordOf(std::string_view word);
  void TakeLevel(std::string_view word);
  void EndKey(Value value);

  LeftOut& left_out_;
  std::vector<Found> found_;
  std::size_t line_ = 0;
  Block block_;
  std::set<int> levels_;
  bool expects_level_ = false;
  std::optional<Found> open_key_;
  std::string number_;  ///< Of that key, as it is written.
  /// The value behind an unknown key has no other meaning.
  bool skips_value_ = false;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_CHARACTER_WORDS_H_
