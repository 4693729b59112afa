#ifndef FRAGSMITH_GAME_GAME_DATA_H_
#define FRAGSMITH_GAME_GAME_DATA_H_

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "game/game_files.h"
#include "game/game_macros.h"
#include "game/word_lists.h"

namespace fragsmith {

/// A bot that the installed game knows of a description.
struct KnownBot {
  std::string path;           ///< "scripts/bots.txt", lower case.
  GamePackage package;        ///< Without a name for the list bots.txt.
  std::string character;      ///< "bots/sarge_c.c", lower case.
  std::string fun_name = {};  ///< Game text, as it is written.
  std::string model = {};     ///< "sarge/krusade".

  bool is_of_list() const { return package.name.empty(); }
};

/// The same for people: "scripts/bots.txt", "map.pk3/scripts/sarge.bot".
std::string ShownPlace(const KnownBot& bot);

/// What the checks of a bot know of the installed game. Reading it takes
/// some tenths of a second; whoever checks again and again keeps it.
struct GameData {
  /// By name in lower case, in the order in which the game reads them and of
  /// which the first counts: the list scripts/bots.txt, then the descriptions
  /// of the packages, the last package by name first.
  std::multimap<std::string, KnownBot, std::less<>> known_bots;

  /// By the name in front of _c.c, in lower case: the package of which the
  /// game would take that file.
  std::map<std::string, GamePackage, std::less<>> bot_packages;

  /// Names of the files scripts/*.bot, in lower case.
  std::set<std::string, std::less<>> description_files;

  /// Player models, and "model/skin", in lower case. Empty when the packages
  /// have none at all.
  std::set<std::string, std::less<>> models;
  std::set<std::string, std::less<>> skins;

  WordLists words;  ///< Empty when the packages have no rnd.c.

  /// What the weight code asks a bot's file for, where it is not our macros.
  std::optional<GameMacros> weapon_macros;
  std::optional<GameMacros> item_macros;

  bool has_weapon_script = false;  ///< fw_weap.c
  bool has_item_script = false;    ///< fw_items.c
  bool uses_owned_weights =
      false;  ///< fw_items.c or what it includes has GWW_.
};

GameData ReadGameData(const GameFiles& files);

/// The bots of a list of descriptions such as bots.txt by their names, lower
/// case; where it lies is for the caller to fill in.
std::multimap<std::string, KnownBot, std::less<>> BotsInDescriptions(
    std::string_view bytes);

/// Where the descriptions of a bot lie or will lie.
struct DescriptionSource {
  std::string path;  ///< "scripts/sarge.bot"
  /// Loose ones are read before those of all packages.
  std::optional<GamePackage> package = {};
};

/// The bot of that name that the game keeps in place of the one whose
/// description lies there; null when there is none. Another version of the
/// same description is none.
const KnownBot* BotThatWins(const GameData& game, std::string_view name,
                            const DescriptionSource& own);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_GAME_DATA_H_
