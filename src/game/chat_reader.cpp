#include "game/chat_reader.h"

#include <utility>

#include "chat/vocabulary.h"
#include "game/advice.h"
#include "game/chat_message.h"
#include "game/limits.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

using Kind = ChatItem::Kind;

bool Fits(GameSource& source, const GameToken& token, ChatFit fit) {
  switch (fit) {
    case ChatFit::kFits:
      return true;
    case ChatFit::kTooLong:
      source.Complain(
          "chat-line-too-long", token,
          Localized("This chat line is too long: the game has room for %1 "
                    "characters, counting 4 for a variable and the name and 3 "
                    "more for a word list, and each of these may begin behind "
                    "%2 characters at most. Shorten it.",
                    {std::to_string(limits::kMaxEncodedBytes),
                     std::to_string(limits::kMaxBeforeItem)}));
      return false;
    case ChatFit::kOverflows:
      source.Complain(
          "chat-line-crash", token,
          Localized("This chat line is too long, in a way that the game does "
                    "not notice in time: it may crash. Shorten the line to %1 "
                    "characters, counting 3 more for each word list.",
                    {std::to_string(limits::kMaxEncodedBytes)}));
      return false;
  }
  return false;
}

/// Where it stands in the bot's own file.
TextSpan SpanOf(const GameToken& token) {
  return token.file == 0 ? token.span : TextSpan();
}

/// Where "," or ";" belongs behind a part of a line and something else stands:
/// most often a sign that was forgotten further up.
void ComplainOfEnd(GameSource& source, const GameChatType& type,
                   const GameToken& last, const GameToken& next) {
  const bool is_same_file = last.file == next.file;
  const bool is_below = is_same_file && next.line > last.line;
  const bool is_new_type =
      last.Is("type") && next.kind == GameToken::Kind::kString;
  if (is_new_type && last.file != 0 && !type.open.empty()) {
    source.Complain(
        "include-in-type", last,
        Localized(
            "The file that is included here has types of its own, and the type "
            "%1 has not ended. Move the #include out of the type.",
            {Quoted(type.name)}));
  } else if (is_new_type) {
    source.Complain(
        "chat-type-not-closed", last,
        Localized("Here the next type begins, but the } of the type %1 above "
                  "is missing. Write it in front of this line.",
                  {Quoted(type.name)}));
  } else if (is_below) {
    source.Complain("chat-semicolon-missing", last,
                    Localized("A ; is missing at the end of this line: behind "
                              "%1 the game finds %2 in line %3.",
                              {Quoted(last.text), Quoted(next.text),
                               std::to_string(next.line)}));
  } else if (last.kind == GameToken::Kind::kString &&
             (next.kind == GameToken::Kind::kName ||
              next.kind == GameToken::Kind::kNumber)) {
    source.Complain(
        "chat-text-ends-early", next,
        Localized("The text %1 ends here, and the game does not expect %2 "
                  "behind it. A quotation mark inside a text ends it: write ' "
                  "in its place. Between two parts of a line stands a comma.",
                  {Quoted(last.text), Quoted(next.text)}));
  } else if (last.kind == GameToken::Kind::kName &&
             next.kind != GameToken::Kind::kString) {
    source.Complain(
        "chat-text-unquoted", last,
        Localized("The game takes %1 for the name of a word list, as it stands "
                  "outside quotation marks, and does not expect %2 behind it. "
                  "Put the text in quotation marks (\").",
                  {Quoted(last.text), Quoted(next.text)}));
  } else {
    source.Complain(
        "chat-separator-missing", next,
        Localized(
            "The game expects a comma or a ; behind %1 but finds %2. Write a ; "
            "at the end of the line, and a comma between its parts.",
            {Quoted(last.text), Quoted(next.text)}));
  }
}

/// What to say of a word that is no part of a line.
std::string PartText(const GameToken& token, bool is_first) {
  if (token.kind == GameToken::Kind::kLiteral) {
    return Localized(
        "The game takes no text in single quotes ('). Put it in double ones "
        "(\").");
  }
  if (token.kind == GameToken::Kind::kNumber) {
    return Localized(
        "The game finds the number %1 in a chat line, and a variable has no "
        "point. Write a whole number from 0 to 5.",
        {Quoted(token.text)});
  }
  if (token.Is(";")) {
    return is_first
               ? Localized("There is no line in front of this ;. Remove it.")
               : Localized(
                     "The line ends in a comma. Remove the comma in front of "
                     "the ;.");
  }
  if (token.Is("}")) {
    return Localized(
        "The line ends in a comma. Write a ; in place of the comma.");
  }
  if (token.Is(",")) {
    return Localized(
        "There is nothing in front of this comma. Remove the comma.");
  }
  if (token.Is("{")) {
    return is_first
               ? Localized(
                     "A chat type begins with one {, and a ready-made line is "
                     "its bare name, such as HELLO0. Remove the brace.")
               : Localized(
                     "In the file a variable is a number outside the quotation "
                     "marks, such as \"well done, \", 0; and a word list its "
                     "bare name. Write it without braces.");
  }
  return Localized(
      "The game takes no %1 outside quotation marks. Remove it; a comment "
      "begins with //.",
      {Quoted(token.text)});
}

