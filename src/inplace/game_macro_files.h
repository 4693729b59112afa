#ifndef FRAGSMITH_INPLACE_GAME_MACRO_FILES_H_
#define FRAGSMITH_INPLACE_GAME_MACRO_FILES_H_

#include <map>

#include "botfiles/header_comment.h"
#include "game/game_macros.h"
#include "game/preprocessor.h"
#include "model/bot.h"
#include "session/bot_origin.h"
#include "session/save_bot.h"

namespace fragsmith {

/// For each weight file what the installed game asks for, or the package that
/// the bot came out of, where it is not our macros.
using MacrosByFile = std::map<BotFile, GameMacros>;

MacrosByFile OtherMacrosFor(const OriginFiles& files,
                            const IncludeLookup& game);

/// Gives a plan weight files with these macros behind ours. What the bot has no
/// weight for keeps the number of the file that it came from, else it is 0.
/// What the plan has already stays.
void WriteGameMacros(const MacrosByFile& macros, const Bot& bot,
                     const Author& author, const OriginFiles& files,
                     SavePlan& plan);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_GAME_MACRO_FILES_H_
