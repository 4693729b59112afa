// What GameSource tells of words and numbers that the game cannot read, or
// reads in another way than they are meant.

#include <algorithm>
#include <string>

#include "chat/vocabulary.h"
#include "game/file_faults.h"
#include "game/limits.h"
#include "game/preprocessor.h"
#include "support/localization.h"
#include "support/numbers.h"

namespace fragsmith {

void GameSource::ReportLexer(GameLexer::Outcome outcome,
                             const GameToken& token) {
  using Outcome = GameLexer::Outcome;
  switch (outcome) {
    case Outcome::kLineEndInString:
      return Complain(
          "line-end-in-text", token,
          Localized("A quotation mark (\" or ') opens a text here that does "
                    "not end on its line, and the game loses the line.") +
              " " + AdviceForOpenText(LineOf(token)));
    case Outcome::kOpenString:
      return Complain("open-text", token,
                      Localized("A quotation mark (\" or ') opens a text here "
                                "that never ends. Close it."));
    case Outcome::kStringTooLong:
      return Complain(
          "text-too-long", token,
          Localized("This text has more than the %1 characters that the game "
                    "can hold. Texts that stand side by side count as one: "
                    "perhaps a ; or a , is missing between them.",
                    {std::to_string(limits::kMaxString)}));
    case Outcome::kNumberTooLong:
    case Outcome::kNameTooLong:
      return Complain(
          "word-too-long", token,
          Localized(
              "This word or number is too long for the game. Shorten it."));
    case Outcome::kUnreadable:
      return Complain(
          "unreadable", token,
          Localized("The game cannot read a character that stands here outside "
                    "a text, and goes no further. Delete it."));
    case Outcome::kToken:
    case Outcome::kEnd:
      return;
  }
}

void GameSource::ReportOddity(const GameToken& token) {
  if (token.file != 0) return;
  const std::string text = Quoted(token.text);
  switch (token.oddity) {
    case GameToken::Oddity::kNone:
      return;
    case GameToken::Oddity::kUnknownEscape:
      return Warn("unknown-escape", token,
                  Localized("The game cuts this text at a \\ that it does not "
                            "understand: %1 is all that remains. Write \\\\ "
                            "for the sign itself, or remove it.",
                            {text}));
    case GameToken::Oddity::kPointAtEnd:
      return Warn(
          "point-at-end", token,
          Localized("The game reads %1 as %2. Put a digit behind the point.",
                    {text, PlainDecimal(token.number, kFloatDigits)}));
    case GameToken::Oddity::kTwoPoints:
      return Warn("two-points", token,
                  Localized("The game reads %1 as %2. Write one number, with "
                            "one point at most.",
                            {text, PlainDecimal(token.number, kFloatDigits)}));
    case GameToken::Oddity::kOctal:
      return Warn("leading-zero", token,
                  Localized("With a zero in front the game reads %1 as %2, a "
                            "number to the base 8. Remove the zero.",
                            {text, std::to_string(static_cast<long long>(
                                       std::min(token.number, 9e15)))}));
  }
}

}  // namespace fragsmith
