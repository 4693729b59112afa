#ifndef FRAGSMITH_GAME_PLAIN_LETTERS_H_
#define FRAGSMITH_GAME_PLAIN_LETTERS_H_

#include <string>
#include <string_view>

namespace fragsmith {

/// The text with letters and signs of the upper half of Windows-1252, which
/// the game shows as dots or breaks, in plain ones: "café" becomes "cafe".
/// What has no plain form is left away.
std::string InPlainLetters(std::string_view text);

/// True for the letters that InPlainLetters changes.
constexpr bool IsAccented(char letter) {
  return static_cast<unsigned char>(letter) >= 0x80;
}

bool HasAccents(std::string_view text);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_PLAIN_LETTERS_H_
