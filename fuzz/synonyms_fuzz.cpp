#include <algorithm>
#include <string>
#include <vector>

#include "chat/synonym_list.h"
#include "fuzz/oracle.h"
#include "tests/support/scripted_prompts.h"

namespace fragsmith {
namespace {

/// What of the words the file can hold.
std::vector<std::string> Storable(std::vector<std::string> words) {
  std::erase(words, "");
  for (std::string& word : words) std::erase(word, '"');
  return words;
}

std::string WithoutMarks(std::string text) {
  std::erase(text, '~');
  return text;
}

}  // namespace

void FuzzOne(std::string_view bytes) {
  const SynonymList list = ParseSynonyms(bytes).list;
  const std::string written = FormatSynonyms(list);
  const ParsedSynonyms again = ParseSynonyms(written);
  Expect(again.is_whole, "our own file is whole");
  std::vector<std::string> words = Storable(list.words);
  // A word of quotes alone comes back empty, which is no word.
  std::erase(words, "");
  std::vector<std::string> kept = again.list.words;
  std::erase(kept, "");
  Expect(kept == words, "all words are kept");
  ExpectEqual(written.substr(0, 8), FormatSynonyms(again.list).substr(0, 8),
              "the header stays");

  constexpr std::size_t kSomeText = 300;
  const std::string text(bytes.substr(0, kSomeText));
  ScriptedPrompts prompts;
  const std::string marked = MarkSynonyms(text, list, prompts);
  ExpectEqual(WithoutMarks(text), WithoutMarks(marked), "marks alone are new");
  Expect(prompts.messages.size() == (list.IsEmpty() ? 1 : 0),
         "only an empty list is told");
}

}  // namespace fragsmith
