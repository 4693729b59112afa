#include "checks/weight_checks.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "chat/vocabulary.h"
#include "game/number.h"
#include "game/weapon_order.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

bool HasWeapon(const Bot& bot) {
  return std::any_of(
      kWeaponWeightRange.begin(), kWeaponWeightRange.end(),
      [&bot](int index) { return NumberInGame(bot, ParameterId(index)) > 0; });
}

Mend UseMachinegun() {
  constexpr double kModest = 10;
  return Safe(SetTo(kMachinegunUsage, kModest));
}

}  // namespace

void CheckTextForWeight(const CheckContext& context, FindingList& findings) {
  for (int index = kWeaponWeightRange.first; index <= kItemWeightRange.last;
       ++index) {
    const ParameterId weight(index);
    const Value& value = context.bot.Parameter(weight);
    if (ToNumber(value)) continue;
    findings.Add(
        weight,
        Localized("%1 is the text %2, not a number: the game cannot read the "
                  "file of weights and does not add the bot. Give a number.",
                  {QuotedName(weight), ShownValue(value)}),
        {Safe(SetTo(weight, 0))});
  }
}

void CheckWeaponAtStart(const CheckContext& context, FindingList& findings) {
  if (!IsWeaponless(NumberInGame(context.bot, kGauntletUsage),
                    NumberInGame(context.bot, kMachinegunUsage))) {
    return;
  }
  std::string text =
      HasWeapon(context.bot)
          ? Localized(kWeaponlessText) + " " +
                Localized(
                    "Set %1 or %2 above 0.",
                    {QuotedName(kGauntletUsage), QuotedName(kMachinegunUsage)})
          : Localized(
                "No weapon has a weight above 0 yet: the bot has none that it "
                "may draw, aims badly, and the game fills its console with "
                "errors. Give weights to the weapons that it is to use.");
  findings.Add(kMachinegunUsage, std::move(text), {UseMachinegun()});
}

void CheckGauntletFighter(const CheckContext& context, FindingList& findings) {
  const std::vector<WeaponRank> order = WeaponOrder(context.bot);
  if (order.front().weapon != kGauntletUsage || order.front().weight <= 0) {
    return;
  }
  const bool are_all_equal = order.back().weight == order.front().weight;
  std::string text = Localized(
      are_all_equal
          ? Localizable("All weapon weights are equal, and of equal ones the "
                        "game takes the gauntlet: the bot fights with nothing "
                        "else, whatever it carries. Give each weapon that it "
                        "is to use a larger weight than %1.")
          : Localizable(
                "No weapon has a larger weight than the gauntlet: the bot "
                "fights with nothing else, whatever it carries. Give each "
                "weapon that it is to use a larger weight than %1."),
      {QuotedName(kGauntletUsage)});
  Mend mend = SetTo(kGauntletUsage, 1);
  // A larger weight of its own may be what its author wants.
  mend.is_safe = are_all_equal;
  findings.Add(kGauntletUsage, std::move(text), {std::move(mend)});
}

void CheckNoItems(const CheckContext& context, FindingList& findings) {
  for (const int index : kItemWeightRange) {
    if (NumberInGame(context.bot, ParameterId(index)) > 0) return;
  }
  findings.Add(
      ParameterId(kItemWeightRange.first),
      Localized("All weights of the pages \"Weapon pickup\" and \"Item "
                "pickup\" are 0: the bot never goes anywhere to fetch a "
                "weapon, health, armor or any other item."),
      {{.title = Localized("Take the pickup weights of an average bot"),
        .apply = [](Bot& bot) {
          const Bot average = CreateAverageBot(SeededRandom(0));
          for (const int index : kItemWeightRange) {
            const ParameterId weight(index);
            bot.Put(weight, average.Parameter(weight));
          }
        }}});
}

void CheckWeaponNotFetched(const CheckContext& context, FindingList& findings) {
  const Bot& bot = context.bot;
  const double at_start = std::max(NumberInGame(bot, kGauntletUsage),
                                   NumberInGame(bot, kMachinegunUsage));
  const auto never_fetched = [&bot](ParameterId usage) {
    const std::optional<ParameterId> pickup = PickupOf(usage);
    return pickup && NumberInGame(bot, *pickup) <= 0;
  };
  // Where it fetches no weapon at all, that is what its author wants.
  if (std::all_of(kWeaponsInGameOrder.begin(), kWeaponsInGameOrder.end(),
                  [&](ParameterId usage) {
                    return !PickupOf(usage) || never_fetched(usage);
                  })) {
    return;
  }
  for (const ParameterId usage : kWeaponsInGameOrder) {
    if (usage == kMachinegunUsage || !never_fetched(usage) ||
        NumberInGame(bot, usage) <= at_start) {
      continue;
    }
    const ParameterId pickup = *PickupOf(usage);
    findings.Add(
        pickup,
        Localized(
            "%1 is high, but %2 is 0: the bot never goes to fetch this weapon "
            "and has it by chance only. Raise it unless that is meant.",
            {QuotedName(usage), QuotedName(pickup)}));
  }
}

void CheckUnusedWeights(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr || context.game->uses_owned_weights) return;
  for (const int index : kOwnedPickupRange) {
    if (NumberInGame(context.bot, ParameterId(index)) <= 0) continue;
    findings.Add(
        ParameterId(index),
        Localized(
            "The game in your game folder does not use the weights of the rows "
            "\"With\" on the page \"Weapon pickup\": for a weapon that the bot "
            "has already, the game decides itself. They do no harm."));
    return;
  }
}

void CheckWeightScripts(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr) return;
  const GameData& game = *context.game;
  std::vector<std::string> missing;
  // What asks for other macros has a finding of its own.
  if (!game.has_weapon_script && !game.weapon_macros) {
    missing.emplace_back("fw_weap.c");
  }
  if (!game.has_item_script && !game.item_macros) {
    missing.emplace_back("fw_items.c");
  }
  if (missing.empty()) return;
  findings.Add(WholeBot{},
               Localized("The packages of your game folder have no %1, which "
                         "the bot's files ask for: with these packages alone "
                         "the game adds no bot that was made here. Install the "
                         "newest data of the game (for OpenArena, 0.8.8).",
                         {Enumeration(missing)}));
}

void CheckOtherMacros(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr) return;
  std::vector<std::string> scripts;
  std::string macro_name;
  std::string weight;
  for (const auto* const wanted :
       {&context.game->weapon_macros, &context.game->item_macros}) {
    if (!*wanted) continue;
    scripts.push_back((*wanted)->script);
    for (const GameMacros::Macro& macro : (*wanted)->macros) {
      if (!macro_name.empty() || !macro.parameter) continue;
      macro_name = macro.name;
      weight = QuotedName(*macro.parameter);
    }
  }
  if (scripts.empty()) return;
  findings.Add(
      WholeBot{},
      Localized(
          macro_name.empty()
              ? Localizable(
                    "The weight code of your game, %1, asks for macros of its "
                    "own and would not read the weights of files that are made "
                    "here: tick \"Write the game's own macros as well\" when "
                    "you make them. \"Install into game\" writes them.")
              : Localizable("The weight code of your game, %1, asks for macros "
                            "of its own such as %2 for %3 and would not read "
                            "the weights of files that are made here: tick "
                            "\"Write the game's own macros as well\" when you "
                            "make them. \"Install into game\" writes them."),
          {Enumeration(scripts), macro_name, weight}));
}

}  // namespace fragsmith
