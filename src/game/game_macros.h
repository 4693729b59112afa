#ifndef FRAGSMITH_GAME_GAME_MACROS_H_
#define FRAGSMITH_GAME_GAME_MACROS_H_

#include <optional>
#include <string>
#include <vector>

#include "game/preprocessor.h"
#include "model/characteristic_catalogue.h"
#include "model/parameter_id.h"

namespace fragsmith {

/// The macros that a script of weight code wants from the file of a bot.
struct GameMacros {
  struct Macro {
    std::string name;
    /// What the bot has for it; nothing for what no bot has here, such as the
    /// weapons of one game alone.
    std::optional<ParameterId> parameter;
  };

  std::string script;  ///< "fw_weap.c"
  std::vector<Macro> macros;
};

/// Finds them by letting the game read a file that defines what it misses.
/// Nothing where there is no such script, or the game cannot read it.
std::optional<GameMacros> MacrosOf(const std::string& script, IndexRange range,
                                   const IncludeLookup& game);

/// What the game asks for beside the macros that our files define: by the
/// script that our files include, else by the first that there is of these
/// and of the free game's own. Nothing where there is no more to ask for, or
/// the game has no weight code at all.
std::optional<GameMacros> OtherMacros(
    IndexRange range, const IncludeLookup& game,
    const std::vector<std::string>& scripts = {});

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_GAME_MACROS_H_
