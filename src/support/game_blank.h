#ifndef FRAGSMITH_SUPPORT_GAME_BLANK_H_
#define FRAGSMITH_SUPPORT_GAME_BLANK_H_

#include <string_view>

namespace fragsmith {

/// What the game passes over between words. Bytes are signed in the games that
/// people play, so those from 128 on count as blanks as well.
constexpr bool IsGameBlank(char letter) {
  const auto byte = static_cast<unsigned char>(letter);
  return byte <= ' ' || byte >= 128;
}

/// The text without such blanks at both of its ends.
inline std::string_view TrimGameBlanks(std::string_view text) {
  while (!text.empty() && IsGameBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsGameBlank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_GAME_BLANK_H_
