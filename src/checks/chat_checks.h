#ifndef FRAGSMITH_CHECKS_CHAT_CHECKS_H_
#define FRAGSMITH_CHECKS_CHAT_CHECKS_H_

#include "checks/check_context.h"

namespace fragsmith {

// What the game makes of the chat types and of the characteristics that give
// their chances.

void CheckTypeIsNeverHeard(const CheckContext& context, FindingList& findings);
void CheckLinesWithoutChance(const CheckContext& context,
                             FindingList& findings);
void CheckChanceWithoutLines(const CheckContext& context,
                             FindingList& findings);
void CheckEnemySuicide(const CheckContext& context, FindingList& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_CHAT_CHECKS_H_
