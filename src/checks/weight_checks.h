#ifndef FRAGSMITH_CHECKS_WEIGHT_CHECKS_H_
#define FRAGSMITH_CHECKS_WEIGHT_CHECKS_H_

#include "checks/check_context.h"

namespace fragsmith {

// What the game makes of the weights of weapons and items.

void CheckTextForWeight(const CheckContext& context, FindingList& findings);
void CheckWeaponAtStart(const CheckContext& context, FindingList& findings);
void CheckGauntletFighter(const CheckContext& context, FindingList& findings);
void CheckNoItems(const CheckContext& context, FindingList& findings);
void CheckWeaponNotFetched(const CheckContext& context, FindingList& findings);
void CheckUnusedWeights(const CheckContext& context, FindingList& findings);
void CheckWeightScripts(const CheckContext& context, FindingList& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_WEIGHT_CHECKS_H_
