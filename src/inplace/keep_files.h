#ifndef FRAGSMITH_INPLACE_KEEP_FILES_H_
#define FRAGSMITH_INPLACE_KEEP_FILES_H_

#include "game/preprocessor.h"
#include "inplace/edit_in_place.h"
#include "inplace/save_in_place.h"
#include "model/bot.h"
#include "session/bot_origin.h"
#include "session/save_bot.h"
#include "support/notes.h"

namespace fragsmith {

/// True for a bot with files that are not of our own making, out of a package
/// that is not its own or without the lines that our files begin with: a new
/// set of them can be as their author wrote them.
bool HasFilesToKeep(const Bot& bot, const BotHome& home);

/// The same for a bot whose files on disk are saved under another name or
/// packed for the game: those that are not of our own making stay as they are.
/// The flag says that the user cancelled.
Notes KeepFilesUnderNewName(const SaveInPlace& save, SavePlan& plan,
                            bool& is_cancelled);

/// Gives a plan to write the bot somewhere new the files as their author wrote
/// them, with what was edited since and under the names that they get there.
/// A file of which that cannot be had, or that the bot has not, is left to be
/// written anew; a note says which and why.
Notes KeepAuthorsFiles(const Bot& bot, const BotHome& home,
                       const IncludeLookup& game, const NumberChooser& chooser,
                       SavePlan& plan);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_KEEP_FILES_H_
