#ifndef FRAGSMITH_INPLACE_GAME_VALUES_H_
#define FRAGSMITH_INPLACE_GAME_VALUES_H_

#include <string>
#include <string_view>

#include "game/preprocessor.h"
#include "install/program/model_catalogue.h"
#include "model/bot.h"
#include "session/load_bot.h"

namespace fragsmith {

/// Whether a file has something that only the game's own reader understands:
/// an #if, a number written in a way of its own, a number as text, a sign,
/// weight code of another game.
bool NeedsGameReader(std::string_view bytes);

/// Makes of such a file's numbers, just read from it into the bot, those that
/// the game takes: the odd values of the load. A note lists them.
void TakeGameNumbers(BotFile kind, const std::string& shown,
                     std::string_view bytes, const IncludeLookup& game,
                     LoadedBot& loaded);

/// Gives the bot the chat lines that the game takes from its file; none of a
/// file that the game cannot read.
void TakeGameChats(std::string_view bytes, const IncludeLookup& game, Bot& bot);

/// Gives a loaded bot what its author said in the game's own way: weights under
/// other macros than ours, and where it has no description of its own and one
/// is wanted, what a list of bots beside it says. Of several bots with the same
/// files the one is taken that has the bot's name, if it is one of a list.
/// Notes say what was found where.
void TakeGameValues(LoadedBot& loaded, bool wants_description,
                    const ModelCatalogue& models, const IncludeLookup& game,
                    bool is_listed_name = false);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_GAME_VALUES_H_
