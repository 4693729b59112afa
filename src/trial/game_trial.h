#ifndef FRAGSMITH_TRIAL_GAME_TRIAL_H_
#define FRAGSMITH_TRIAL_GAME_TRIAL_H_

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "botfiles/header_comment.h"
#include "game/given_files.h"
#include "model/bot.h"
#include "support/result.h"

namespace fragsmith {

// A trial: the bot lies, as a package or as its files are, in a folder of its
// own beside the game's, an engine starts a map with it, and what the engine
// says is read.

/// The folder beside the game's, in the scratch folder, that holds what is
/// ours.
inline constexpr std::string_view kTrialFolder = "fragsmith";

/// What is run. Texts are in the bytes in which an argument would hold them.
struct TrialSetup {
  std::filesystem::path engine;
  /// Holds the game folder; empty for the place that the engine knows.
  std::filesystem::path data;
  /// A scratch folder with the package, for all that the engine writes.
  std::filesystem::path home;
  std::string game = "baseq3";  ///< The game folder.
  std::string map;
  double skill = 4;  ///< 1 to 5; the game also has what lies between.
  /// Names of other bots, which are added behind ours.
  std::vector<std::string> opponents;
  /// A server without a window; otherwise the player takes part.
  bool is_dedicated = false;
  /// After so long a dedicated server goes by itself, which it otherwise
  /// never does: nothing stays behind even when nobody is there to end it.
  int seconds = 0;  ///< 0 for never.
};

/// Makes paths such that an engine can be told of them: a path to the data that
/// has a double quote becomes one through a link in the scratch folder.
Result<void> MakePathsPlain(TrialSetup& setup);

/// The engine's arguments behind its own name. Everything stays on this
/// computer: a server listens on the loopback device alone. Opponents that no
/// longer fit on the engine's command line are left out.
std::vector<std::string> TrialArguments(const TrialSetup& setup,
                                        const std::string& bot_name);

/// The same for a dedicated server without any network that takes its settings,
/// the map and the bots from a file of commands in our folder.
std::vector<std::string> MatchArguments(const TrialSetup& setup,
                                        const std::string& commands);

/// Puts the bot as a package, and nothing else, to where the engine of such
/// arguments finds it.
Result<void> WriteTrialPackage(const Bot& bot,
                               const std::filesystem::path& home,
                               const Author& author);

/// Puts the files themselves there, byte for byte.
Result<void> PutTrialFiles(const GivenFiles& given,
                           const std::filesystem::path& home);

/// Where engines are looked for: the folders of a PATH variable, then those
/// in which systems put games.
std::vector<std::filesystem::path> EngineFolders(std::string_view path);

/// The engines that lie in these folders, each by the names that it has, in
/// the order of the names: those with a window come first.
std::vector<std::filesystem::path> FindEngines(
    const std::vector<std::filesystem::path>& folders);

/// By the engine's name, as they all tell it.
bool IsDedicatedServer(const std::filesystem::path& engine);

/// The data folder of an engine for the game in that folder. Debian keeps the
/// game's modules away from its packages, with links to these.
std::filesystem::path DataFolder(const std::filesystem::path& engine,
                                 const std::filesystem::path& game_folder,
                                 const std::filesystem::path& root = "/");

/// The game folder that is meant when none is given, and a map that it has.
std::string DefaultGame(const std::filesystem::path& engine,
                        const std::filesystem::path& data);
std::string DefaultMap(std::string_view game);

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_GAME_TRIAL_H_
