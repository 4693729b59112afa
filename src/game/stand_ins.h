#ifndef FRAGSMITH_GAME_STAND_INS_H_
#define FRAGSMITH_GAME_STAND_INS_H_

#include <optional>
#include <string>
#include <string_view>

namespace fragsmith {

/// Stands in for the game's own files below botfiles/ where no game is at
/// hand: small ones of our own under the names that a bot's files ask for.
/// Case does not count.
std::optional<std::string> StandInGameFile(std::string_view path);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_STAND_INS_H_
