#ifndef FRAGSMITH_CHECKS_PARAMETER_WORDS_H_
#define FRAGSMITH_CHECKS_PARAMETER_WORDS_H_

#include <string>
#include <string_view>

#include "model/value.h"

namespace fragsmith {

/// What a player calls the field or parameter, UTF-8: "Reaction time",
/// "Railgun usage". Takes the indices of Bot::Parameter; the level of a
/// per-level one is left away.
std::string_view ParameterName(int index);

/// The same of a per-level parameter by its catalogue index alone, which is
/// a field's index for Bot::Parameter.
std::string_view CharacteristicName(int index);

/// The name in double quotes, and the level where it has one: "Reaction time"
/// at level 4.
std::string QuotedName(int index);

/// A value as a player reads it: the number, or the text in double quotes.
std::string ShownValue(const Value& value);
std::string ShownNumber(double number);

/// A game text in double quotes, UTF-8.
std::string QuotedText(std::string_view text);

/// The situation's caption in double quotes.
std::string QuotedChatType(int type);

/// "a", "a and b", "a, b and c".
template <typename Texts>
std::string Enumeration(const Texts& texts) {
  std::string list;
  std::size_t left = texts.size();
  for (const auto& text : texts) {
    list += text;
    --left;
    if (left > 0) list += left == 1 ? " and " : ", ";
  }
  return list;
}

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_PARAMETER_WORDS_H_
