#ifndef FRAGSMITH_INPLACE_GAME_WEIGHTS_H_
#define FRAGSMITH_INPLACE_GAME_WEIGHTS_H_

#include <string>
#include <string_view>
#include <vector>

#include "game/preprocessor.h"
#include "game/weight_reader.h"
#include "session/load_bot.h"

namespace fragsmith {

/// Where a number of the bot's own file stands: "SGW (line 12)".
std::string SourceOf(const OwnNumber& own, const WeightsRead& weights,
                     std::string_view bytes);

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
