#ifndef FRAGSMITH_GAME_NUMBER_H_
#define FRAGSMITH_GAME_NUMBER_H_

#include <optional>
#include <string_view>

#include "model/bot.h"
#include "model/value.h"

namespace fragsmith {

/// A number as the game finds it in a file of ours. The kind matters: skills
/// between two levels get a mix only of numbers that have a "." in the file.
struct WrittenNumber {
  double value = 0;
  bool is_whole = false;  ///< Written without a ".".
};

/// What the game reads once the value is written; nothing for a text. A
/// negative number has lost its sign then, and a leading zero makes a whole
/// number octal.
std::optional<WrittenNumber> NumberInFile(const Value& value);

/// The number that the game has for a parameter: 0 for a text.
double NumberInGame(const Bot& bot, ParameterId id);

/// True when the parameter of a level is not written, so that the game's
/// default character decides.
bool IsLeftOut(const Bot& bot, ParameterId id);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_NUMBER_H_
