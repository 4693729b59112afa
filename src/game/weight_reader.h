#ifndef FRAGSMITH_GAME_WEIGHT_READER_H_
#define FRAGSMITH_GAME_WEIGHT_READER_H_

#include <optional>
#include <string>
#include <vector>

#include "game/preprocessor.h"

namespace fragsmith {

/// What a way through the code of a weight returns.
struct WeightReturn {
  /// One switch on the way. The case holds where the bot has less of the thing
  /// than its number; the default has none.
  struct Case {
    int inventory = 0;
    std::optional<double> below;
  };
  std::vector<Case> cases;  ///< From the outermost.
  std::optional<OwnNumber> own;
  std::vector<double> values;  ///< What it is; of a balance, with its bounds.
};

struct GameWeight {
  std::string name;
  std::vector<WeightReturn> returns;
  int line = 0;  ///< In the bot's own file; 0 for one of another file.
};

/// A weight file, of weapons or of items, as the game takes it.
struct WeightsRead {
  bool is_loaded = false;  ///< False: the bot is not added.
  int count = 0;           ///< Weights that are defined; 0 does load.
  std::vector<GameWeight> weights;
  std::vector<OwnMacro> macros;
  /// The one at whose lack the game gave up; empty without one.
  std::string missing_macro;
};

WeightsRead ReadGameWeights(const GameFile& file, const IncludeLookup& game,
                            Complaints& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_WEIGHT_READER_H_
