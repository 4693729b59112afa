#ifndef FRAGSMITH_BOTFILES_GAME_TEXT_H_
#define FRAGSMITH_BOTFILES_GAME_TEXT_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "model/value.h"

namespace fragsmith {

/// The bytes of a file without the mark that some editors put at the front.
std::string_view WithoutByteOrderMark(std::string_view bytes);

/// The bytes with ordinary blanks for the no-break spaces and the like that the
/// game passes over and nobody sees, outside of comments and texts in quotes.
///
/// A line may have several texts, or one, in which quotation marks may stand:
/// a value that was kept as a text is written so.
enum class TextsInLine : std::uint8_t { kSeveral, kOne };
std::string WithPlainBlanks(std::string_view bytes, TextsInLine texts);

/// Takes the comments out of lines as the game does: "//" to the end of the
/// line and "/* */", also over several lines; neither inside quotes. A byte
/// order mark in front of a line goes as well: joined files have some inside.
class CommentStripper {
 public:
  /// The next line of the file without its comments. Stays good until the
  /// next call, and no longer than the line.
  std::string_view Strip(std::string_view line);

  /// The last line had a comment that says something: a rule of "=" does not.
  bool had_words() const { return had_words_; }

 private:
  void Drop(std::string_view comment);

  bool is_inside_block_ = false;
  bool had_words_ = false;
  std::string kept_;
};

/// Takes the next word of a line without comments: a text with its quotes, a
/// brace, or all up to the next brace or what the game takes for a blank. Empty
/// at the end.
std::string_view TakeWord(std::string_view& code);

/// True where CR alone ends the lines. To the game they are all one.
bool HasOldLineEnds(std::string_view bytes);

/// A word without its quotes, where it has some.
std::string_view WithoutQuotes(std::string_view word);

/// The first token of the text, with blanks and TABs in front passed over: a
/// quoted string with its quotes, or all up to the next blank or TAB. Empty
/// when there is none.
std::string_view FirstToken(std::string_view text);

/// The value that the game takes from a token: the number with all of its
/// digits and its sign, else the text without its quotes.
Value PlainValue(std::string_view token);

/// True when a value that was read says the same as the plain one: a number
/// with a fraction is a 32-bit float, and compared with the digits of one.
bool IsSameValue(const Value& read, const Value& plain);

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_GAME_TEXT_H_
