#ifndef FRAGSMITH_CHAT_VOCABULARY_H_
#define FRAGSMITH_CHAT_VOCABULARY_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "model/chat_type_id.h"
#include "model/parameter_id.h"
#include "model/value.h"
#include "support/localization.h"

namespace fragsmith {

// The one vocabulary: what a player calls things, in the window, in findings,
// in comparisons and in the names of undo. UTF-8.

/// What the field or parameter is called: "Reaction time", "Railgun usage".
/// The level of a per-level one is left away.
std::string_view ParameterName(ParameterId id);

/// What stands above the control of a parameter, by its catalogue index;
/// empty where the control above has it.
std::string_view ParameterCaption(int index);

/// The name, and the level where it has one: "Reaction time, level 4".
std::string ParameterTitle(ParameterId id);

/// The same within a sentence: "Reaction time" at level 4.
std::string QuotedName(ParameterId id);

/// A value as a player reads it: the number, or the text in double quotes.
std::string ShownValue(const Value& value);
std::string ShownNumber(double number);

/// Bytes of a game text that are bearable in a sentence.
inline constexpr std::size_t kMaxQuoted = 40;

/// A game text in double quotes, UTF-8; of a longer one the beginning.
std::string Quoted(std::string_view game_text, std::size_t most = kMaxQuoted);

/// The situation's caption in double quotes.
std::string QuotedChatType(ChatTypeId type);

/// "a", "a and b", "a, b and c".
template <typename Texts>
std::string Enumeration(const Texts& texts) {
  std::string list;
  std::size_t number = 0;
  for (const std::string_view text : texts) {
    ++number;
    if (number == 1) {
      list = text;
    } else if (number < texts.size()) {
      list.append(", ").append(text);
    } else {
      list = Localized("%1 and %2", {list, text});
    }
  }
  return list;
}

}  // namespace fragsmith

#endif  // FRAGSMITH_CHAT_VOCABULARY_H_
