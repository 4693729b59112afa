#include "checks/file_chat.h"

#include <cstddef>

#include "support/code_page.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// A line's room in the game, with the zero at its end.
constexpr std::size_t kRoom = 256;
/// What the game expects of a word list or a variable, whatever its name; it
/// then writes as many bytes as the name needs, beyond the room as well.
constexpr std::size_t kExpectedOfName = 7;
constexpr std::size_t kMarks = 3;

void TooLong(GameSource& source, const GameToken& token) {
  source.Complain("chat-line-too-long", token,
                  "This chat line is too long: the game has room for 255 "
                  "characters, counting 4 for a variable and the name and 3 "
                  "more for a word list. The bot is not added. Shorten it.");
}

/// One line of a chat type, up to its ";".
bool ReadLine(GameSource& source) {
  GameToken token;
  std::size_t length = 0;
  while (true) {
    if (!source.ReadAny(token)) return false;
    if (token.kind == GameToken::Kind::kString) {
      length += token.text.size();
      if (length + 1 > kRoom) {
        TooLong(source, token);
        return false;
      }
    } else if (token.kind == GameToken::Kind::kName ||
               (token.kind == GameToken::Kind::kNumber && token.is_whole)) {
      if (length + kExpectedOfName > kRoom) {
        TooLong(source, token);
        return false;
      }
      length += token.text.size() + kMarks;
      if (length + 1 > kRoom) {
        source.Complain("chat-line-crash", token,
                        "This chat line is too long, in a way that the game "
                        "does not notice in time: it may crash. Shorten the "
                        "line to 255 characters, counting 3 more for each "
                        "word list.");
        return false;
      }
    } else {
      source.Complain("chat-syntax", token,
                      "The game does not expect " + Quoted(token.text) +
                          " in a chat line; the bot is not added. A line is "
                          "made of texts in quotation marks, numbers and "
                          "names of word lists, with a comma between each and "
                          "a ; at the end. Perhaps the ; of the line above, or "
                          "a quotation mark, is missing.");
      return false;
    }
    if (source.Take(";")) return true;
    if (!source.Expect(",")) return false;
  }
}

bool ReadTypes(GameSource& source) {
  GameToken token;
  while (source.ReadAny(token)) {
    if (token.Is("}")) return true;
    if (!token.Is("type")) {
      source.Complain("chat-syntax", token,
                      "Between chat types the game finds " +
                          Quoted(token.text) +
                          " where it expects type and a name in quotation "
                          "marks; the bot is not added. Perhaps there is a } "
                          "too many above.");
      return false;
    }
    if (!source.ExpectString(token) || !source.Expect("{")) return false;
    while (!source.Take("}")) {
      if (!ReadLine(source)) return false;
    }
  }
  return false;
}

}  // namespace

bool ReadGameChat(const GameFile& file, std::string_view chat_name,
                  const IncludeLookup& game, FileFindings& findings) {
  GameSource source(file, game, findings);
  GameToken token;
  bool is_found = false;
  std::string other;
  while (source.Read(token)) {
    if (!token.Is("chat")) {
      source.Complain("outside-chat", token,
                      "The game finds " + Quoted(token.text) +
                          " outside a chat; the bot is not added. Here it "
                          "expects chat, a name in quotation marks and {. "
                          "Perhaps there is a } too many above.");
      return false;
    }
    if (!source.ExpectString(token) || !source.Expect("{")) return false;
    if (EqualIgnoringCase(token.text, chat_name)) {
      if (!ReadTypes(source)) return false;
      is_found = true;
    } else {
      other = token.text;
      if (!source.SkipBlock()) return false;
    }
  }
  if (source.is_endless()) return false;
  if (!is_found) {
    std::string text = "The game looks for a chat named " + Quoted(chat_name) +
                       " in this file";
    text += other.empty() ? " and finds none"
                          : " but finds one named " + Quoted(other);
    findings.Add("chat-name", Severity::kError, file.name, 0,
                 text +
                     "; the bot is not added. The name behind chat must equal "
                     "CHARACTERISTIC_CHAT_NAME of the character file.");
  }
  return is_found;
}

}  // namespace fragsmith
