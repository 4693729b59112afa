#ifndef FRAGSMITH_GAME_ADVICE_H_
#define FRAGSMITH_GAME_ADVICE_H_

#include <span>
#include <string>
#include <string_view>

#include "game/character_reader.h"
#include "game/lexer.h"

namespace fragsmith {

/// The word that was most likely meant: one that differs in two letters at
/// most, capitals aside. Empty where there is none.
std::string_view NearestWord(std::string_view wrong,
                             std::span<const std::string_view> words);

/// What to do about a word that stands outside all blocks of a file with these
/// bytes, where the game looks for this one: a sentence.
std::string AdviceForStray(const GameToken& token, std::string_view expected,
                           std::string_view bytes);

/// What to do about the value of a macro that should be a number and is this
/// text: a sentence.
std::string AdviceForMacroValue(std::string_view value);

struct Fault {
  std::string_view id;  ///< As of a Complaint.
  std::string text;
};

/// What to say of a word that stands where a key should, behind this value, in
/// this line.
Fault UnknownKey(const GameToken& key, const GameToken& last,
                 std::string_view line, const CharacterBlock& block);

/// What to say of a number that stands behind the one that is a key's value.
std::string TwoNumbersText(const GameToken& value, const GameToken& behind);

/// What to say of a word that stands where the value of a key should; the file
/// goes on with these bytes from there.
std::string BadValueText(const GameToken& value, bool is_number_wanted,
                         std::string_view from);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_ADVICE_H_
