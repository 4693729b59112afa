#ifndef FRAGSMITH_CHECKS_CHAT_LINE_CHECKS_H_
#define FRAGSMITH_CHECKS_CHAT_LINE_CHECKS_H_

#include <string_view>

#include "checks/check_context.h"

namespace fragsmith {

// What the game makes of each chat line.

/// The first "{...}" of a text, which the game speaks as it stands; empty when
/// there is none.
std::string_view BracedPart(std::string_view text);

void CheckLineQuotes(const CheckContext& context, FindingList& findings);
void CheckLineBackslashes(const CheckContext& context, FindingList& findings);
void CheckLineControls(const CheckContext& context, FindingList& findings);
void CheckLineLength(const CheckContext& context, FindingList& findings);
void CheckLineOnScreen(const CheckContext& context, FindingList& findings);
void CheckLineCharacters(const CheckContext& context, FindingList& findings);
void CheckLineWords(const CheckContext& context, FindingList& findings);
void CheckLineVariables(const CheckContext& context, FindingList& findings);
void CheckLineBraces(const CheckContext& context, FindingList& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_CHAT_LINE_CHECKS_H_
