#ifndef FRAGSMITH_BOTFILES_KEYED_LINE_H_
#define FRAGSMITH_BOTFILES_KEYED_LINE_H_

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "botfiles/game_text.h"
#include "botfiles/left_out.h"
#include "botfiles/read_report.h"
#include "model/bot.h"
#include "model/value.h"

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
  std::size_t start = 0;   ///< Where in the file it begins.
};

/// Whether a note has been given already that covers a value.
enum class IsTold { kNo, kYes };

/// Stores what lines say in the bot, and writes down where that is neither
/// what the game reads nor what a save would write.
class ValueReader {
 public:
  /// File name for the notes, UTF-8.
  ValueReader(std::string file, Bot& bot, ReadReport& report);

  /// Takes the value of a parameter from the line that has its key.
  void Take(const KeyedLine& line, ParameterId id,
            IsTold is_told = IsTold::kNo);

  /// Takes a value that stands in the line by another key than ours.
  void TakeText(std::size_t line, ParameterId id, std::string_view text,
                IsTold is_told = IsTold::kNo);

  /// The value that the game takes for the parameter, and the line of its
  /// key. A later one takes the place of an earlier one.
  void TakeAsGame(std::size_t line, ParameterId id, Value value,
                  IsTold is_told = IsTold::kNo);

  /// The file speaks of the parameter, whatever of it is taken.
  void Give(ParameterId id) { given_.set(PlaceOf(id)); }

  void AddNote(std::size_t line, std::string text,
               NoteKind kind = NoteKind::kOther);

  /// Compares, once all lines are taken, and puts the notes in the order of
  /// the lines.
  void Finish();

 private:
  struct Seen {
    ParameterId id;
    Value before;
    std::size_t line = 0;  ///< That gave the bot its value; 0 for none.
    bool is_comment = false;
    bool is_shortened = false;  ///< By a save.
    std::optional<Value> plain;
    std::size_t plain_line = 0;
    bool is_told = false;
  };

  /// All numbers of parameters are below it.
  static constexpr std::size_t kNumbers = 600;
  static std::size_t PlaceOf(ParameterId id) {
    return static_cast<std::size_t>(id.number());
  }

  Seen& SeenOf(ParameterId id);
  Seen& Store(std::size_t line, ParameterId id, std::string_view text,
              IsTold is_told);
  void Compare(const Seen& seen);
  void CompareWithSaved(const Seen& seen);
  void TellOverwritten();

  std::string file_;
  Bot& bot_;
  ReadReport& report_;
  std::vector<Note> notes_;
  std::vector<Seen> seen_;
  /// By the number of the parameter: its place among these, from 1.
  std::array<std::uint16_t, kNumbers> seen_at_{};
  std::bitset<kNumbers> given_;  ///< Likewise.
  std::size_t first_overwritten_ = 0;
  /// What the note says of each.
  std::map<ParameterId, std::string> overwritten_;
  /// By level: what stands in the file as 0 and is not written.
  std::map<Level, std::pair<std::size_t, NameList>> zeros_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_KEYED_LINE_H_
