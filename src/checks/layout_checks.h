#ifndef FRAGSMITH_CHECKS_LAYOUT_CHECKS_H_
#define FRAGSMITH_CHECKS_LAYOUT_CHECKS_H_

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "checks/file_checks.h"
#include "checks/finding.h"
#include "game/game_files.h"
#include "game/given_files.h"

namespace fragsmith {

/// That files of a packed bot lie in botfiles and scripts of some inner folder,
/// where the game does not look; nothing when they do not.
std::optional<Finding> FilesTooDeep(const GivenFiles& given,
                                    const std::string& name);

/// Adds to what is said of missing files which of the given ones may be meant:
/// with .txt at the end of its name, or in another folder.
void TellNearbyFiles(const GivenFiles& given, const std::string& name,
                     std::vector<Finding>& findings);

/// That the bot's description has others that are found by their names alone:
/// they play with the same files, or lack theirs. Nothing without any.
std::optional<Finding> OthersInDescription(const GivenFiles& given,
                                           const BotFileSet& files);

/// Whether the game takes its own file of that path in place of the one of a
/// package: it comes out of a package later by name.
bool GameFileWins(const GameFiles& game,
                  const std::optional<GamePackage>& package,
                  const std::string& path);

/// That files take the place of the game's own, for all its bots, or would if
/// the game did not take its own; nothing when none does. The name is that of
/// the bot's files, the package nothing for a folder, the game null where none
/// is known.
std::optional<Finding> InPlaceOfGameFiles(
    const GivenFiles& given, const std::string& name,
    const std::optional<GamePackage>& package, const GameFiles* game);

/// That a package lies in the game, but not in the folder of its packages;
/// nothing for one that lies elsewhere, or where a modification may have it.
std::optional<Finding> PackageInWrongFolder(
    const std::filesystem::path& package,
    const std::filesystem::path& package_folder);

/// What hides nothing where the files lie hides the game's own in the player's
/// folder: said more gravely where the bot is good in the one alone.
void TellWhatHides(const BotFileSet& files, const IncludeLookup& given_first,
                   Finding& hiding, const std::vector<Finding>& findings);

/// Where the bot is good when the game's own files are looked up, those in
/// their place are what is wrong, and the other errors follow from that.
void TakeForCause(const BotFileSet& files, const IncludeLookup& with_games_own,
                  Finding& hiding, std::vector<Finding>& findings);

/// What the package does to files of the bot, given what is known of them; a
/// finding for each kind of fault. What else was found in a file that the game
/// cannot unpack follows from that, and goes.
void AddPackageFaults(const GivenFiles& given, const BotFileSet& files,
                      std::vector<Finding>& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_LAYOUT_CHECKS_H_
