#include "chat/synonym_list.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "support/code_page.h"
#include "support/field_reader.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kHeader = "[Fragsmith synonym list]";

std::vector<std::string> SplitAtBlanks(std::string_view text) {
  std::vector<std::string> words;
  while (true) {
    const std::size_t blank = text.find(' ');
    words.emplace_back(text.substr(0, blank));
    if (blank == std::string_view::npos) return words;
    text.remove_prefix(blank + 1);
  }
}

}  // namespace

ParsedSynonyms ParseSynonyms(std::string_view bytes) {
  ParsedSynonyms parsed;
  std::vector<std::string>& words = parsed.list.words;
  FieldReader fields(bytes);
  bool is_first = true;
  while (const std::optional<std::string_view> field = fields.Next()) {
    if (fields.is_cut()) {
      parsed.is_whole = false;
      break;
    }
    // A file that someone made by hand may lack the header.
    const bool is_header = std::exchange(is_first, false) &&
                           field->starts_with('[') && field->ends_with(']');
    if (is_header) continue;
    if (!words.back().empty()) words.emplace_back();
    words.back() = *field;
  }
  return parsed;
}

std::string FormatSynonyms(const SynonymList& list) {
  std::string text(kHeader);
  text += kLineEnd;
  for (const std::string& word : list.words) {
    if (word.empty()) continue;
    AppendQuotedField(word, text);
    text += kLineEnd;
  }
  return text;
}

std::string MarkSynonyms(const std::string& text, const SynonymList& list,
                         Prompts& prompts) {
  if (list.IsEmpty()) {
    prompts.Show({.title = "Synonym list is missing",
                  .text = "Synonym list is empty. Check that file "
                          "'fgs_synonyms' exists in Fragsmith folder. You can "
                          "create a new 'fgs_synonyms' by adding synomyns from "
                          "the Tools-menu",
                  .icon = MessageIcon::kInformation});
    return text;
  }
  std::vector<std::string> words = SplitAtBlanks(text);
  for (const std::string& synonym : list.words) {
    if (synonym.empty()) continue;
    for (std::string& word : words) {
      if (EqualIgnoringCase(word, synonym)) word.insert(0, 1, '~');
    }
  }
  std::string marked = words.front();
  for (std::size_t at = 1; at < words.size(); ++at) marked += ' ' + words[at];
  return marked;
}

void AskForSynonym(SynonymList& list, Prompts& prompts) {
  const std::string title = "Synonym not added";
  const std::optional<std::string> answer =
      prompts.AskText("Add synonym", "Give the new synonym");
  if (!answer || answer->empty()) return;
  const auto refuse = [&](std::string text) {
    prompts.Show({title, std::move(text), MessageIcon::kInformation});
  };
  const std::optional<std::string> word = GameTextFromUtf8(*answer);
  if (!word || Contains(*word, "\"")) {
    refuse(Localized("'%1' has a character that the list cannot hold.",
                     {*answer}));
    return;
  }
  if (std::any_of(list.words.begin(), list.words.end(),
                  [&word](const std::string& known) {
                    return EqualIgnoringCase(known, *word);
                  })) {
    refuse("Synonym '" + *answer + "' exists in the list already.");
    return;
  }
  list.words.push_back(*word);
}

}  // namespace fragsmith
