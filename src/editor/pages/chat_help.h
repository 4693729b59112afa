#ifndef FRAGSMITH_EDITOR_PAGES_CHAT_HELP_H_
#define FRAGSMITH_EDITOR_PAGES_CHAT_HELP_H_

#include <QString>

namespace fragsmith {

// Plain texts for tool tips and screen readers, about what the game makes of
// the chat texts.

/// When the game lets a bot speak a line of the type, if ever.
QString ChatTypeHelp(int type);

/// What stands in place of the pointer variable in a line of the type.
QString ChatPointerHelp(int type, int pointer);

/// The same for all pointer variables of the type: "{ATTACKER} is the name of
/// the killer; ...". Empty where there are none.
QString ChatVariables(int type);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_CHAT_HELP_H_
