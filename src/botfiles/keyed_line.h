#ifndef FRAGSMITH_BOTFILES_KEYED_LINE_H_
#define FRAGSMITH_BOTFILES_KEYED_LINE_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "botfiles/game_text.h"
#include "botfiles/read_report.h"
#include "model/bot.h"

namespace fragsmith {

/// True for lines that hold no value of a characteristic or weight file:
/// those that begin with "//", "#i", "{" or "}". An indented comment is none.
bool IsPassedOver(std::string_view line);

/// True for a text that starts with the key. Keys begin alike, so a look at
/// the last letter spares most comparisons.
inline bool StartsWithKey(std::string_view text, std::string_view key) {
  return text.size() >= key.size() && text[key.size() - 1] == key.back() &&
         text.starts_with(key);
}

/// The text of the value that belongs to a catalogue key standing in the
/// line: what follows the key with its own padding. With other padding it is
/// what stands at the column (counted from 1) that equals the padded key's
/// length, without blanks and TABs at its ends; when that is empty or begins
/// inside the key, the first token behind the key. Real files are often one
/// TAB short, and that column then still falls on the value.
std::string_view ValueTextOf(std::string_view line, int index);

/// A line of a file that stores the value of one key.
struct KeyedLine {
  std::size_t number = 0;  ///< Counted from 1.
  std::string_view text;   ///< As it stands in the file.
  std::string_view code;   ///< The same without comments.
};

/// Stores what lines say in the bot and writes down where that is not what
/// the game reads.
class ValueReader {
 public:
  /// File name for the notes, UTF-8.
  ValueReader(std::string file, Bot& bot, ReadReport& report);

  /// Takes the value of a catalogue key from the line into a parameter of the
  /// bot (the two differ for per-level parameters).
  void Take(const KeyedLine& line, int key, int parameter);

  void AddNote(std::size_t line, std::string text);

 private:
  void Compare(const KeyedLine& line, int key, int parameter,
               const Value& before);

  std::string file_;
  Bot& bot_;
  ReadReport& report_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_KEYED_LINE_H_
