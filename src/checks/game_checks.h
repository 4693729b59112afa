#ifndef FRAGSMITH_CHECKS_GAME_CHECKS_H_
#define FRAGSMITH_CHECKS_GAME_CHECKS_H_

#include "checks/check_context.h"

namespace fragsmith {

// How the bot gets along with what the installed game holds already.

void CheckGameIsKnown(const CheckContext& context, FindingList& findings);
void CheckNameIsTaken(const CheckContext& context, FindingList& findings);
void CheckFilesAreShadowed(const CheckContext& context, FindingList& findings);
void CheckDescriptionCount(const CheckContext& context, FindingList& findings);
void CheckModelIsInstalled(const CheckContext& context, FindingList& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_GAME_CHECKS_H_
