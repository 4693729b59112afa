#ifndef FRAGSMITH_CHECKS_GAME_DATA_H_
#define FRAGSMITH_CHECKS_GAME_DATA_H_

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "checks/game_files.h"
#include "checks/word_lists.h"

namespace fragsmith {

/// What the checks of a bot know of the installed game. Reading it takes
/// some tenths of a second; whoever checks again and again keeps it.
struct GameData {
  /// Names of the bots of scripts/bots.txt, in lower case: the game reads it
  /// before all other descriptions.
  std::set<std::string, std::less<>> names_taken;

  /// By the name in front of _c.c, in lower case: the package of which the
  /// game would take that file.
  std::map<std::string, std::string, std::less<>> bot_packages;

  /// Names of the files scripts/*.bot, in lower case.
  std::set<std::string, std::less<>> description_files;

  /// Player models, and "model/skin", in lower case. Empty when the packages
  /// have none at all.
  std::set<std::string, std::less<>> models;
  std::set<std::string, std::less<>> skins;

  WordLists words;  ///< Empty when the packages have no rnd.c.

  bool has_weapon_script = false;  ///< fw_weap.c
  bool has_item_script = false;    ///< fw_items.c
  bool uses_owned_weights =
      false;  ///< fw_items.c or what it includes has GWW_.
};

GameData ReadGameData(const GameFiles& files);

/// The names that a list of descriptions such as bots.txt gives, lower case.
std::set<std::string, std::less<>> NamesInDescriptions(std::string_view bytes);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_GAME_DATA_H_
