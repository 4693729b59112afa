#ifndef FRAGSMITH_SESSION_BOT_DOCUMENT_H_
#define FRAGSMITH_SESSION_BOT_DOCUMENT_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "model/bot.h"
#include "session/identity_rules.h"
#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {

/// A bot as it comes out of a JSON document. What the identity boxes hold has
/// not passed their checks yet: CheckAllIn puts it into the bot.
struct BotDocument {
  Bot bot;
  IdentityTexts texts;
};

/// The largest document that is read; a parsed one takes many times its size.
inline constexpr std::size_t kMaxDocumentBytes = std::size_t{32} << 20U;

/// Reads a document (see docs/document.md for its form) of any version.
/// Missing keys give the values of a new bot; an unknown key, a value of the
/// wrong kind and a text that the code page lacks are errors that name the
/// field. The unknown keys of a version newer than ours are noted only. Errors
/// and notes are about the file of that name.
Result<BotDocument> ReadBotDocument(std::string_view json,
                                    const std::string& file, Notes& notes);

/// The bot as a document of the present version: UTF-8, two blanks of indent,
/// a line end at its end.
std::string WriteBotDocument(const Bot& bot);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_BOT_DOCUMENT_H_
