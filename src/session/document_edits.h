#ifndef FRAGSMITH_SESSION_DOCUMENT_EDITS_H_
#define FRAGSMITH_SESSION_DOCUMENT_EDITS_H_

#include <string>
#include <string_view>
#include <vector>

#include "model/bot.h"
#include "session/identity_rules.h"
#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {

/// A value by its path in the document: "levels.4.CHARACTERISTIC_ATTACK_SKILL".
/// Texts need no quotes; chat lines are a list as in JSON.
struct ValueAtPath {
  std::string path;
  std::string value;
};

/// A bot with other values. What goes into the identity boxes has not passed
/// their checks yet, and is not in the bot.
struct EditedBot {
  Bot bot;
  IdentityTexts texts;
  /// Values of the document that are none for the bot, which keeps its own.
  std::vector<Error> refused;
};

/// Gives the bot the values of a document, which may leave keys out, and then
/// those at the paths. All that they do not speak of stays as it is. Where
/// there is no document it is "{}".
Result<EditedBot> EditByDocument(const Bot& bot, std::string_view json,
                                 const std::string& file,
                                 const std::vector<ValueAtPath>& values,
                                 Notes& notes);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_DOCUMENT_EDITS_H_
