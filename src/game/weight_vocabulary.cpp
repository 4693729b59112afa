#include "game/weight_vocabulary.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "support/text.h"

namespace fragsmith {
namespace {

/// Which of the ways through a weight's code count.
enum class Ways {
  kAll,
  kOwned,     ///< Those of a bot that has all that the code asks for.
  kPickedUp,  ///< Those of a bot that has the thing itself already.
  kLacking,   ///< Those of a bot that has it not.
};

struct NamedWeight {
  std::string_view name;  ///< In the game's weight code.
  int parameter;
  Ways ways;
};

constexpr std::array<NamedWeight, 45> kNamedWeights = {{
    {"Gauntlet", 44, Ways::kOwned},
    {"Shotgun", 45, Ways::kOwned},
    {"Machinegun", 46, Ways::kOwned},
    {"Grenade Launcher", 47, Ways::kOwned},
    {"Rocket Launcher", 48, Ways::kOwned},
    {"Railgun", 49, Ways::kOwned},
    {"BFG10K", 50, Ways::kOwned},
    {"Lightning Gun", 51, Ways::kOwned},
    {"Plasma Gun", 52, Ways::kOwned},
    {"Grappling Hook", 53, Ways::kOwned},
    {"item_health_small", 54, Ways::kAll},
    {"item_health", 54, Ways::kAll},
    {"item_health_large", 54, Ways::kAll},
    {"item_health_mega", 54, Ways::kAll},
    {"item_armor_shard", 55, Ways::kAll},
    {"item_armor_combat", 55, Ways::kAll},
    {"item_armor_body", 55, Ways::kAll},
    {"weapon_shotgun", 56, Ways::kLacking},
    {"weapon_machinegun", 57, Ways::kLacking},
    {"weapon_grenadelauncher", 58, Ways::kLacking},
    {"weapon_rocketlauncher", 59, Ways::kLacking},
    {"weapon_railgun", 60, Ways::kLacking},
    {"weapon_bfg", 61, Ways::kLacking},
    {"weapon_lightning", 62, Ways::kLacking},
    {"weapon_plasmagun", 63, Ways::kLacking},
    {"weapon_shotgun", 64, Ways::kPickedUp},
    {"weapon_machinegun", 65, Ways::kPickedUp},
    {"weapon_grenadelauncher", 66, Ways::kPickedUp},
    {"weapon_rocketlauncher", 67, Ways::kPickedUp},
    {"weapon_railgun", 68, Ways::kPickedUp},
    {"weapon_bfg", 69, Ways::kPickedUp},
    {"weapon_lightning", 70, Ways::kPickedUp},
    {"weapon_plasmagun", 71, Ways::kPickedUp},
    {"holdable_teleporter", 72, Ways::kAll},
    {"holdable_medkit", 73, Ways::kAll},
    {"item_quad", 74, Ways::kAll},
    {"item_enviro", 75, Ways::kAll},
    {"item_haste", 76, Ways::kAll},
    {"item_invis", 77, Ways::kAll},
    {"item_invisibility", 77, Ways::kAll},
    {"item_regen", 78, Ways::kAll},
    {"item_flight", 79, Ways::kAll},
    {"team_CTF_redflag", 80, Ways::kAll},
    {"team_CTF_blueflag", 80, Ways::kAll},
    {"team_CTF_neutralflag", 80, Ways::kAll},
}};

static_assert(
    [] {
      for (int index = kWeaponWeightRange.first; index <= kItemWeightRange.last;
           ++index) {
        if (std::none_of(kNamedWeights.begin(), kNamedWeights.end(),
                         [index](const NamedWeight& named) {
                           return named.parameter == index;
                         })) {
          return false;
        }
      }
      return true;
    }(),
    "A weight has no name in the game's weight code.");

/// Less than one is none.
bool IsForLacking(const WeightReturn::Case& way) {
  return way.below && *way.below <= 1;
}

bool Counts(const WeightReturn& way, Ways ways) {
  const bool lacks_first =
      !way.cases.empty() && IsForLacking(way.cases.front());
  switch (ways) {
    case Ways::kAll:
      return true;
    case Ways::kOwned:
      return std::none_of(way.cases.begin(), way.cases.end(), IsForLacking);
    case Ways::kPickedUp:
      return !way.cases.empty() && !lacks_first;
    case Ways::kLacking:
      return way.cases.empty() || lacks_first;
  }
  return false;
}

// Our stand-ins name a weight as its macro.
constexpr IndexRange kWeights = {kWeaponWeightRange.first,
                                 kItemWeightRange.last};

bool IsStandIn(std::string_view name, int parameter) {
  return BareKey(parameter).ends_with(' ' + std::string(name));
}

/// Whether weights by the first names leave no use to one by the other name.
bool Hide(const std::set<std::string, std::less<>>& earlier,
          const std::string& name) {
  if (earlier.contains(name)) return true;
  std::map<int, std::pair<int, int>> hidden;  // And how many there are.
  for (const NamedWeight& named : kNamedWeights) {
    if (IsStandIn(name, named.parameter)) {
      auto& [count, all] = hidden[named.parameter];
      count += static_cast<int>(earlier.count(named.name));
      ++all;
    } else if (name == named.name &&
               std::any_of(earlier.begin(), earlier.end(),
                           [&named](const std::string& one) {
                             return IsStandIn(one, named.parameter);
                           })) {
      return true;
    }
  }
  return std::any_of(hidden.begin(), hidden.end(), [](const auto& one) {
    return one.second.first > 0 && one.second.first == one.second.second;
  });
}

}  // namespace

WeightOwner OwnerOf(const GameWeight& weight, ParameterId parameter) {
  WeightOwner owner = WeightOwner::kNobody;
  for (const int index : kWeights) {
    if (!IsStandIn(weight.name, index)) continue;
    if (ParameterId(index) == parameter) return WeightOwner::kParameter;
    owner = WeightOwner::kOther;
  }
  for (const NamedWeight& named : kNamedWeights) {
    if (!EqualIgnoringCase(weight.name, named.name)) continue;
    if (ParameterId(named.parameter) == parameter) {
      return WeightOwner::kParameter;
    }
    owner = WeightOwner::kOther;
  }
  return owner;
}

std::vector<FoundWeight> FindWeights(const WeightsRead& read,
                                     IndexRange range) {
  std::map<int, std::vector<OwnNumber>> numbers;
  const auto take = [&](const GameWeight& weight, const NamedWeight& named) {
    if (!range.Contains(named.parameter) || weight.name != named.name) {
      return;
    }
    std::vector<OwnNumber>& known = numbers[named.parameter];
    for (const WeightReturn& way : weight.returns) {
      const bool is_new = way.own && std::find(known.begin(), known.end(),
                                               *way.own) == known.end();
      if (is_new && Counts(way, named.ways)) known.push_back(*way.own);
    }
  };
  for (const GameWeight& weight : read.weights) {
    // The game takes the first of a name, and minds its case.
    const auto first =
        std::ranges::find(read.weights, weight.name, &GameWeight::name);
    if (&*first != &weight) continue;
    for (const NamedWeight& named : kNamedWeights) take(weight, named);
  }
  std::vector<FoundWeight> found;
  for (const auto& [index, known] : numbers) {
    const ParameterId parameter(index);
    const bool is_factor =
        parameter == kHealthWeight || parameter == kArmorWeight;
    if (known.empty() || (is_factor && known.size() > 1)) continue;
    const auto largest =
        std::max_element(known.begin(), known.end(),
                         [](const OwnNumber& left, const OwnNumber& right) {
                           return left.number < right.number;
                         });
    FoundWeight weight = {parameter, *largest, {}};
    std::copy_if(known.begin(), known.end(), std::back_inserter(weight.others),
                 [&weight](const OwnNumber& one) { return one != weight.own; });
    found.push_back(std::move(weight));
  }
  return found;
}

std::vector<std::string_view> WeaponNames() {
  std::vector<std::string_view> names = {"Nailgun", "Chaingun",
                                         "Prox Launcher"};
  for (const NamedWeight& row : kNamedWeights) {
    if (kWeaponWeightRange.Contains(ParameterId(row.parameter))) {
      names.push_back(row.name);
    }
  }
  return names;
}

void KeepUsedWeights(WeightsRead& read) {
  std::set<std::string, std::less<>> earlier;
  std::erase_if(read.weights, [&earlier](const GameWeight& weight) {
    if (Hide(earlier, weight.name)) return true;
    earlier.insert(weight.name);
    return false;
  });
}

}  // namespace fragsmith
