#ifndef FRAGSMITH_SUPPORT_NOTES_H_
#define FRAGSMITH_SUPPORT_NOTES_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace fragsmith {

/// What a note is about, where more is made of it than a line in a list.
enum class NoteKind : std::uint8_t {
  kOther,
  kNoWeights,       ///< A weight file sets none of the bot's weights.
  kAlsoInFile,      ///< What a bot has no place for, and nothing else.
  kMissingWeights,  ///< Those that no line of a weight file sets.
  kUnreadLine,      ///< The game takes a value from it, and our reader none.
  kOddValue,        ///< One is read, and the game takes another one.
};

/// Something odd that reading came across and went on from. Texts are UTF-8.
struct Note {
  std::string file;      ///< Name of the file as the user knows it.
  std::size_t line = 0;  ///< Counted from 1; 0 when it is no single line.
  std::string text;      ///< What was found and what it means for the bot.
  NoteKind kind = NoteKind::kOther;
};

/// The note as one line: "file:line: text".
std::string Describe(const Note& note);

/// What reading noticed, in the order of its discovery. A hostile file could
/// give a note for each of its lines, so only the first kMax are kept; the
/// rest is counted.
class Notes {
 public:
  static constexpr std::size_t kMax = 1000;

  void Add(Note note);
  void Append(const Notes& other);
  /// Takes back what has proved wrong: the notes of that kind on the file, or
  /// on one line of it.
  void Remove(const std::string& file, NoteKind kind, std::size_t line = 0);
  /// Takes back all notes on the file.
  void Remove(const std::string& file);

  const std::vector<Note>& list() const { return list_; }
  std::size_t left_out() const { return left_out_; }
  bool empty() const { return list_.empty(); }

 private:
  std::vector<Note> list_;
  std::size_t left_out_ = 0;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_NOTES_H_
