#include <algorithm>
#include <string>

#include "chat/chat_catalogue.h"
#include "chat/chat_line.h"
#include "fuzz/oracle.h"
#include "model/bot.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// True for a line that writing and reading keep. A quote of the user's own is
/// not escaped and may part the text otherwise, a text that is a word list's
/// key becomes that list, and a member's number may lose its zeros.
bool IsKept(std::string_view line) {
  return !Contains(line, "\"") && !line.starts_with("{{") &&
         std::none_of(
             kWordLists.begin(), kWordLists.end(),
             [line](const WordList& list) { return list.Key == line; });
}

/// Of a line with very many pieces only the first ones become variables again.
bool HasFewPieces(std::string_view in_file) {
  return std::count(in_file.begin(), in_file.end(), '"') <= 36;
}

/// Editor form, file form and back.
void RoundTrip(ChatTypeId type, const std::string& line) {
  const std::string in_file = ChatLineToFile(type, line);
  const std::string back = ChatLineFromFile(type, in_file).text;
  const std::string again = ChatLineToFile(type, back);
  if (IsKept(line) && HasFewPieces(in_file)) {
    ExpectEqual(line, back, "editor form");
    ExpectEqual(in_file, again, "file form");
  }
  if (HasFewPieces(again)) {
    ExpectEqual(again, ChatLineToFile(type, ChatLineFromFile(type, again).text),
                "file form, once more");
  }
}

}  // namespace

// The first byte chooses the chat type, the others are a line.
void FuzzOne(std::string_view bytes) {
  if (bytes.empty()) return;
  const ChatTypeId type = kAllChatTypes.at(
      static_cast<unsigned char>(bytes.front()) % kChatTypeCount);
  std::string line = RemoveTabs(bytes.substr(1));
  std::erase_if(line,
                [](char letter) { return letter == '\r' || letter == '\n'; });
  RoundTrip(type, ChatLineFromFile(type, TrimBlanks(line)).text);
  RoundTrip(type, line);
}

}  // namespace fragsmith
