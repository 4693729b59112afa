#include "game/advice.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <system_error>
#include <utility>
#include <vector>

#include "chat/vocabulary.h"
#include "game/complaints.h"
#include "model/game_characteristics.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kKeyPrefix = "CHARACTERISTIC_";

/// How many letters must be put in, taken out, changed or exchanged with their
/// neighbours to make one word of the other, capitals aside.
std::size_t Differences(std::string_view left, std::string_view right) {
  const auto is_same = [&](std::size_t of_left, std::size_t of_right) {
    return ToLower(left[of_left - 1]) == ToLower(right[of_right - 1]);
  };
  std::vector<std::size_t> before;
  std::vector<std::size_t> last;
  std::vector<std::size_t> row(right.size() + 1);
  for (std::size_t at = 0; at < row.size(); ++at) row[at] = at;
  for (std::size_t letter = 1; letter <= left.size(); ++letter) {
    before = std::exchange(last, row);
    row[0] = letter;
    for (std::size_t at = 1; at < row.size(); ++at) {
      row[at] = std::min({last[at - 1] + (is_same(letter, at) ? 0 : 1),
                          last[at] + 1, row[at - 1] + 1});
      if (letter > 1 && at > 1 && is_same(letter, at - 1) &&
          is_same(letter - 1, at)) {
        row[at] = std::min(row[at], before[at - 2] + 1);
      }
    }
  }
  return row.back();
}

std::string_view WithoutPrefix(std::string_view key) {
  const bool has_prefix =
      ToLower(key.substr(0, kKeyPrefix.size())) == ToLower(kKeyPrefix);
  return has_prefix ? key.substr(kKeyPrefix.size()) : key;
}

std::string UnknownNameText(std::string_view name) {
  const std::string text = Localized(
                               "The game knows no characteristic %1 and throws "
                               "this whole skill block away.",
                               {Quoted(name)}) +
                           " ";
  const std::string_view nearest =
      NearestWord(WithoutPrefix(name), kGameCharacteristics);
  const std::string meant = std::string(kKeyPrefix) + std::string(nearest);
  if (name == meant) {
    return text + Localized("Write #include \"%1\" at the top of the file.",
                            {"chars.h"});
  }
  return text + (nearest.empty()
                     ? Localized("Check the spelling; capital letters count.")
                     : Localized("Perhaps %1 is meant.", {meant}));
}

/// Of a sign behind a value.
std::string SignText(const GameToken& sign, const GameToken& last) {
  const std::string text = Localized(
                               "The game takes no %1 behind a value and throws "
                               "this whole skill block away.",
                               {Quoted(sign.text)}) +
                           " ";
  const bool is_number = last.kind == GameToken::Kind::kNumber;
  if (is_number && sign.Is("%")) {
    return text + Localized("Write %1 for %2 percent.",
                            {PlainDecimal(last.number / 100, kFloatDigits),
                             last.text});
  }
  if (is_number && (sign.Is("/") || sign.Is("*"))) {
    return text + Localized("Write the result, such as 0.5.");
  }
  return text + Localized("Remove it.");
}

/// The number as its author wrote it, of which the game has read no more than
/// these two words.
std::string WholeNumber(const GameToken& value, const GameToken& behind,
                        std::string_view line) {
  std::string read = value.text + behind.text;
  const std::size_t begin = line.find(read);
  if (begin == std::string_view::npos) return read;
  line.remove_prefix(begin);
  const std::size_t end = line.find_first_of(" \t\r\n/;}", read.size());
  return std::string(line.substr(0, end));
}

/// With digits for the letters that look like some: "0.3" for "O.3"; empty
/// where that makes no number.
std::string WithDigits(std::string_view word) {
  std::string number(word);
  for (char& letter : number) {
    if (letter == 'O' || letter == 'o') letter = '0';
    if (letter == 'I' || letter == 'l') letter = '1';
  }
  return IsNumericText(number) ? number : std::string();
}

/// In plain digits: "0.9" for "0,9", "0.9f" and "9e-1".
std::string PlainNumber(std::string number) {
  if (std::string digits = WithDigits(number); !digits.empty()) return digits;
  std::ranges::replace(number, ',', '.');
  double value = 0;
  const auto read =
      std::from_chars(number.data(), number.data() + number.size(), value);
  return read.ec == std::errc() ? PlainDecimal(value, kFloatDigits) : "0.6";
}

std::string TwoValuesText(const GameToken& value, const GameToken& behind) {
  return Localized(
      "The game finds %1 behind the value %2 and throws this whole skill block "
      "away.",
      {Quoted(behind.text), Quoted(value.text)});
}

std::string BehindValueText(const GameToken& token, const GameToken& value,
                            std::string_view line) {
  using Kind = GameToken::Kind;
  const bool is_in_number = value.kind == Kind::kNumber && !token.blank_before;
  if (is_in_number && (token.Is(",") || token.kind == Kind::kName)) {
    const std::string number = WholeNumber(value, token, line);
    return Localized(
        "The game does not understand the number %1 and throws this whole "
        "skill block away. Write %2.",
        {Quoted(number), PlainNumber(number)});
  }
  if (token.kind == Kind::kSign) return SignText(token, value);
  if (value.kind == Kind::kString && !token.blank_before) {
    return Localized(
        "The text %1 ends at its second quotation mark, and the game throws "
        "this whole skill block away. Write ' for a quotation mark inside a "
        "text.",
        {Quoted(value.text)});
  }
  return TwoValuesText(value, token) + " " +
         Localized(
             "Each key has one value; a text of several words stands in "
             "quotation marks.");
}

}  // namespace

