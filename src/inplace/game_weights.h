#ifndef FRAGSMITH_INPLACE_GAME_WEIGHTS_H_
#define FRAGSMITH_INPLACE_GAME_WEIGHTS_H_

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "game/preprocessor.h"
#include "game/weight_reader.h"
#include "game/weight_vocabulary.h"
#include "inplace/file_reading.h"
#include "session/load_bot.h"

namespace fragsmith {

/// Where a number of the bot's own file stands: "SGW (line 12)".
std::string SourceOf(const OwnNumber& own, const WeightsRead& weights,
                     std::string_view bytes);

/// The file's macro by which our files give the weight; null without one.
const OwnMacro* MacroOf(const WeightsRead& weights, ParameterId id);

/// What the game makes of a macro of the bytes that is a number and nothing
/// else.
std::optional<double> GameNumberOf(const OwnMacro& macro,
                                   std::string_view bytes);

/// The weights that our reader finds in no line of the file, and the game does:
/// under other macros, as numbers, or in a spelling of the line that is its
/// own.
std::vector<FoundWeight> UnreadWeights(BotFile kind, std::string_view bytes,
                                       const FileReading& reading);

/// The weights for which a file, that sets others in its own way, gives the
/// game's weight code no number, or no single one.
std::vector<ParameterId> WeightsWithoutNumber(BotFile kind,
                                              std::string_view bytes,
                                              const IncludeLookup& game);

/// Gives a bot, just read from this weight file, the weights that the file sets
/// by none of our macros, but that the game's weight code takes from other
/// macros or numbers of the file. A note lists where each one stands. Without
/// the weight code that the file includes, a note says what is missing.
void TakeGameWeights(BotFile kind, const std::string& shown,
                     std::string_view bytes, const IncludeLookup& game,
                     LoadedBot& loaded);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_GAME_WEIGHTS_H_