/// Of a file without the bot's chat; the other one that it has may be none.
std::string NoChatText(std::string_view chat_name, const std::string& other) {
  const std::string name = Quoted(chat_name);
  const std::string text = other.empty()
                               ? Localized(
                                     "The game looks for a chat named %1 in "
                                     "this file and finds none.",
                                     {name})
                               : Localized(
                                     "The game looks for a chat named %1 in "
                                     "this file but finds one named %2.",
                                     {name, Quoted(other)});
  return text + " " +
         Localized("The name behind chat must equal %1 of the character file.",
                   {"CHARACTERISTIC_CHAT_NAME"});
}

/// One line of a chat type, up to its ";".
bool ReadLine(GameSource& source, const GameChatType& type,
              GameChatLine& line) {
  GameToken token;
  ChatRoom room;
  while (true) {
    if (!source.ReadAny(token)) return false;
    ChatFit fit = ChatFit::kFits;
    if (line.words.empty()) line.span = SpanOf(token);
    // The kind is a part: a text is no name.
    line.words += static_cast<char>('0' + static_cast<int>(token.kind));
    line.words += token.text + '\n';
    // It may do harm further down, and is heard in any case.
    (void)source.ComplainOfLeak(token);
    if (token.kind == GameToken::Kind::kString) {
      fit = room.Add(Kind::kText, token.text.size());
    } else if (token.kind == GameToken::Kind::kName ||
               (token.kind == GameToken::Kind::kNumber && token.is_whole)) {
      fit = room.Add(Kind::kWord, token.text.size());
    } else {
      source.Complain(
          "chat-syntax", token,
          PartText(token, line.words.find('\n') + 1 == line.words.size()));
      return false;
    }
    if (!Fits(source, token, fit)) return false;
    GameToken next;
    if (source.Take(";", &next)) {
      line.span = {line.span.begin, line.span.empty() ? 0 : SpanOf(next).end};
      return true;
    }
    if (!source.ReadAny(next)) return false;
    if (!next.Is(",")) {
      ComplainOfEnd(source, type, token, next);
      return false;
    }
  }
}

bool ReadTypes(GameSource& source, GameChat& chat) {
  GameToken token;
  while (source.ReadAny(token)) {
    if (token.Is("}")) return true;
    if (!token.Is("type")) {
      source.Complain("chat-syntax", token,
                      Localized("Between chat types the game finds %1 where it "
                                "expects type and a name in quotation marks.",
                                {Quoted(token.text)}) +
                          " " + AdviceForStray(token, "type", source.bytes()));
      return false;
    }
    if (!source.ExpectString(token)) return false;
    GameChatType& type = chat.types.emplace_back();
    type.name = token.text;
    GameToken brace;
    if (!source.ExpectBrace(token, &brace)) return false;
    type.open = SpanOf(brace);
    while (!source.Take("}", &token)) {
      GameChatLine line;
      if (!ReadLine(source, type, line)) return false;
      type.lines.push_back(std::move(line));
    }
    type.close = SpanOf(token);
  }
  return false;
}

}  // namespace

bool ReadGameChat(const GameFile& file, std::string_view chat_name,
                  const IncludeLookup& game, Complaints& findings,
                  GameChat* chat) {
  GameChat untold;
  GameChat& found = chat != nullptr ? *chat : untold;
  GameSource source(file, game, findings);
  GameToken token;
  bool is_found = false;
  std::string other;
  int line = 0;
  while (source.Read(token)) {
    if (!token.Is("chat")) {
      source.Complain(
          "outside-chat", token,
          Localized("The game finds %1 outside a chat. Here it expects chat, a "
                    "name in quotation marks and {.",
                    {Quoted(token.text)}) +
              " " + AdviceForStray(token, "chat", source.bytes()));
      return false;
    }
    if (!source.ExpectString(token)) return false;
    if (token.file == 0) line = token.line;
    const std::string name = token.text;
    GameToken brace;
    if (!source.ExpectBrace(token, &brace)) return false;
    if (EqualIgnoringCase(name, chat_name)) {
      found.open = SpanOf(brace);
      if (!ReadTypes(source, found)) return false;
      is_found = true;
    } else {
      other = name;
      found.other_name = name;
      if (!source.SkipBlock()) return false;
    }
  }
  if (source.is_endless()) return false;
  if (!is_found) {
    findings.Add("chat-name", Severity::kError, file.name, line,
                 NoChatText(chat_name, other));
  }
  return is_found;
}

}  // namespace fragsmith
