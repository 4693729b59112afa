#ifndef FRAGSMITH_INPLACE_CHAT_STATEMENT_H_
#define FRAGSMITH_INPLACE_CHAT_STATEMENT_H_

#include <string>

#include "game/word_lists.h"
#include "model/chat_type_id.h"
#include "session/bot_origin.h"

namespace fragsmith {

/// A chat line on its way into an author's file.
struct ChatStatement {
  std::string text;  ///< With its ";".
  std::string note;  ///< What else could have been meant; empty mostly.
};

/// The line as the author wrote such a one, else as our writer does, but by the
/// names that the game's lists have; without a game there are none.
ChatStatement StatementFor(ChatTypeId type, const std::string& line,
                           const ChatSpellings& spellings,
                           const WordLists& lists);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_CHAT_STATEMENT_H_
