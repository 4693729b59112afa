#ifndef FRAGSMITH_MODEL_GAME_CHARACTERISTICS_H_
#define FRAGSMITH_MODEL_GAME_CHARACTERISTICS_H_

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace fragsmith {

/// The keys of the characteristics, without "CHARACTERISTIC_", each at the
/// number that the game knows it by.
inline constexpr std::array<std::string_view, 49> kGameCharacteristics = {
    "NAME",
    "GENDER",
    "ATTACK_SKILL",
    "WEAPONWEIGHTS",
    "VIEW_FACTOR",
    "VIEW_MAXCHANGE",
    "REACTIONTIME",
    "AIM_ACCURACY",
    "AIM_ACCURACY_MACHINEGUN",
    "AIM_ACCURACY_SHOTGUN",
    "AIM_ACCURACY_ROCKETLAUNCHER",
    "AIM_ACCURACY_GRENADELAUNCHER",
    "AIM_ACCURACY_LIGHTNING",
    "AIM_ACCURACY_PLASMAGUN",
    "AIM_ACCURACY_RAILGUN",
    "AIM_ACCURACY_BFG10K",
    "AIM_SKILL",
    "AIM_SKILL_ROCKETLAUNCHER",
    "AIM_SKILL_GRENADELAUNCHER",
    "AIM_SKILL_PLASMAGUN",
    "AIM_SKILL_BFG10K",
    "CHAT_FILE",
    "CHAT_NAME",
    "CHAT_CPM",
    "CHAT_INSULT",
    "CHAT_MISC",
    "CHAT_STARTENDLEVEL",
    "CHAT_ENTEREXITGAME",
    "CHAT_KILL",
    "CHAT_DEATH",
    "CHAT_ENEMYSUICIDE",
    "CHAT_HITTALKING",
    "CHAT_HITNODEATH",
    "CHAT_HITNOKILL",
    "CHAT_RANDOM",
    "CHAT_REPLY",
    "CROUCHER",
    "JUMPER",
    "WEAPONJUMPING",
    "GRAPPLE_USER",
    "ITEMWEIGHTS",
    "AGGRESSION",
    "SELFPRESERVATION",
    "VENGEFULNESS",
    "CAMPER",
    "EASY_FRAGGER",
    "ALERTNESS",
    "FIRETHROTTLE",
    "WALKER",
};

/// The whole key, such as CHARACTERISTIC_NAME; the number must be one of them.
inline std::string GameKeyName(int number) {
  return "CHARACTERISTIC_" +
         std::string(kGameCharacteristics.at(static_cast<std::size_t>(number)));
}

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_GAME_CHARACTERISTICS_H_
