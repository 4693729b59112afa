#include "game/plain_letters.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace fragsmith {
namespace {

/// From 0x80 on.
constexpr std::array<std::string_view, 128> kPlain = {
    "EUR", "",     "'",   "f", "'",  "...", "",   "",  "^", "",  "S",   "<",
    "OE",  "",     "Z",   "",  "",   "'",   "'",  "'", "'", "*", "-",   "-",
    "",    "(tm)", "s",   ">", "oe", "",    "z",  "Y", " ", "!", "c",   "GBP",
    "",    "Y",    "|",   "",  "",   "(c)", "a",  "<", "",  "-", "(r)", "-",
    "o",   "+-",   "2",   "3", "'",  "u",   "",   ".", "",  "1", "o",   ">",
    "1/4", "1/2",  "3/4", "?", "A",  "A",   "A",  "A", "A", "A", "AE",  "C",
    "E",   "E",    "E",   "E", "I",  "I",   "I",  "I", "D", "N", "O",   "O",
    "O",   "O",    "O",   "x", "O",  "U",   "U",  "U", "U", "Y", "Th",  "ss",
    "a",   "a",    "a",   "a", "a",  "a",   "ae", "c", "e", "e", "e",   "e",
    "i",   "i",    "i",   "i", "d",  "n",   "o",  "o", "o", "o", "o",   "/",
    "o",   "u",    "u",   "u", "u",  "y",   "th", "y"};

}  // namespace

std::string InPlainLetters(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (const char letter : text) {
    if (IsAccented(letter)) {
      plain += kPlain.at(
          static_cast<std::size_t>(static_cast<unsigned char>(letter) - 0x80));
    } else {
      plain += letter;
    }
  }
  return plain;
}

bool HasAccents(std::string_view text) {
  return std::any_of(text.begin(), text.end(), IsAccented);
}

}  // namespace fragsmith
