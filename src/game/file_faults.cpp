#include "game/file_faults.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "botfiles/game_text.h"
#include "game/lexer.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// The line on which a comment opens that never ends; 0 when there is none.
int OpenComment(std::string_view bytes) {
  int line = 1;
  char quote = '\0';
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const std::string_view rest = bytes.substr(at);
    if (bytes[at] == '\n') {
      ++line;
      quote = '\0';
    } else if (quote != '\0') {
      if (bytes[at] == '\\') ++at;
      if (bytes[at] == quote) quote = '\0';
    } else if (bytes[at] == '"' || bytes[at] == '\'') {
      quote = bytes[at];
    } else if (rest.starts_with("//")) {
      at = std::min(bytes.find('\n', at), bytes.size()) - 1;
    } else if (rest.starts_with("/*")) {
      const std::size_t end = rest.find("*/", 2);
      if (end == std::string_view::npos) return line;
      line += static_cast<int>(std::count(
          rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(end), '\n'));
      at += end + 1;
    }
  }
  return 0;
}

/// The line of the innermost { without a }; 0 when there is none.
int OpenBrace(std::string_view bytes) {
  GameLexer lexer(bytes);
  GameToken token;
  std::vector<int> open;
  while (lexer.Next(token) == GameLexer::Outcome::kToken) {
    if (token.Is("{")) open.push_back(token.line);
    if (token.Is("}") && !open.empty()) open.pop_back();
  }
  return open.empty() ? 0 : open.back();
}

/// Of a file that is no plain text; empty for one that may be.
std::string NoPlainText(std::string_view bytes) {
  if (bytes.starts_with("{\\rtf") || bytes.starts_with("PK\x03\x04")) {
    return Localized(
        "This file was saved by a word processor, with much in it that is not "
        "the bot's. Save it as plain text, without formatting.");
  }
  const std::string start = ToLower(bytes.substr(0, sizeof("<!doctype")));
  if (start.starts_with("<!doctype") || start.starts_with("<html")) {
    return Localized(
        "This file was saved by a browser, as a web page, with much in it that "
        "is not the bot's. Save it as plain text, without formatting.");
  }
  return {};
}

bool IsSavedAsUnicode(std::string_view bytes) {
  return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") ||
         (bytes.size() > 3 && (bytes[0] == '\0' || bytes[1] == '\0'));
}

}  // namespace

std::optional<Complaint> FaultOfBytes(const GameFile& file) {
  Complaint fault = {.id = {},
                     .severity = Severity::kWarning,
                     .place = {.file = file.name, .line = 1},
                     .text = {}};
  const std::string_view bytes = file.bytes;
  if (std::string text = NoPlainText(bytes); !text.empty()) {
    fault.id = "no-plain-text";
    fault.text = std::move(text);
    return fault;
  }
  if (IsSavedAsUnicode(bytes)) {
    fault.id = "saved-as-unicode";
    fault.text = Localized(
        "This file was saved as Unicode (UTF-16), and the game sees nothing in "
        "it. Save it as plain text: in Notepad choose ANSI under Encoding.");
    return fault;
  }
  if (HasOldLineEnds(bytes) &&
      (Contains(bytes, "//") || Contains(bytes, "#"))) {
    fault.id = "old-line-ends";
    fault.text = Localized(
        "The lines of this file end as on old Macintosh computers, and for the "
        "game it is all one line: the first // or #define swallows the rest of "
        "the file. Save it with the line ends of Windows or Linux.");
    return fault;
  }
  if (const std::size_t end = bytes.find('\0');
      end != std::string_view::npos &&
      bytes.find_first_not_of(std::string_view("\0\x1A \t\r\n", 6), end) !=
          std::string_view::npos) {
    const std::string_view above = bytes.substr(0, end);
    fault.id = "null-character";
    fault.place.line +=
        static_cast<int>(std::count(above.begin(), above.end(), '\n'));
    fault.text = Localized(
        "An invisible character with the code 0 stands in this line, and for "
        "the game the file ends there. Delete it, or type the line anew.");
    return fault;
  }
  if (const int line = OpenComment(bytes); line > 0) {
    fault.id = "open-comment";
    fault.place.line = line;
    fault.text = Localized(
        "A comment begins here with /* and never ends: the game passes over "
        "the rest of the file. Write */ where it should end.");
    return fault;
  }
  return std::nullopt;
}

std::string_view LineOfFile(std::string_view bytes, int line) {
  for (int at = 1; at < line; ++at) {
    const std::size_t end = bytes.find('\n');
    if (end == std::string_view::npos) return {};
    bytes.remove_prefix(end + 1);
  }
  bytes = bytes.substr(0, bytes.find('\n'));
  if (bytes.ends_with('\r')) bytes.remove_suffix(1);
  return bytes;
}

std::string AdviceForOpenBrace(std::string_view bytes) {
  const int line = OpenBrace(bytes);
  return " " + (line == 0 ? Localized("Perhaps a } is missing above.")
                          : Localized("The { in line %1 has no }. Write one "
                                      "where that block ends.",
                                      {std::to_string(line)}));
}

std::string AdviceForOpenText(std::string_view line) {
  const std::size_t quote = line.rfind('"');
  if (quote == std::string_view::npos) {
    return Localized("Put the whole text in double quotation marks (\").");
  }
  const std::string_view before = line.substr(0, quote);
  const std::size_t backslashes = quote - (before.find_last_not_of('\\') + 1);
  if (backslashes % 2 == 1) {
    return Localized(
        "The \\ in front of the last quotation mark makes that a part of the "
        "text. Remove the \\.");
  }
  return Localized(
      "Close the text on the same line; for a quotation mark inside a text "
      "write ', since the game never shows a \".");
}

std::string_view AdviceForCurlyQuotes(std::string_view line) {
  // In UTF-8 and in Windows-1252.
  const bool is_curly = Contains(line, "\xE2\x80\x9C") ||
                        Contains(line, "\xE2\x80\x9D") ||
                        Contains(line, "\x93") || Contains(line, "\x94");
  if (is_curly) {
    return Localizable(
        " There are curly quotation marks (“ ”) in this line, "
        "which the game does not see. Type straight ones (\").");
  }
  return {};
}

std::string_view AdviceForLine(std::string_view line) {
  if (const std::string_view advice = AdviceForCurlyQuotes(line);
      !advice.empty()) {
    return advice;
  }
  const std::size_t comment = line.find("/*");
  const std::size_t end = line.find("*/");
  if (comment < end && line.find("/*", comment + 2) < end &&
      line.find("*/", end + 2) != std::string_view::npos) {
    return Localizable(
        " A comment in this line has another inside, and ends at "
        "the first */. Remove the comment inside it.");
  }
  if (TrimBlanksAndTabs(line).ends_with('\\')) {
    return Localizable(
        " The \\ at the end of this line joins the next one to it. "
        "Remove it.");
  }
  return {};
}

}  // namespace fragsmith
