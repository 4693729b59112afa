#ifndef FRAGSMITH_CHECKS_GAME_LEXER_H_
#define FRAGSMITH_CHECKS_GAME_LEXER_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace fragsmith {

/// One word, number, text or sign of a .c file, as the game takes it.
struct GameToken {
  enum class Kind { kName, kNumber, kString, kLiteral, kSign };

  /// Loads, but reads otherwise than it looks.
  enum class Oddity {
    kNone,
    kUnknownEscape,  ///< The text is cut at a "\" that starts no escape.
    kPointAtEnd,     ///< "1." reads as -3.8.
    kTwoPoints,      ///< "1.2.3"
    kOctal,          ///< "0240" is 160.
  };

  Kind kind = Kind::kSign;
  std::string text;   ///< As written; of a string what is between the quotes.
  double number = 0;  ///< Of a kNumber.
  bool is_whole = false;
  bool blank_before = false;
  Oddity oddity = Oddity::kNone;
  int line = 0;  ///< Where it ends, from 1.
  /// Line ends between the last token of its file and the end of this one.
  int lines_crossed = 0;
  int file = 0;  ///< For the reader that puts several files together.

  /// A name or sign of this text; a string never is one.
  bool Is(std::string_view word) const {
    return (kind == Kind::kName || kind == Kind::kSign) && text == word;
  }
};

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

  /// Most bytes of a string between its quotes, of a number and of a name.
  static constexpr std::size_t kMostString = 1020;
  static constexpr std::size_t kMostNumber = 1022;
  static constexpr std::size_t kMostName = 1023;

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
  std::size_t place_ = 0;
  int line_ = 1;
  int last_line_ = 1;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_GAME_LEXER_H_
