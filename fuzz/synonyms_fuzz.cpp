#include <string>
#include <vector>

#include "chat/synonym_list.h"
#include "fuzz/oracle.h"
#include "tests/support/scripted_prompts.h"

namespace fragsmith {
namespace {

/// What the file can hold of the words: no quotes and no empty one.
std::vector<std::string> Storable(std::vector<std::string> words) {
  for (std::string& word : words) std::erase(word, '"');
  std::erase(words, "");
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
  Expect(Storable(again.list.words) == Storable(list.words),
         "all words are kept");

  constexpr std::size_t kSomeText = 300;
  const std::string text(bytes.substr(0, kSomeText));
  ScriptedPrompts prompts;
  const std::string marked = MarkSynonyms(text, list, prompts);
  ExpectEqual(WithoutMarks(text), WithoutMarks(marked), "marks alone are new");
  Expect(prompts.messages.size() == (list.IsEmpty() ? 1 : 0),
         "only an empty list is told");
}

}  // namespace fragsmith
