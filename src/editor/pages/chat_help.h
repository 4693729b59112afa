#ifndef FRAGSMITH_EDITOR_PAGES_CHAT_HELP_H_
#define FRAGSMITH_EDITOR_PAGES_CHAT_HELP_H_

#include <QString>

#include "model/bot.h"
#include "model/chat_type_id.h"

namespace fragsmith {

// Plain texts for tool tips and screen readers, about what the game makes of
// the chat texts.

/// When the game lets a bot speak a line of the type, if ever.
QString ChatTypeHelp(ChatTypeId type);

/// What stands in place of the pointer variable in a line of the type.
QString ChatPointerHelp(ChatTypeId type, int pointer);

/// Why the situation leaves a variable without what it is for; empty where it
/// is filled.
QString WhyNotFilled(ChatTypeId type, const QString& variable);

/// How likely the bot is to speak a line of the type: "never", "40 %", or for
/// what is said now and then "every 80 s".
QString ChanceOfLine(const Bot& bot, ChatTypeId type);

/// What stands in place of all pointer variables of the type: "{ATTACKER} is
/// the name of the killer; ...". Empty where there are none.
QString ChatVariables(ChatTypeId type);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_CHAT_HELP_H_
