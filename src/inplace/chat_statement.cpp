#include "inplace/chat_statement.h"

#include <algorithm>
#include <string_view>

#include "chat/chat_line.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kCapitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view kSmall = "abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view kNoLetters = "_0123456789";

bool IsWord(std::string_view text) {
  const auto is_in = [](std::string_view letters, char letter) {
    return letters.find(letter) != std::string_view::npos;
  };
  return !text.empty() && !is_in(kNoLetters, text.front()) &&
         std::all_of(text.begin(), text.end(), [&](char letter) {
           return is_in(kCapitals, letter) || is_in(kSmall, letter) ||
                  is_in(kNoLetters, letter);
         });
}

/// As games call their lists of lines, such as GRUNT_TALK1.
bool LooksLikeList(std::string_view word) {
  return word.find_first_of(kCapitals) != std::string_view::npos &&
         word.find_first_of(kNoLetters) != std::string_view::npos &&
         word.find_first_of(kSmall) == std::string_view::npos;
}

/// As people write, such as food, of which a game may have a list all the same.
bool LooksLikeText(std::string_view word) {
  return word.find_first_of(kSmall) != std::string_view::npos &&
         word.find_first_of(kNoLetters) == std::string_view::npos;
}

/// Whether the first member of a list has a number there: for the game, else
/// for the author's other lines.
bool IsNumbered(const std::string& name, const ChatSpellings& spellings,
                const WordLists& lists) {
  if (!lists.empty()) {
    return lists.Find(name) == nullptr && lists.Find(name + '0') != nullptr;
  }
  return std::any_of(spellings.begin(), spellings.end(), [](const auto& known) {
    return known.first.ends_with("0}}") && known.second.ends_with("0;");
  });
}

}  // namespace

ChatStatement StatementFor(ChatTypeId type, const std::string& line,
                           const ChatSpellings& spellings,
                           const WordLists& lists) {
  const auto says_it = [&](const std::string& statement) {
    return ChatLineFromFile(type, statement).text == line;
  };
  const auto known = spellings.find(line);
  // In this type it may say something else.
  if (known != spellings.end() && says_it(known->second)) {
    return {known->second, {}};
  }
  std::string written = ChatLineToFile(type, line);
  const std::string name = written.substr(0, written.size() - 1);
  if (line.ends_with("0}}") && !name.ends_with('0') && IsWord(name)) {
    if (IsNumbered(name, spellings, lists)) written.insert(name.size(), "0");
    return {std::move(written), {}};
  }
  if (!IsWord(line) || name != '"' + line + '"')
    return {std::move(written), {}};
  const bool has_list = lists.Find(line) != nullptr && says_it(line + ';');
  if (has_list && LooksLikeText(line)) {
    return {std::move(written),
            Localized("The new line \"%1\" is written as a text. The game has "
                      "a list of that name, too; for a random line of it write "
                      "the word there by hand, without the quotation marks.",
                      {ShownText(line)})};
  }
  if (has_list) {
    return {line + ';',
            Localized("The new line \"%1\" is written as the game's list of "
                      "that name, of which a random line is said. Where the "
                      "word itself is to be said, write it there by hand, in "
                      "quotation marks.",
                      {ShownText(line)})};
  }
  if (lists.empty() && LooksLikeList(line)) {
    return {std::move(written),
            Localized("The new line \"%1\" is written as a text. Where a "
                      "list of the game is meant, give the folder of that "
                      "game.",
                      {ShownText(line)})};
  }
  return {std::move(written), {}};
}

}  // namespace fragsmith
