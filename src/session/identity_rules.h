#ifndef FRAGSMITH_SESSION_IDENTITY_RULES_H_
#define FRAGSMITH_SESSION_IDENTITY_RULES_H_

#include <map>
#include <optional>
#include <string>

#include "model/bot.h"
#include "support/prompts.h"

namespace fragsmith {

/// Texts of the identity boxes (8-bit), by the bot field that each edits:
/// name, fun name, version and comment.
using IdentityTexts = std::map<ParameterId, std::string>;

/// Why a name cannot be a bot's, as the box that says so; nothing for a good
/// one. The files are called after the name, so it must be a file name.
std::optional<Message> NameRefusal(const std::string& name);

/// The same for the text of any of the boxes.
std::optional<Message> BoxRefusal(ParameterId field, const std::string& text);

/// Tests the text of one box and stores it in the bot. A text that is refused
/// is not stored; the user is told why. A fun name with a space is stored in
/// double quotes, for the game reads but one word without them.
bool CheckBox(ParameterId field, const std::string& text, Bot& bot,
              Prompts& prompts);

/// Tests all boxes in the order of their fields, up to the first that is
/// refused. Gives the field of that one, or nothing when the bot can be
/// saved.
std::optional<ParameterId> CheckAllIn(const IdentityTexts& texts, Bot& bot,
                                      Prompts& prompts);

/// A fun name as it is stored for the file: in quotes where it has a space.
std::string FunNameForFile(const std::string& fun_name);

/// A fun name as the box shows it: without an enclosing pair of quotes.
std::string FunNameForBox(const std::string& fun_name);

/// The texts that the boxes show for a bot.
IdentityTexts BoxTextsOf(const Bot& bot);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_IDENTITY_RULES_H_
