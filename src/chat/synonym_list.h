#ifndef FRAGSMITH_CHAT_SYNONYM_LIST_H_
#define FRAGSMITH_CHAT_SYNONYM_LIST_H_

#include <string>
#include <string_view>
#include <vector>

#include "support/prompts.h"

namespace fragsmith {

/// The user's words that get a "~" in front in chat lines. Case is ignored;
/// empty entries may occur and are passed over: a fresh list is one of them.
struct SynonymList {
  std::vector<std::string> words = {std::string()};

  bool IsEmpty() const { return words.size() == 1 && words.front().empty(); }
};

/// What the bytes of a synonym file hold. A file that breaks off inside a
/// quoted word gives the words before.
struct ParsedSynonyms {
  SynonymList list;
  bool is_whole = true;
};
ParsedSynonyms ParseSynonyms(std::string_view bytes);
std::string FormatSynonyms(const SynonymList& list);

/// Puts "~" in front of each listed word of a chat line; words are parted by
/// single blanks, so one with a comma behind it is another. With an empty
/// list the user is told, and the text stays.
std::string MarkSynonyms(const std::string& text, const SynonymList& list,
                         Prompts& prompts);

/// "Add synonym": asks for the word. One that is there already, or that has a
/// double quote, which the file cannot hold, is refused with a box.
void AskForSynonym(SynonymList& list, Prompts& prompts);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHAT_SYNONYM_LIST_H_
