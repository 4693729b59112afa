#ifndef FRAGSMITH_TESTS_SUPPORT_GAME_LINES_H_
#define FRAGSMITH_TESTS_SUPPORT_GAME_LINES_H_

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "support/notes.h"

namespace fragsmith {

/// The bytes of a game file from a short form in which padding can be counted
/// by eye: ">" is a TAB, "|" a line end, "$" and "&" are the two beginnings
/// of keys. Line ends of the short form itself do not count.
inline std::string GameLines(std::string_view text) {
  static const std::map<char, std::string_view> meanings = {
      {'>', "\t"},
      {'|', "\r\n"},
      {'$', "CHARACTERISTIC_"},
      {'&', "#define "},
      {'\n', ""}};
  std::string bytes;
  for (const char letter : text) {
    const auto meaning = meanings.find(letter);
    if (meaning == meanings.end()) {
      bytes += letter;
    } else {
      bytes += meaning->second;
    }
  }
  return bytes;
}

/// The notes as a user reads them.
inline std::vector<std::string> Described(const Notes& notes) {
  std::vector<std::string> lines;
  for (const Note& note : notes.list()) lines.push_back(Describe(note));
  return lines;
}

/// The numbers of the lines that have a note.
inline std::vector<std::size_t> NotedLines(const Notes& notes) {
  std::vector<std::size_t> lines;
  for (const Note& note : notes.list()) lines.push_back(note.line);
  return lines;
}

/// A hostile file: the start, then the part until it has so many megabytes.
inline std::string Repeated(std::string_view part, std::string_view start = {},
                            std::size_t megabytes = 10) {
  std::string text(start);
  while (text.size() < (megabytes << 20U)) text += part;
  return text;
}

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_SUPPORT_GAME_LINES_H_
