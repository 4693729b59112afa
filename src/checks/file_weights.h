#ifndef FRAGSMITH_CHECKS_FILE_WEIGHTS_H_
#define FRAGSMITH_CHECKS_FILE_WEIGHTS_H_

#include "checks/game_preprocessor.h"

namespace fragsmith {

/// A weight file, of weapons or of items, as the game takes it.
struct WeightsRead {
  bool is_loaded = false;  ///< False: the bot is not added.
  int count = 0;           ///< Weights that are defined; 0 does load.
};

WeightsRead ReadGameWeights(const GameFile& file, const IncludeLookup& game,
                            FileFindings& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_FILE_WEIGHTS_H_
