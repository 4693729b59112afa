#ifndef FRAGSMITH_CHECKS_WEIGHT_CHECKS_H_
#define FRAGSMITH_CHECKS_WEIGHT_CHECKS_H_

#include <string_view>

#include "checks/check_context.h"
#include "support/localization.h"

namespace fragsmith {

// What the game makes of the weights of weapons and items.

/// Whether a bot of these weights has nothing to begin a fight with.
inline bool IsWeaponless(double gauntlet, double machinegun) {
  return gauntlet <= 0 && machinegun <= 0;
}

inline constexpr std::string_view kWeaponlessText = Localizable(
    "The bot starts with gauntlet and machinegun, and both have the weight 0: "
    "until it finds another weapon it has none that it may draw, aims badly, "
    "and the game fills its console with errors.");

void CheckTextForWeight(const CheckContext& context, FindingList& findings);
void CheckWeaponAtStart(const CheckContext& context, FindingList& findings);
void CheckGauntletFighter(const CheckContext& context, FindingList& findings);
void CheckNoItems(const CheckContext& context, FindingList& findings);
void CheckWeaponNotFetched(const CheckContext& context, FindingList& findings);
void CheckUnusedWeights(const CheckContext& context, FindingList& findings);
void CheckWeightScripts(const CheckContext& context, FindingList& findings);
void CheckOtherMacros(const CheckContext& context, FindingList& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_WEIGHT_CHECKS_H_
