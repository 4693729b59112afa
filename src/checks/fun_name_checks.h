#ifndef FRAGSMITH_CHECKS_FUN_NAME_CHECKS_H_
#define FRAGSMITH_CHECKS_FUN_NAME_CHECKS_H_

#include "checks/check_context.h"

namespace fragsmith {

// What the game makes of the name that it shows.

/// A fun name for which the game loses the path of the bot's files.
void CheckFunNameHidesBot(const CheckContext& context, FindingList& findings);
void CheckFunNameCharacters(const CheckContext& context, FindingList& findings);
void CheckFunNameLength(const CheckContext& context, FindingList& findings);
void CheckFunNameBlack(const CheckContext& context, FindingList& findings);
void CheckFunNameIsEmpty(const CheckContext& context, FindingList& findings);
void CheckFunNameDots(const CheckContext& context, FindingList& findings);
void CheckFunNameQuotes(const CheckContext& context, FindingList& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_FUN_NAME_CHECKS_H_
