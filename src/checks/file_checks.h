#ifndef FRAGSMITH_CHECKS_FILE_CHECKS_H_
#define FRAGSMITH_CHECKS_FILE_CHECKS_H_

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/file_stand_ins.h"
#include "checks/finding.h"
#include "checks/game_preprocessor.h"

namespace fragsmith {

/// What is known of a bot on disk. The character's path in the game is
/// "bots/NAME_c.c"; the description's is never asked for. What is missing
/// here is looked for in the game.
struct BotFileSet {
  std::optional<GameFile> description;     ///< NAME.bot
  std::optional<GameFile> character;       ///< NAME_c.c
  std::optional<GameFile> weapon_weights;  ///< NAME_w.c
  std::optional<GameFile> item_weights;    ///< NAME_i.c
  std::optional<GameFile> chat;            ///< NAME_t.c
};

/// How a bot comes into the game.
enum class Verdict {
  kAsWritten,    ///< Added, and all that it needs is its own.
  kWithDefault,  ///< Added, in part or wholly as the default character.
  kRefused,      ///< Not added.
};

/// What the game will make of the files, in the order of BotFileSet and of
/// lines. Look-ups go to the game alone, such as StandInGameFile where there
/// is none; the bot's own files are found by their paths.
std::vector<Finding> CheckFiles(const BotFileSet& files,
                                const IncludeLookup& game);

/// The same in a word, for a skill from 1 to 5.
Verdict VerdictAt(const BotFileSet& files, const IncludeLookup& game,
                  double skill);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_FILE_CHECKS_H_
