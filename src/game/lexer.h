#ifndef FRAGSMITH_GAME_LEXER_H_
#define FRAGSMITH_GAME_LEXER_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "support/text.h"

namespace fragsmith {

/// A number that stands in the bot's own file.
struct OwnNumber {
  TextSpan span;
  double number = 0;

  bool operator==(const OwnNumber&) const = default;
};

/// One word, number, text or sign of a .c file, as the game takes it.
struct GameToken {
  enum class Kind { kName, kNumber, kString, kLiteral, kSign };

  /// Loads, but reads otherwise than it looks.
  enum class Oddity {
    kNone,
    kUnknownEscape,  ///< The text is cut at a "\" that starts no escape.
    kPointAtEnd,     ///< "1." reads as -3.8, "240." as 235.2.
    kTwoPoints,      ///< "1.2.3"
    kOctal,          ///< "0240" is 160.
  };

  Kind kind = Kind::kSign;
  std::string text;   ///< As written; of a string what is between the quotes.
  std::string macro;  ///< The macro of another file that stands here for it.
  double number = 0;  ///< Of a kNumber.
  bool is_whole = false;
  bool blank_before = false;
  Oddity oddity = Oddity::kNone;
  int line = 0;  ///< Where it ends, from 1.
  /// Line ends between the last token of its file and the end of this one.
  int lines_crossed = 0;
  int file = 0;  ///< For the reader that puts several files together.
  /// Where it stands in its file; empty for what is put together.
  TextSpan span;
  /// The one number of the bot's own file that it is, or is calculated from.
  std::optional<OwnNumber> own;

  /// A name or sign of this text; a string never is one.
  bool Is(std::string_view word) const {
    return (kind == Kind::kName || kind == Kind::kSign) && text == word;
  }
};

/// Letters behind a "\" in a text that mean something.
inline constexpr std::string_view kEscapes = R"(\"'?nrtvbfax0123456789)";

/// Takes the bytes of a .c file apart by the game's rules.
class GameLexer {
 public:
  enum class Outcome {
    kToken,
    kEnd,
    // The rest are errors. All but the last go on behind what was read; a
    // byte that begins nothing is found again and again.
    kLineEndInString,
    kOpenString,
    kStringTooLong,
    kNumberTooLong,
    kNameTooLong,
    kUnreadable,
  };

  /// The bytes must stay where they are. A NUL ends the file.
  explicit GameLexer(std::string_view bytes);

  Outcome Next(GameToken& token);

  int line() const { return line_; }

 private:
  char At(std::size_t ahead = 0) const;
  bool SkipBlanks();
  Outcome TakeString(char quote, GameToken& token);
  bool TakeEscape(std::string& text);
  Outcome TakeNumber(GameToken& token);
  Outcome TakeName(GameToken& token);

  std::string_view bytes_;
  std::size_t offset_ = 0;
  int line_ = 1;
  int last_line_ = 1;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_LEXER_H_
