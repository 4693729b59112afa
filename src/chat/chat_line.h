#ifndef FRAGSMITH_CHAT_CHAT_LINE_H_
#define FRAGSMITH_CHAT_CHAT_LINE_H_

#include <string>
#include <string_view>
#include <vector>

#include "model/chat_type_id.h"

namespace fragsmith {

// A chat line has two forms. In editor form it is text in which "{{TAUNT3}}"
// alone stands for a ready-made line of the game, "{WEAPON}" for a random
// word and "{ATTACKER}" for what the situation fills in. In file form it is
// the game's syntax: quoted texts, word list keys and variable numbers with
// commas between them, or a bare macro, ended by ";".

/// The line in file form. Variables that the type does not offer stay text;
/// double quotes in the text are not escaped.
std::string ChatLineToFile(ChatTypeId type, std::string_view line);

/// Something odd about a line. Both parts together are a sentence for a note;
/// of several oddities of a kind one sentence can be made. UTF-8.
struct ChatOddity {
  std::string what;
  std::string_view kind;  ///< ": what that means", the same for the same kind.
};

/// A line of the file in editor form, and what was odd about it.
struct EditorLine {
  std::string text;
  std::vector<ChatOddity> oddities;
};

/// The line of a file (without TABs, trimmed of blanks) in editor form. What
/// is not understood between two texts stays in the text as it is written,
/// quotes and commas included, so that writing gives it back.
EditorLine ChatLineFromFile(ChatTypeId type, std::string_view line);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHAT_CHAT_LINE_H_
