#ifndef FRAGSMITH_CHECKS_IDENTITY_CHECKS_H_
#define FRAGSMITH_CHECKS_IDENTITY_CHECKS_H_

#include "checks/check_context.h"

namespace fragsmith {

// What the game makes of the name and the looks of the bot.

void CheckUnusableName(const CheckContext& context, FindingList& findings);
void CheckNumericName(const CheckContext& context, FindingList& findings);
void CheckLongName(const CheckContext& context, FindingList& findings);
void CheckNameForMenus(const CheckContext& context, FindingList& findings);
void CheckNameCharacters(const CheckContext& context, FindingList& findings);
void CheckNameAccents(const CheckContext& context, FindingList& findings);

void CheckGender(const CheckContext& context, FindingList& findings);
void CheckModelText(const CheckContext& context, FindingList& findings);
void CheckRailColor(const CheckContext& context, FindingList& findings);
void CheckArenaLord(const CheckContext& context, FindingList& findings);
void CheckDescriptionSize(const CheckContext& context, FindingList& findings);

/// What a load would make of the bot's own files once they are saved.
void CheckReadBack(const CheckContext& context, FindingList& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_IDENTITY_CHECKS_H_
