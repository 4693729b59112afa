#ifndef FRAGSMITH_CHECKS_FILE_CHECKS_H_
#define FRAGSMITH_CHECKS_FILE_CHECKS_H_

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/finding.h"
#include "game/game_path.h"
#include "game/preprocessor.h"
#include "game/stand_ins.h"
#include "model/file_names.h"

namespace fragsmith {

struct WinningDescription {
  std::string shown_path;  ///< As findings show it.
  /// The character file that it names; empty where the game has another file
  /// at that path than the bot's.
  std::string character;
  /// Nobody knows which of the two the game reads first.
  bool is_by_chance = false;
};

/// What is known of a bot on disk. The character's path in the game is
/// "bots/NAME_c.c"; the description's is never asked for. What is missing
/// here is looked for in the game.
struct BotFileSet {
  std::optional<GameFile> description;     ///< NAME.bot
  std::optional<GameFile> character;       ///< NAME_c.c
  std::optional<GameFile> weapon_weights;  ///< NAME_w.c
  std::optional<GameFile> item_weights;    ///< NAME_i.c
  std::optional<GameFile> chat;            ///< NAME_t.c
  /// Which bot of the description is meant; empty for the one of the files.
  std::string listed_name = {};
  FileHome home = FileHome::kLoose;
  /// The description is left alone, and the bot taken for one that has one.
  bool has_no_description = false;
  /// False where no game is at hand: what the bot's files ask for beyond the
  /// stand-ins may be there or not.
  bool is_game_known = true;
  /// By name in lower case: the descriptions that win over this bot's.
  std::map<std::string, WinningDescription, std::less<>> names_taken;
};

/// Which of a bot's files stands where in a set.
struct BotFileMember {
  BotFile file;
  std::optional<GameFile> BotFileSet::*member;
};

inline constexpr std::array<BotFileMember, 5> kBotFileMembers = {{
    {BotFile::kDescription, &BotFileSet::description},
    {BotFile::kCharacteristics, &BotFileSet::character},
    {BotFile::kWeaponWeights, &BotFileSet::weapon_weights},
    {BotFile::kItemWeights, &BotFileSet::item_weights},
    {BotFile::kChat, &BotFileSet::chat},
}};

/// How a bot comes into the game.
enum class Verdict {
  kAsWritten,    ///< Added, and all that it needs is its own.
  kWithOthers,   ///< Added, but a file that it names is another bot's.
  kWithDefault,  ///< Added, in part or wholly as the default character.
  kRefused,      ///< Not added, or another one in its place.
};

/// What the game will make of the files, in the order of BotFileSet and of
/// lines. Look-ups go to the game alone, such as StandInGameFile where there
/// is none; the bot's own files are found by their paths.
std::vector<Finding> CheckFiles(const BotFileSet& files,
                                const IncludeLookup& game);

/// What the game adds the bot by: its name in the description, or what its
/// files are called by when it has none.
std::string NameToAdd(const BotFileSet& files);

/// The files that the game reads for the bot, by their paths in the game, as
/// far as it comes.
std::vector<std::string> FilesOpened(const BotFileSet& files,
                                     const IncludeLookup& game);

/// A place in words: "gutsy_c.c, line 12".
std::string FilePlaceText(const FilePlace& place);

/// The same in a word, for a skill from 1 to 5.
Verdict VerdictAt(const BotFileSet& files, const IncludeLookup& game,
                  double skill);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_FILE_CHECKS_H_
