#ifndef FRAGSMITH_EDITOR_PAGES_CHAT_HELP_H_
#define FRAGSMITH_EDITOR_PAGES_CHAT_HELP_H_

#include <QString>
#include <vector>

#include "game/word_lists.h"
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

/// A variable that can be thought of for a line.
struct ChatVariable {
  QString variable;  ///< In editor form: "{ATTACKER}".
  QString meaning;   ///< What stands in its place, or why it is of no use.
  bool is_of_use = true;
};

/// Those for a line of the type: what the situation fills, the words of the
/// game, of which null knows all, and what is of no use here at the end.
std::vector<ChatVariable> VariablesFor(ChatTypeId type, const WordLists* words);

/// How likely the bot is to speak a line of the type: "never", "40 %", or for
/// what is said now and then "every 80 s".
QString ChanceOfLine(const Bot& bot, ChatTypeId type);

/// What stands in place of all pointer variables of the type: "{ATTACKER} is
/// the name of the killer; ...". Empty where there are none.
QString ChatVariables(ChatTypeId type);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_CHAT_HELP_H_
