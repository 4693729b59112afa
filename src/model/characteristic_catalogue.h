#ifndef FRAGSMITH_MODEL_CHARACTERISTIC_CATALOGUE_H_
#define FRAGSMITH_MODEL_CHARACTERISTIC_CATALOGUE_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <vector>

#include "model/parameter_id.h"

namespace fragsmith {

/// A bot's parameters by their index, which ties the value in the bot, its key
/// in the game's files and its control together.
inline constexpr int kCatalogueSize = 86;

/// Per-level parameters with a meaning of their own; the others are reached by
/// their ranges below.
inline constexpr int kAttackSkillIndex = 2;
inline constexpr int kViewFactorIndex = 5;
inline constexpr int kViewMaxChangeIndex = 6;
inline constexpr int kReactionTimeIndex = 7;
inline constexpr int kFireThrottleIndex = 30;

/// Single parameters of their own, likewise.
inline constexpr ParameterId kChatCpm{31};
inline constexpr ParameterId kInsultShare{32};
inline constexpr ParameterId kEnemySuicideChance{38};
inline constexpr ParameterId kRandomChatRate{42};
inline constexpr ParameterId kHealthWeight{54};
inline constexpr ParameterId kArmorWeight{55};

/// A range of catalogue indices, both ends included.
struct IndexRange {
  int first;
  int last;

  constexpr bool Contains(int index) const {
    return index >= first && index <= last;
  }
  /// For a range of single parameters: those of a level are in none.
  constexpr bool Contains(ParameterId id) const {
    return !id.level() && Contains(id.index());
  }

  /// Goes over the indices.
  class Iterator {
   public:
    // NOLINTBEGIN(readability-identifier-naming): as algorithms ask for them.
    using iterator_category = std::input_iterator_tag;
    using value_type = int;
    using difference_type = std::ptrdiff_t;
    using pointer = const int*;
    using reference = int;
    // NOLINTEND(readability-identifier-naming)

    constexpr explicit Iterator(int index) : index_(index) {}
    constexpr int operator*() const { return index_; }
    constexpr Iterator& operator++() {
      ++index_;
      return *this;
    }
    constexpr bool operator==(const Iterator&) const = default;

