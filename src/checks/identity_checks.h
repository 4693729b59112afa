#ifndef FRAGSMITH_CHECKS_IDENTITY_CHECKS_H_
#define FRAGSMITH_CHECKS_IDENTITY_CHECKS_H_

#include <string>
#include <string_view>

#include "checks/check_context.h"

namespace fragsmith {

// What the game makes of the name and the looks of the bot.

void CheckUnusableName(const CheckContext& context, FindingList& findings);
void CheckNumericName(const CheckContext& context, FindingList& findings);
void CheckLongName(const CheckContext& context, FindingList& findings);
void CheckNameForMenus(const CheckContext& context, FindingList& findings);
/// What to say of a name that the game's menus cannot hold; empty for others.
std::string NameForMenusText(std::string_view name);
void CheckNameCharacters(const CheckContext& context, FindingList& findings);
void CheckNameAccents(const CheckContext& context, FindingList& findings);

void CheckGender(const CheckContext& context, FindingList& findings);
void CheckModelText(const CheckContext& context, FindingList& findings);
void CheckRailColor(const CheckContext& context, FindingList& findings);
void CheckArenaLord(const CheckContext& context, FindingList& findings);
void CheckDescriptionSize(const CheckContext& context, FindingList& findings);

inline constexpr std::string_view kNotReadBack = "identity-not-read-back";
/// What a load would make of the bot's own files once they are saved.
void CheckReadBack(const CheckContext& context, FindingList& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_IDENTITY_CHECKS_H_
