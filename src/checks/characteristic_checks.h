#ifndef FRAGSMITH_CHECKS_CHARACTERISTIC_CHECKS_H_
#define FRAGSMITH_CHECKS_CHARACTERISTIC_CHECKS_H_

#include "checks/check_context.h"

namespace fragsmith {

// What the game makes of the characteristics of the three levels and of the
// chat characteristics as numbers; what they mean for chats is elsewhere.

void CheckLevelMix(const CheckContext& context, FindingList& findings);
void CheckTextThatBreaksFile(const CheckContext& context,
                             FindingList& findings);
void CheckTextForNumber(const CheckContext& context, FindingList& findings);
void CheckNegativeValue(const CheckContext& context, FindingList& findings);
void CheckReactionTime(const CheckContext& context, FindingList& findings);
void CheckViewChange(const CheckContext& context, FindingList& findings);
void CheckValueBeyondRange(const CheckContext& context, FindingList& findings);
void CheckUnreadValue(const CheckContext& context, FindingList& findings);
void CheckDefaultCharacter(const CheckContext& context, FindingList& findings);
void CheckFireThrottle(const CheckContext& context, FindingList& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_CHARACTERISTIC_CHECKS_H_
