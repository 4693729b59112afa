#ifndef FRAGSMITH_GAME_SKILL_NAMES_H_
#define FRAGSMITH_GAME_SKILL_NAMES_H_

#include <array>
#include <string_view>

namespace fragsmith {

/// What the game's menus call the skills 1 to 5.
inline constexpr std::array<std::string_view, 5> kSkillNames = {
    "I Can Win", "Bring It On", "Hurt Me Plenty", "Hardcore", "Nightmare!"};

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_SKILL_NAMES_H_
