#include "checks/weight_checks.h"

#include <algorithm>
#include <optional>

#include "checks/game_number.h"
#include "checks/parameter_words.h"
#include "checks/weapon_order.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

/// The weights of picking up a weapon that the bot has already.
constexpr IndexRange kOwnedRange = {64, 71};

std::string Quoted(int index) { return QuotedName(index); }

}  // namespace

void CheckTextForWeight(const CheckContext& context, FindingList& findings) {
  for (int index = kWeaponWeightRange.first; index <= kItemWeightRange.last;
       ++index) {
    const Value& value = context.bot.Parameter(index);
    if (ToNumber(value)) continue;
    findings.Add(index,
                 Quoted(index) + " is the text " + ShownValue(value) +
                     ", not a number: the game cannot read the file of "
                     "weights and does not add the bot.",
                 {SetTo(index, 0.0, "Set " + Quoted(index) + " to 0")});
  }
}

void CheckWeaponAtStart(const CheckContext& context, FindingList& findings) {
  if (NumberInGame(context.bot, kGauntletUsage) > 0 ||
      NumberInGame(context.bot, kMachinegunUsage) > 0) {
    return;
  }
  constexpr double kModest = 10;
  findings.Add(
      kMachinegunUsage,
      "The bot starts with gauntlet and machinegun, and \"Gauntlet usage\" "
      "and \"Machinegun usage\" are both 0: until it finds another weapon it "
      "has none that it may draw, aims badly, and the game fills its console "
      "with errors. Set one of them above 0.",
      {SetTo(kMachinegunUsage, kModest, "Set \"Machinegun usage\" to 10")});
}

void CheckGauntletFighter(const CheckContext& context, FindingList& findings) {
  const std::vector<WeaponRank> order = WeaponOrder(context.bot);
  if (order.front().index != kGauntletUsage || order.front().weight <= 0) {
    return;
  }
  const bool are_all_equal = order.back().weight == order.front().weight;
  std::string text = are_all_equal
                         ? "All weapon weights are equal, and of equal ones "
                           "the game takes the gauntlet: the bot"
                         : "No weapon has a larger weight than the gauntlet: "
                           "the bot";
  text +=
      " fights with nothing else, whatever it carries. Give each weapon that "
      "it is to use a larger weight than \"Gauntlet usage\".";
  findings.Add(kGauntletUsage, std::move(text),
               {SetTo(kGauntletUsage, 1.0, "Set \"Gauntlet usage\" to 1")});
}

void CheckNoItems(const CheckContext& context, FindingList& findings) {
  for (int index = kItemWeightRange.first; index <= kItemWeightRange.last;
       ++index) {
    if (NumberInGame(context.bot, index) > 0) return;
  }
  findings.Add(kItemWeightRange.first,
               "All weights of the pages \"Weapon pickup\" and \"Item "
               "pickup\" are 0: the bot never goes anywhere to fetch a "
               "weapon, health, armor or any other item.");
}

void CheckWeaponNotFetched(const CheckContext& context, FindingList& findings) {
  const Bot& bot = context.bot;
  const double at_start = std::max(NumberInGame(bot, kGauntletUsage),
                                   NumberInGame(bot, kMachinegunUsage));
  const auto never_fetched = [&bot](int usage) {
    const std::optional<int> pickup = PickupOf(usage);
    return pickup && NumberInGame(bot, *pickup) <= 0;
  };
  // Where it fetches no weapon at all, that is what its author wants.
  if (std::all_of(kWeaponsInGameOrder.begin(), kWeaponsInGameOrder.end(),
                  [&](int usage) {
                    return !PickupOf(usage) || never_fetched(usage);
                  })) {
    return;
  }
  for (const int usage : kWeaponsInGameOrder) {
    if (usage == kMachinegunUsage || !never_fetched(usage) ||
        NumberInGame(bot, usage) <= at_start) {
      continue;
    }
    const int pickup = *PickupOf(usage);
    findings.Add(pickup, Quoted(usage) + " is high, but " + Quoted(pickup) +
                             " is 0: the bot never goes to fetch this weapon "
                             "and has it by chance only.");
  }
}

void CheckUnusedWeights(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr || context.game->uses_owned_weights) return;
  for (int index = kOwnedRange.first; index <= kOwnedRange.last; ++index) {
    if (NumberInGame(context.bot, index) <= 0) continue;
    findings.Add(index,
                 "The game in your game folder does not use the weights of "
                 "the rows \"With\" on the page \"Weapon pickup\": for a "
                 "weapon that the bot has already, the game decides itself.");
    return;
  }
}

void CheckWeightScripts(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr) return;
  std::vector<std::string> missing;
  if (!context.game->has_weapon_script) missing.emplace_back("fw_weap.c");
  if (!context.game->has_item_script) missing.emplace_back("fw_items.c");
  if (missing.empty()) return;
  findings.Add(FindingPlace{.file = {}},
               "The packages of your game folder have no " +
                   Enumeration(missing) +
                   ", which the bot's files ask for: with these packages "
                   "alone the game adds no bot that was made here. Install "
                   "the newest data of the game (for OpenArena, 0.8.8).");
}

}  // namespace fragsmith
