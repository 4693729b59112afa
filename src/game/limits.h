#ifndef FRAGSMITH_GAME_LIMITS_H_
#define FRAGSMITH_GAME_LIMITS_H_

#include <cstddef>

#include "model/file_names.h"

namespace fragsmith::limits {

// What the game has room for. Bounds of our own, against files that would keep
// us busy, stand where they are used.

/// Bytes of a path below botfiles/; with that folder it has 63 characters.
inline constexpr std::size_t kMaxPath = 54;

/// Bytes of the names in a description: beyond these the bot is refused, cut
/// in a menu, or its fun name cut for the players.
inline constexpr std::size_t kMaxName =
    kMaxPath - (kBotsPath.size() + kCharacterEnd.size());
inline constexpr std::size_t kMaxNameInBotMenu = 31;
inline constexpr std::size_t kMaxNameInSkirmish = 15;
inline constexpr std::size_t kMaxPlayerName = 35;
/// A longer fun name leaves no room for the path of the character file in
/// what the game sends along with a player.
inline constexpr std::size_t kMaxFunName = 850;

/// A description file of this size or more is not read.
inline constexpr std::size_t kRefusedDescription = 8192;
/// Descriptions that are kept, bytes of one of them, and of a word in it.
inline constexpr std::size_t kMaxDescriptions = 1024;
inline constexpr std::size_t kMaxDescription = 1023;
inline constexpr std::size_t kMaxDescriptionWord = 1023;
/// Bytes of the names of all description files, each with a closing 0.
inline constexpr std::size_t kMaxDescriptionNames = 1022;

/// Bytes of a string between its quotes, of a number and of a name in a .c
/// file.
inline constexpr std::size_t kMaxString = 1020;
inline constexpr std::size_t kMaxNumber = 1022;
inline constexpr std::size_t kMaxIdentifier = 1023;

/// A macro with more parameters cannot be used.
inline constexpr std::size_t kMaxParameters = 128;

/// The last number of a characteristic that there is room for.
inline constexpr int kMaxCharacteristic = 80;
/// What stands behind so many weights of a file is passed over.
inline constexpr int kMaxWeights = 128;

/// Bytes of a chat message as the game keeps it, and as it is spoken.
inline constexpr std::size_t kMaxEncodedBytes = 255;
inline constexpr std::size_t kMaxSpokenBytes = 149;
/// A variable or a word list, whatever its name, is refused behind more: the
/// game expects six bytes of it.
inline constexpr std::size_t kMaxBeforeItem = kMaxEncodedBytes - 6;
/// So many are safe, for the screen puts the bot's name before them.
inline constexpr std::size_t kSafeSpokenBytes = 130;
/// How often lists in a message are replaced by lines that draw on others.
inline constexpr int kMaxExpansions = 10;
/// Bytes of the longest name of a weapon.
inline constexpr std::size_t kMaxWeaponName = 16;

}  // namespace fragsmith::limits

#endif  // FRAGSMITH_GAME_LIMITS_H_
