#ifndef FRAGSMITH_BOTFILES_GAME_TEXT_H_
#define FRAGSMITH_BOTFILES_GAME_TEXT_H_

#include <string>
#include <string_view>

#include "model/value.h"

namespace fragsmith {

/// Takes the comments out of lines as the game does: "//" to the end of the
/// line and "/* */", also over several lines; neither inside quotes.
class CommentStripper {
 public:
  /// The next line of the file without its comments. Stays good until the
  /// next call, and no longer than the line.
  std::string_view Strip(std::string_view line);

 private:
  bool is_inside_block_ = false;
  std::string kept_;
};

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
