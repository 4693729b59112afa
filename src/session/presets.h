#ifndef FRAGSMITH_SESSION_PRESETS_H_
#define FRAGSMITH_SESSION_PRESETS_H_

#include "model/bot.h"
#include "support/random.h"

namespace fragsmith {

/// "All zeros": a new bot with every parameter 0 and no chat lines.
Bot CreateZeroBot();

/// "Average": a new bot with middling values and one random line of the
/// game's own for each chat type.
Bot CreateAverageBot(const RandomSource& random);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_PRESETS_H_
