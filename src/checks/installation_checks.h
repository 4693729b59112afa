#ifndef FRAGSMITH_CHECKS_INSTALLATION_CHECKS_H_
#define FRAGSMITH_CHECKS_INSTALLATION_CHECKS_H_

#include <string>
#include <string_view>

#include "checks/check_context.h"

namespace fragsmith {

// How the bot gets along with what the installed game holds already.

void CheckGameIsKnown(const CheckContext& context, FindingList& findings);
void CheckNameIsTaken(const CheckContext& context, FindingList& findings);
/// What is said of a bot whose name another one has, which wins.
std::string NameTakenText(std::string_view name, const std::string& where);
/// What is said of a package that has files of the same names and wins.
inline constexpr std::string_view kFilesShadowed = "files-shadowed";
std::string ShadowedText(const std::string& winner, const std::string& own);

void CheckFilesAreShadowed(const CheckContext& context, FindingList& findings);
void CheckDescriptionCount(const CheckContext& context, FindingList& findings);
void CheckModelIsInstalled(const CheckContext& context, FindingList& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_INSTALLATION_CHECKS_H_
