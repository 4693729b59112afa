#ifndef FRAGSMITH_SESSION_DRAFT_H_
#define FRAGSMITH_SESSION_DRAFT_H_

#include <string>
#include <string_view>

#include "model/bot.h"
#include "session/bot_origin.h"
#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {

/// Unsaved work, as it is kept on disk in case the program does not end as it
/// should. A format of its own, around the document of the bot.
struct Draft {
  Bot bot;
  BotOrigin origin = {};
};

/// Reads a draft of any version; before they had one, a draft was the document
/// alone. What is not known is noted and left out: no work is lost for it. The
/// bot is as it was, checked or not.
Result<Draft> ReadDraft(std::string_view json, const std::string& file,
                        Notes& notes);

std::string WriteDraft(const Draft& draft);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_DRAFT_H_