   private:
    int index_;
  };
  constexpr Iterator begin() const { return Iterator(first); }
  constexpr Iterator end() const { return Iterator(last + 1); }
};

inline constexpr IndexRange kPerLevelRange = {2, 30};
/// The game takes these from its own default character when they are left
/// out of the file, so they are only written when above 0.
inline constexpr IndexRange kOptionalRange = {18, 30};
inline constexpr IndexRange kChatRange = {31, 43};
/// Of these, the chances to speak in the situations of the game.
inline constexpr IndexRange kChanceRange = {34, 42};
inline constexpr IndexRange kWeaponWeightRange = {44, 53};
inline constexpr IndexRange kItemWeightRange = {54, 80};
/// Of these, picking up a weapon that the bot lacks, and one that it has.
inline constexpr IndexRange kPickupRange = {56, 63};
inline constexpr IndexRange kOwnedPickupRange = {64, 71};

/// The parameter of an index. One that each level has stands for all of its
/// levels here: it is that of the first.
constexpr ParameterId ParameterAt(int index) {
  return kPerLevelRange.Contains(index) ? ParameterId(kLevels.front(), index)
                                        : ParameterId(index);
}

/// All parameters of these indices, with those of each level.
template <typename Indices>
std::vector<ParameterId> ParametersOf(const Indices& indices) {
  std::vector<ParameterId> parameters;
  for (const int index : indices) {
    const ParameterId id = ParameterAt(index);
    if (!id.level()) {
      parameters.push_back(id);
      continue;
    }
    for (const Level level : kLevels) parameters.push_back(id.At(level));
  }
  return parameters;
}

/// The keys, each with the TABs that bring its value to a fixed column: 44
/// for characteristics, 32 for macros. The weapon names stand twice: as the
/// weight of a weapon to fight with (45 to 52) and as the weight of picking
/// it up (56 to 63); the file tells them apart. Entry 84 is empty: it is the
/// place of the characteristic file's own name, which no file holds.
inline constexpr std::array<std::string_view, kCatalogueSize> kCatalogue = {
    "CHARACTERISTIC_NAME\t\t\t\t\t\t\t",
    "CHARACTERISTIC_GENDER\t\t\t\t\t\t",
    "CHARACTERISTIC_ATTACK_SKILL\t\t\t\t\t",
    "CHARACTERISTIC_AIM_SKILL\t\t\t\t\t",
    "CHARACTERISTIC_AIM_ACCURACY\t\t\t\t\t",
    "CHARACTERISTIC_VIEW_FACTOR\t\t\t\t\t",
    "CHARACTERISTIC_VIEW_MAXCHANGE\t\t\t\t",
    "CHARACTERISTIC_REACTIONTIME\t\t\t\t\t",
    "CHARACTERISTIC_CROUCHER\t\t\t\t\t\t",
    "CHARACTERISTIC_JUMPER\t\t\t\t\t\t",
    "CHARACTERISTIC_WEAPONJUMPING\t\t\t\t",
    "CHARACTERISTIC_GRAPPLE_USER\t\t\t\t\t",
    "CHARACTERISTIC_AGGRESSION\t\t\t\t\t",
    "CHARACTERISTIC_SELFPRESERVATION\t\t\t\t",
    "CHARACTERISTIC_VENGEFULNESS\t\t\t\t\t",
    "CHARACTERISTIC_CAMPER\t\t\t\t\t\t",
    "CHARACTERISTIC_EASY_FRAGGER\t\t\t\t\t",
    "CHARACTERISTIC_ALERTNESS\t\t\t\t\t",
    "CHARACTERISTIC_AIM_ACCURACY_MACHINEGUN\t\t",
    "CHARACTERISTIC_AIM_ACCURACY_SHOTGUN\t\t\t",
    "CHARACTERISTIC_AIM_ACCURACY_ROCKETLAUNCHER\t",
    "CHARACTERISTIC_AIM_ACCURACY_GRENADELAUNCHER\t",
    "CHARACTERISTIC_AIM_ACCURACY_LIGHTNING\t\t",
    "CHARACTERISTIC_AIM_ACCURACY_PLASMAGUN\t\t",
    "CHARACTERISTIC_AIM_ACCURACY_RAILGUN\t\t\t",
    "CHARACTERISTIC_AIM_ACCURACY_BFG10K\t\t\t",
    "CHARACTERISTIC_AIM_SKILL_ROCKETLAUNCHER\t\t",
    "CHARACTERISTIC_AIM_SKILL_GRENADELAUNCHER\t",
    "CHARACTERISTIC_AIM_SKILL_PLASMAGUN\t\t\t",
    "CHARACTERISTIC_AIM_SKILL_BFG10K\t\t\t\t",
    "CHARACTERISTIC_FIRETHROTTLE\t\t\t\t\t",
    "CHARACTERISTIC_CHAT_CPM\t\t\t\t\t\t",
    "CHARACTERISTIC_CHAT_INSULT\t\t\t\t\t",
    "CHARACTERISTIC_CHAT_MISC\t\t\t\t\t",
    "CHARACTERISTIC_CHAT_STARTENDLEVEL\t\t\t",
    "CHARACTERISTIC_CHAT_ENTEREXITGAME\t\t\t",
    "CHARACTERISTIC_CHAT_KILL\t\t\t\t\t",
    "CHARACTERISTIC_CHAT_DEATH\t\t\t\t\t",
    "CHARACTERISTIC_CHAT_ENEMYSUICIDE\t\t\t",
    "CHARACTERISTIC_CHAT_HITTALKING\t\t\t\t",
    "CHARACTERISTIC_CHAT_HITNODEATH\t\t\t\t",
    "CHARACTERISTIC_CHAT_HITNOKILL\t\t\t\t",
    "CHARACTERISTIC_CHAT_RANDOM\t\t\t\t\t",
    "CHARACTERISTIC_CHAT_REPLY\t\t\t\t\t",
    "#define W_GAUNTLET\t\t\t\t",
    "#define W_SHOTGUN\t\t\t\t",
    "#define W_MACHINEGUN\t\t\t",
    "#define W_GRENADELAUNCHER\t\t",
    "#define W_ROCKETLAUNCHER\t\t",
    "#define W_RAILGUN\t\t\t\t",
    "#define W_BFG10K\t\t\t\t",
    "#define W_LIGHTNING\t\t\t\t",
    "#define W_PLASMAGUN\t\t\t\t",
    "#define W_GRAPPLE\t\t\t\t",
    "#define FS_HEALTH\t\t\t\t",
    "#define FS_ARMOR\t\t\t\t",
    "#define W_SHOTGUN\t\t\t\t",
    "#define W_MACHINEGUN\t\t\t",
    "#define W_GRENADELAUNCHER\t\t",
    "#define W_ROCKETLAUNCHER\t\t",
    "#define W_RAILGUN\t\t\t\t",
    "#define W_BFG10K\t\t\t\t",
    "#define W_LIGHTNING\t\t\t\t",
    "#define W_PLASMAGUN\t\t\t\t",
    "#define GWW_SHOTGUN\t\t\t\t",
    "#define GWW_MACHINEGUN\t\t\t",
    "#define GWW_GRENADELAUNCHER\t\t",
    "#define GWW_ROCKETLAUNCHER\t\t",
    "#define GWW_RAILGUN\t\t\t\t",
    "#define GWW_BFG10K\t\t\t\t",
    "#define GWW_LIGHTNING\t\t\t",
    "#define GWW_PLASMAGUN\t\t\t",
    "#define W_TELEPORTER\t\t\t",
    "#define W_MEDKIT\t\t\t\t",
    "#define W_QUAD\t\t\t\t\t",
    "#define W_ENVIRO\t\t\t\t",
    "#define W_HASTE\t\t\t\t\t",
    "#define W_INVISIBILITY\t\t\t",
    "#define W_REGEN\t\t\t\t\t",
    "#define W_FLIGHT\t\t\t\t",
    "#define FLAG_WEIGHT\t\t\t\t",
    "CHARACTERISTIC_CHAT_FILE\t\t\t\t\t",
    "CHARACTERISTIC_WEAPONWEIGHTS\t\t\t\t",
    "CHARACTERISTIC_ITEMWEIGHTS\t\t\t\t\t",
    "",  // 84
    "CHARACTERISTIC_CHAT_NAME\t\t\t\t\t",
};

static_assert(std::count(kCatalogue.begin(), kCatalogue.end(), "") == 1 &&
              kCatalogue[84].empty());

/// The same keys without their padding.
inline constexpr std::array<std::string_view, kCatalogueSize> kBareKeys = [] {
  std::array<std::string_view, kCatalogueSize> keys = kCatalogue;
  for (std::string_view& key : keys) {
    key = key.substr(0, key.find_last_not_of('\t') + 1);
  }
  return keys;
}();

/// The key without its padding.
constexpr std::string_view BareKey(int index) {
  return kBareKeys.at(static_cast<std::size_t>(index));
}

/// The key with its padding.
constexpr std::string_view PaddedKey(int index) {
  return kCatalogue.at(static_cast<std::size_t>(index));
}

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_CHARACTERISTIC_CATALOGUE_H_
