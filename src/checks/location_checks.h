#ifndef FRAGSMITH_CHECKS_LOCATION_CHECKS_H_
#define FRAGSMITH_CHECKS_LOCATION_CHECKS_H_

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "checks/bot_location.h"
#include "checks/bot_on_disk.h"
#include "checks/finding.h"
#include "checks/places_in_files.h"
#include "game/game_data.h"
#include "game/game_files.h"
#include "game/given_files.h"
#include "inplace/bot_edits.h"
#include "model/bot.h"

namespace fragsmith {

/// The installed game that bots are held against. Reading it takes some tenths
/// of a second.
struct InstalledGame {
  GameFiles files;
  GameData data;
};

/// Nothing where the folder is empty or holds no game.
std::optional<InstalledGame> ReadInstalledGame(
    const std::filesystem::path& game_folder);

/// The files of a bot where they lie, held against the game's.
class LocationCheck {
 public:
  /// The game must outlive the check; null where none is known. Files in the
  /// player's own folder are held against all that lies there, too.
  LocationCheck(const BotLocation& location, bool has_no_description,
                const InstalledGame* game);

  /// False when the game finds none of them.
  bool HasFiles() const;

  /// The bot as it is read from the files, with the values that the game takes.
  Bot Read() const;

  /// What the files themselves tell, and how the bot is added.
  std::vector<Finding> InFiles() const;

  /// Those of them that a save of the bot that was read would not have too.
  std::vector<Finding> InFilesAlone(const Bot& bot) const;

  /// Those that the game cannot read, and could if they were written anew from
  /// the bot, with what is the matter with them.
  BrokenFiles BrokenOnes(const Bot& bot) const;

  /// What is to be told of a bot that was read from the files, and of what the
  /// user has made of it since: where it is as the files have it, nothing that
  /// new files of it alone would be told.
  std::vector<Finding> InMemory(const Bot& bot, bool is_as_in_files) const;

  /// All that there is to tell: also of what the files hold, given the bot
  /// that was read from them.
  std::vector<Finding> OfAll(const Bot& bot) const;

  /// For what is told of the bot that was read from the files.
  PlacesInFiles Places() const;

 private:
  void TakeListOfGame();
  /// Looks things up as if no file took the place of the game's own.
  IncludeLookup WithGamesOwn() const;
  /// Looks things up as in the player's own folder, where all that is given
  /// comes before the game's.
  IncludeLookup WithGivenFirst() const;
  std::vector<Finding> Check(const BotFileSet& files) const;
  /// The files as a save of the bot would have them.
  BotFileSet AsSaved(const Bot& bot) const;
  std::optional<std::string> LookUp(std::string_view path) const;
  std::string PackageOf(const std::string& path) const;
  std::string OpenedText() const;
  void AddHowToPlay(std::vector<Finding>& findings) const;
  std::optional<GamePackage> Package() const;
  bool IsMacro(const Finding& finding, const Bot& bot) const;
  bool IsNamedWithZero(const Finding& finding, const Bot& bot) const;
  bool GivesGameMacros() const;
  /// A hint at each weight of the bot whose 0 is none of the files' values.
  void AddUnnumbered(const Bot& bot, std::vector<Finding>& findings) const;
  /// Lines that the game takes from the bot's file and a load does not.
  const std::map<ChatTypeId, std::vector<std::string>>& UnreadLines() const;
  /// Tells of types without lines as if the bot had these.
  void AddUnreadLines(const Bot& bot, std::vector<Finding>& findings) const;
  bool HasPackageBeside() const;

  const BotLocation location_;
  /// The game with the player's own folder, where the files lie in that.
  std::shared_ptr<const InstalledGame> with_players_folder_;
  const InstalledGame* game_;
  GivenFiles given_;
  /// A list of bots lies beside the bot, and the game reads that one.
  bool hides_list_;
  BotOnDisk on_disk_;
  mutable std::optional<std::vector<ParameterId>> unnumbered_;  ///< Once asked.
  mutable std::optional<std::map<ChatTypeId, std::vector<std::string>>>
      unread_lines_;  ///< Once asked.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_LOCATION_CHECKS_H_
