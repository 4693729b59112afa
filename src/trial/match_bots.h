#ifndef FRAGSMITH_TRIAL_MATCH_BOTS_H_
#define FRAGSMITH_TRIAL_MATCH_BOTS_H_

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "botfiles/header_comment.h"
#include "game/given_files.h"
#include "model/bot.h"
#include "support/result.h"

namespace fragsmith {

/// A bot that takes part in a match. Texts are game text.
struct MatchBot {
  std::string name;  ///< Of the installed game, or of the bot's own files.
  double skill = 4;
  /// The bytes of its own files by their paths below botfiles, in lower case;
  /// none for a bot of the installed game.
  std::map<std::string, std::string, std::less<>> files = {};
  std::string ai_file = {};  ///< Its character file, as its description says.
};

/// The bot whose files are called by the name. They are read once; what becomes
/// of them later does not matter to the match.
Result<MatchBot> MatchBotOf(const GivenFiles& given,
                            const std::string& file_name);

/// The bot as a package of it would have its files.
Result<MatchBot> MatchBotOf(const Bot& bot, const Author& author);

/// Names for the scores, one for each bot: plain letters, all different. A copy
/// of another one has a number behind its name.
std::vector<std::string> ShownNames(const std::vector<MatchBot>& bots);

/// The folder of botfiles that has the files of the bot at the index. Several
/// versions of one bot have files of the same names.
std::string MatchFolder(std::size_t index);

/// What `addbot` knows the bot at the index by.
std::string NameToAdd(const MatchBot& bot, std::size_t index);

/// Puts the files of all bots into a game's folder, each bot's into a folder of
/// its own. They stay byte for byte what they are but for the paths by which
/// they name each other; each bot gets a description of ours.
Result<void> PutMatchBots(const std::vector<MatchBot>& bots,
                          const std::filesystem::path& game_folder);

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_MATCH_BOTS_H_
