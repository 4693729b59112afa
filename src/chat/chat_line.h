#ifndef FRAGSMITH_CHAT_CHAT_LINE_H_
#define FRAGSMITH_CHAT_CHAT_LINE_H_

#include <string>
#include <string_view>
#include <vector>

#include "model/chat_type_id.h"
#include "support/localization.h"

namespace fragsmith {

// A chat line has two forms. In editor form it is text in which "{{TAUNT3}}"
// alone stands for a ready-made line of the game, "{WEAPON}" for a random
// word and "{ATTACKER}" for what the situation fills in. In file form it is
// the game's syntax: quoted texts, word list keys and variable numbers with
// commas between them, or a bare macro, ended by ";".

/// The line in file form. Variables that the type does not offer stay text;
/// double quotes in the text are not escaped.
std::string ChatLineToFile(ChatTypeId type, std::string_view line);

/// Something odd about a line. Of several oddities of a kind one sentence can
/// be made, for a note. UTF-8.
struct ChatOddity {
  std::string what;
  /// "%1: what that means", in English, the same for the same kind; Localized()
  /// puts into it what it is about.
  std::string_view kind;
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
