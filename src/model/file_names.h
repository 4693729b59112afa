#ifndef FRAGSMITH_MODEL_FILE_NAMES_H_
#define FRAGSMITH_MODEL_FILE_NAMES_H_

#include <string>
#include <string_view>

namespace fragsmith {

// How the names of a bot's files go on behind the bot's name.
inline constexpr std::string_view kCharacterEnd = "_c.c";
inline constexpr std::string_view kChatEnd = "_t.c";
inline constexpr std::string_view kItemWeightEnd = "_i.c";
inline constexpr std::string_view kWeaponWeightEnd = "_w.c";
inline constexpr std::string_view kDescriptionEnd = ".bot";

/// The character file of the bot whose files are called so, as a description
/// names it.
inline std::string CharacterPath(std::string_view called) {
  return "bots/" + std::string(called) + std::string(kCharacterEnd);
}

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_FILE_NAMES_H_