std::string_view NearestWord(std::string_view wrong,
                             std::span<const std::string_view> words) {
  // Of a short word two letters are half of it.
  const std::size_t most = wrong.size() < 5 ? 1 : 2;
  constexpr std::size_t kMaxLength = 100;
  if (wrong.size() > kMaxLength) return {};
  std::string_view nearest;
  std::size_t fewest = most + 1;
  for (const std::string_view word : words) {
    const std::size_t differences = Differences(wrong, word);
    if (differences >= fewest) continue;
    fewest = differences;
    nearest = word;
  }
  return nearest;
}

std::string AdviceForStray(const GameToken& token, std::string_view expected,
                           std::string_view bytes) {
  if (token.file != 0) {
    return Localized(
        "It comes out of the file that this #include brings in, which does not "
        "belong here. Move the #include to where it belongs, or remove it.");
  }
  if (token.Is("}")) {
    return Localized("There is a } too many here or above. Remove it.");
  }
  if (token.Is(")") || token.Is("]")) {
    return Localized("Write } in its place.");
  }
  if (token.kind == GameToken::Kind::kSign) {
    return Localized("Remove it; a comment begins with //.");
  }
  if (token.Is("define") || token.Is("include")) {
    return Localized("Write %1.", {"#" + token.text});
  }
  if (token.kind == GameToken::Kind::kName &&
      !NearestWord(token.text, {&expected, 1}).empty()) {
    return Localized("Write %1.", {expected});
  }
  const bool is_behind_block = Contains(bytes.substr(0, token.span.begin), "}");
  if (token.kind != GameToken::Kind::kName) {
    return is_behind_block ? Localized("Perhaps there is a } too many above.")
                           : Localized("Remove it.");
  }
  return is_behind_block
             ? Localized("Perhaps %1 is meant, or there is a } too many above.",
                         {expected})
             : Localized("Perhaps %1 is meant.", {expected});
}

std::string AdviceForMacroValue(std::string_view value) {
  constexpr std::string_view kDigits = "0123456789.";
  if (value.empty()) return Localized("Write a number behind it.");
  const std::size_t digit = value.find_first_of(kDigits);
  if (digit != std::string_view::npos) {
    const std::size_t end =
        std::min(value.find_first_not_of(kDigits, digit), value.size());
    const std::string number(value.substr(digit, end - digit));
    const std::string_view rest = value.substr(end);
    if (rest.find_first_of(kDigits) == std::string_view::npos) {
      return Localized("Write %1 and nothing else.", {number});
    }
  }
  return Localized("Write one number, such as 50.");
}

Fault UnknownKey(const GameToken& key, const GameToken& last,
                 std::string_view line, const CharacterBlock& block) {
  using Kind = GameToken::Kind;
  if (key.Is("skill")) {
    return {"block-not-closed",
            Localized(
                "Skill block %1, which begins in line %2, has no } at its end, "
                "and the game throws it away. Write the } above this line.",
                {std::to_string(block.level), std::to_string(block.line)})};
  }
  if (key.line == last.line && last.line > 0) {
    return {"not-one-value", BehindValueText(key, last, line)};
  }
  if (key.kind == Kind::kName) {
    return {"unknown-characteristic", UnknownNameText(key.text)};
  }
  const std::string found = Quoted(key.text);
  if (key.Is(")") || key.Is("]")) {
    return {
        "not-a-key",
        Localized("The game finds %1 where it expects a key or a } and throws "
                  "this whole skill block away. Write } in its place.",
                  {found})};
  }
  return {"not-a-key",
          key.kind == Kind::kSign
              ? Localized(
                    "The game finds %1 in front of a key and throws this whole "
                    "skill block away. Remove it; a comment begins with //.",
                    {found})
              : Localized("The game finds %1, which belongs to no key, and "
                          "throws this whole skill block away. Write its key "
                          "in front of it, or remove it.",
                          {found})};
}

std::string TwoNumbersText(const GameToken& value, const GameToken& behind) {
  const std::string whole = value.text + behind.text;
  return TwoValuesText(value, behind) + " " +
         (std::ranges::count(whole, '.') > 1
              ? Localized("Each key has one number: remove one of them.")
              : Localized("Each key has one number, without a blank inside: "
                          "write %1, or remove one of them.",
                          {whole}));
}

std::string BadValueText(const GameToken& value, bool is_number_wanted,
                         std::string_view from) {
  if (value.kind == GameToken::Kind::kLiteral) {
    return Localized(
        "The game takes no text in single quotes (') and throws this whole "
        "skill block away. Put it in double ones (\").");
  }
  if (value.Is("-") || value.Is("+")) {
    return Localized(
        "The game takes no sign in front of a number and throws this whole "
        "skill block away. Write 0 or more, without a sign.");
  }
  if (value.kind == GameToken::Kind::kSign) {
    return Localized(
        "The game takes no %1 between a key and its value and throws this "
        "whole skill block away. Remove it.",
        {Quoted(value.text)});
  }
  const std::string text =
      Localized(
          "The game finds %1 behind this key, which is neither a number nor a "
          "text, and throws this whole skill block away.",
          {Quoted(value.text)}) +
      " ";
  if (!is_number_wanted) {
    return text + Localized("Put a text in quotation marks.");
  }
  const std::string number = WithDigits(WholeNumber(value, {}, from));
  return text + (number.empty()
                     ? Localized("Write a number, such as 0.6.")
                     : Localized("Write %1, in digits alone.", {number}));
}

}  // namespace fragsmith
