#include "checks/chat_line_checks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "chat/chat_catalogue.h"
#include "chat/vocabulary.h"
#include "game/chat_type_facts.h"
#include "game/lexer.h"
#include "game/limits.h"
#include "game/plain_letters.h"
#include "game/ready_lines.h"
#include "game/spoken_line.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

using Kind = ChatItem::Kind;

/// Begins the game's own mark of a variable or a word list in a line.
constexpr char kMark = '\x01';

bool IsControl(char letter) {
  return static_cast<unsigned char>(letter) < ' ' && letter != '\t';
}

bool HasBlankingControl(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char letter) {
    return IsControl(letter) && letter != kMark;
  });
}

std::string WithoutControls(std::string text) {
  std::replace_if(text.begin(), text.end(), IsControl, ' ');
  return text;
}

/// These end a text, or the file; the others stay in it.
bool HasLineEnd(std::string_view text) {
  return text.find_first_of(std::string_view("\n\0", 2)) !=
         std::string_view::npos;
}

/// The text with each backslash doubled that the game would not understand.
std::string WithGoodBackslashes(std::string_view text) {
  std::string good;
  for (std::size_t at = 0; at < text.size(); ++at) {
    good += text[at];
    if (text[at] != '\\') continue;
    if (at + 1 < text.size() && Contains(kEscapes, text.substr(at + 1, 1))) {
      good += text[++at];
    } else {
      good += '\\';
    }
  }
  return good;
}

bool HasBadBackslash(std::string_view text) {
  return Contains(text, "\\") && WithGoodBackslashes(text).size() > text.size();
}

std::string Replaced(std::string text, char old_letter, char new_letter) {
  std::replace(text.begin(), text.end(), old_letter, new_letter);
  return text;
}

std::string ReplacedAll(std::string text, std::string_view old_part,
                        std::string_view new_part) {
  std::size_t at = 0;
  while ((at = text.find(old_part, at)) != std::string::npos) {
    text.replace(at, old_part.size(), new_part);
    at += new_part.size();
  }
  return text;
}

/// The line with the plain forms of all that the game would change.
std::string InGameCharacters(const std::string& line) {
  std::string text = WithoutControls(InPlainLetters(line));
  text = Replaced(std::move(text), ';', ',');
  text = Replaced(std::move(text), '\t', ' ');
  text = ReplacedAll(std::move(text), "%", " percent");
  while (Contains(text, "//") || Contains(text, "/*")) {
    text = ReplacedAll(std::move(text), "//", "/");
    text = ReplacedAll(std::move(text), "/*", "*");
  }
  while (Contains(text, "  ")) text = ReplacedAll(std::move(text), "  ", " ");
  return std::string(TrimBlanks(text));
}

/// What happens to the characters of one text, as a sentence goes on.
void AddChanges(std::string_view text, std::vector<std::string>& changes) {
  const auto add = [&](bool happens, std::string_view english) {
    if (!happens) return;
    std::string change = Localized(english);
    if (std::ranges::count(changes, change) == 0) {
      changes.push_back(std::move(change));
    }
  };
  add(HasAccents(text),
      Localizable(
          "letters with accents and other special signs become blanks"));
  add(Contains(text, "%"), Localizable(R"("%" becomes a dot)"));
  // Between double quotes these stay.
  const std::string shown = AsOnScreen(text);
  add(Contains(text, "//") && !Contains(shown, "//"),
      Localizable("everything from \"//\" on is cut off"));
  add(Contains(text, "/*") && !Contains(shown, "/*"),
      Localizable(R"("/*" takes away all up to "*/")"));
  add(Contains(text, ";"), Localizable("a semicolon becomes a blank"));
  add((Contains(text, "  ") && !Contains(shown, "  ")) || Contains(text, "\t"),
      Localizable("several blanks become one"));
  add(HasBlankingControl(text),
      Localizable("control characters become blanks"));
  add(Contains(text, {&kMark, 1}),
      Localizable("the control character with the code 1 goes away, and may "
                  "take what follows along"));
  add(Contains(text, "\""), Localizable("double quotes are dropped"));
}

/// The variable as the editor writes it, or its number.
std::string ShownVariable(ChatTypeId type, int variable) {
  for (const int pointer : ChatTypeAt(type).Pointers()) {
    const ChatPointer& row = ChatPointerAt(pointer);
    if (row.Item() == std::to_string(variable)) {
      return std::string(row.Variable);
    }
  }
  return Localized("variable %1", {std::to_string(variable)});
}

std::string ShownList(const std::string& name) {
  const auto* const list =
      std::find_if(kWordLists.begin(), kWordLists.end(),
                   [&name](const WordList& row) { return row.Key == name; });
  return list == kWordLists.end() ? Quoted(name) : std::string(list->Variable);
}

bool IsPointerSomewhere(std::string_view variable) {
  return std::any_of(
      kChatPointers.begin(), kChatPointers.end(),
      [variable](const ChatPointer& row) { return row.Variable == variable; });
}

/// What can stand in the place of a ready-made line. Its author chose that one,
/// so that it is no safe mend.
std::vector<Mend> ByOtherLine(const CheckContext& context,
                              const CheckedLine& line) {
  if (!IsReadyMade(*line.text)) return {};
  std::string other = OtherChatLine(context.bot, line.type, WordsOf(context));
  std::string title =
      IsReadyMade(other)
          ? Localized("Use %1 in its place", {ShownText(other)})
          : Localized("Use the line %1", {Quoted(other, std::string::npos)});
  return {SetLine(line, std::move(other), std::move(title))};
}

std::string_view TooLongText(bool is_counted, bool overflows) {
  if (overflows) {
    return is_counted
               ? Localizable(
                     "The game has room for %1 characters in a line, and this "
                     "one takes %2, in a way that the game does not notice in "
                     "time: it may crash. Shorten the line.")
               : Localizable(
                     "The game has room for %1 characters in a line, and this "
                     "one takes too many of them, in a way that the game does "
                     "not notice in time: it may crash. Shorten the line.");
  }
  return is_counted
             ? Localizable(
                   "The game has room for %1 characters in a line, and this "
                   "one takes %2: the bot is not added. Shorten the line.")
             : Localizable(
                   "The game has room for %1 characters in a line, and this "
                   "one takes too many of them: the bot is not added. Shorten "
                   "the line.");
}

/// Calls the function with each line that the game can read.
template <typename Function>
void ForEachReadable(const CheckContext& context, Function function) {
  for (const CheckedLine& line : context.lines) {
    if (!line.message.is_broken) function(line);
  }
}

}  // namespace

std::string_view BracedPart(std::string_view text) {
  const std::size_t open = text.find('{');
  if (open == std::string_view::npos) return {};
  const std::size_t close = text.find('}', open);
  if (close == std::string_view::npos) return {};
  const bool is_double = text.substr(close, 2) == "}}";
  return text.substr(open, close - open + (is_double ? 2 : 1));
}

void CheckLineQuotes(const CheckContext& context, FindingList& findings) {
  for (const CheckedLine& line : context.lines) {
    if (!line.message.is_broken || HasLineEnd(*line.text) ||
        HasBadBackslash(*line.text)) {
      continue;
    }
    const bool has_quote = Contains(*line.text, "\"");
    std::vector<Mend> mends;
    if (has_quote) {
      mends.push_back(
          Safe(SetLine(line, Replaced(*line.text, '"', '\''),
                       Localized("Use single quotes in the line"))));
    }
    findings.Add(
        PlaceOf(line),
        Localized(has_quote
                      ? Localizable("A double quote ends the text early, the "
                                    "game cannot read the chat file and does "
                                    "not add the bot. Use single quotes.")
                      : Localizable("The game cannot read this line and does "
                                    "not add the bot. Write it anew.")),
        std::move(mends));
  }
}

void CheckLineBackslashes(const CheckContext& context, FindingList& findings) {
  for (const CheckedLine& line : context.lines) {
    if (!HasBadBackslash(*line.text) ||
        !(line.message.is_broken || line.message.is_cut)) {
      continue;
    }
    const bool is_last = line.text->ends_with('\\') && line.message.is_broken;
    std::string text = Localized(
        is_last
            ? Localizable(
                  "The line ends with a backslash, which swallows the end of "
                  "the text: the game cannot read the chat file and does not "
                  "add the bot. Take it out, or write two of them.")
            : Localizable("The game does not know what the backslash in this "
                          "line is to mean, complains and cuts the text there. "
                          "Take it out, or write two of them."));
    findings.Add(
        PlaceOf(line), std::move(text),
        {Safe(SetLine(
             line, WithGoodBackslashes(*line.text),
             Localized("Write two backslashes, of which the game speaks one"))),
         SetLine(line, ReplacedAll(*line.text, "\\", ""),
                 Localized("Take the backslashes out"))},
        line.message.is_broken ? Severity::kError : Severity::kWarning);
  }
}

void CheckLineControls(const CheckContext& context, FindingList& findings) {
  for (const CheckedLine& line : context.lines) {
    if (!line.message.is_broken || !HasLineEnd(*line.text)) continue;
    findings.Add(
        PlaceOf(line),
        Localized("The line has a line end in it, which breaks the text off: "
                  "the game cannot read the chat file and does not add the "
                  "bot. Make two lines of it, or put a blank there."),
        {Safe(SetLine(line, WithoutControls(*line.text),
                      Localized("Put a blank in its place")))});
  }
}

void CheckLineLength(const CheckContext& context, FindingList& findings) {
  ForEachReadable(context, [&](const CheckedLine& line) {
    const ChatSize size = SizeOf(line.message);
    if (size.fit == ChatFit::kFits) return;
    const bool overflows = size.fit == ChatFit::kOverflows;
    // A variable or a word list needs more room than it takes.
    const bool is_counted = size.length > limits::kMaxEncodedBytes;
    findings.Add(PlaceOf(line),
                 Localized(TooLongText(is_counted, overflows),
                           {std::to_string(limits::kMaxEncodedBytes),
                            std::to_string(size.length)}));
  });
}

void CheckLineOnScreen(const CheckContext& context, FindingList& findings) {
  const WordLists& lists = WordsOf(context);
  ForEachReadable(context, [&](const CheckedLine& line) {
    if (SizeOf(line.message).fit != ChatFit::kFits) return;
    const std::size_t longest = LongestSpoken(line.type, line.message, lists);
    if (longest <= limits::kSafeSpokenBytes) return;
    const bool is_always = std::all_of(
        line.message.items.begin(), line.message.items.end(),
        [](const ChatItem& item) { return item.kind == Kind::kText; });
    const bool is_beyond = !is_always && longest > limits::kMaxEncodedBytes;
    std::string_view english = Localizable(
        "The line has %1 characters; the screen shows some %2 and cuts the "
        "rest. Shorten it.");
    if (is_beyond) {
      english = Localizable(
          "With the longest names and words the line has more than %1 "
          "characters; the screen shows some %2 and cuts the rest. Shorten "
          "it.");
    } else if (!is_always) {
      english = Localizable(
          "With the longest names and words the line has %1 characters; the "
          "screen shows some %2 and cuts the rest. Shorten it.");
    }
    std::string text = Localized(
        english,
        {std::to_string(is_beyond ? limits::kMaxEncodedBytes : longest),
         std::to_string(limits::kSafeSpokenBytes)});
    findings.Add(PlaceOf(line), std::move(text), ByOtherLine(context, line));
  });
}

void CheckLineCharacters(const CheckContext& context, FindingList& findings) {
  ForEachReadable(context, [&](const CheckedLine& line) {
    std::vector<std::string> changes;
    for (const ChatItem& item : line.message.items) {
      if (item.kind == Kind::kText) AddChanges(item.text, changes);
    }
    if (changes.empty()) return;
    std::vector<Mend> mends;
    std::string plain = InGameCharacters(*line.text);
    if (plain != *line.text && !plain.empty()) {
      mends.push_back(
          Safe(SetLine(line, std::move(plain),
                       Localized("Use plain letters and signs in the line"))));
    }
    findings.Add(
        PlaceOf(line),
        Localized("The game changes the line on its way to the screen: %1.",
                  {Enumeration(changes)}),
        std::move(mends));
  });
}

void CheckLineWords(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr || context.game->words.empty()) return;
  ForEachReadable(context, [&](const CheckedLine& line) {
    for (const ChatItem& item : line.message.items) {
      if (item.kind != Kind::kWord ||
          context.game->words.Find(item.text) != nullptr) {
        continue;
      }
      const bool is_member = IsReadyMade(*line.text);
      if (is_member && context.game->words.Find(item.text + "0") != nullptr) {
        findings.Add(
            PlaceOf(line),
            Localized(
                "Your game calls %1 %2, and a file made anew says %3, which it "
                "does not know. A file that says %2 already stays good.",
                {ShownText(*line.text), item.text + "0", item.text}),
            ByOtherLine(context, line));
        return;
      }
      findings.Add(
          PlaceOf(line),
          Localized(
              is_member
                  ? Localizable(
                        "Your game has no ready-made line %1: in its place the "
                        "bot speaks the remains of an earlier line. Use "
                        "another one or write a text.")
                  : Localizable("Your game has no word list %1: in its place "
                                "the bot speaks the remains of an earlier "
                                "line. Use another one or write a text."),
              {is_member ? ShownText(*line.text) : ShownList(item.text)}),
          ByOtherLine(context, line));
      return;
    }
  });
}

void CheckLineVariables(const CheckContext& context, FindingList& findings) {
  ForEachReadable(context, [&](const CheckedLine& line) {
    for (const ChatItem& item : line.message.items) {
      if (item.kind != Kind::kVariable) continue;
      // The game complains of those, and the checks of files tell it.
      if (item.variable >= kFirstUnknownVariable) continue;
      const ChatFill fill = FillOf(line.type, item.variable);
      if (fill != ChatFill::kNothing && fill != ChatFill::kInvalid) continue;
      const std::string variable = ShownVariable(line.type, item.variable);
      std::vector<Mend> mends;
      if (Contains(*line.text, variable)) {
        mends.push_back(
            Safe(SetLine(line, ReplacedAll(*line.text, variable, ""),
                         Localized("Take %1 out of the line", {variable}))));
      }
      findings.Add(
          PlaceOf(line),
          Localized(fill == ChatFill::kInvalid
                        ? Localizable("In this situation the game has nothing "
                                      "for %1: the bot says \"[invalid var]\" "
                                      "in its place. Take it out of the line.")
                        : Localizable("In this situation the game has nothing "
                                      "for %1: the bot leaves it out. Take it "
                                      "out of the line, or choose another."),
                    {variable}),
          std::move(mends));
      return;
    }
  });
}

void CheckLineBraces(const CheckContext& context, FindingList& findings) {
  ForEachReadable(context, [&](const CheckedLine& line) {
    for (const ChatItem& item : line.message.items) {
      if (item.kind != Kind::kText) continue;
      const std::string_view part = BracedPart(item.text);
      if (part.empty()) continue;
      const std::string shown = ShownText(part);
      std::string_view english = Localizable(
          "The game does not know %1: the bot speaks it as it stands there, "
          "braces and all. Take it out of the line.");
      if (part.starts_with("{{")) {
        english = Localizable(
            "A ready-made line such as %1 must stand alone, with nothing "
            "before or behind it: the bot speaks it as it stands there, braces "
            "and all. Take it out of the line.");
      } else if (IsPointerSomewhere(part)) {
        english = Localizable(
            "The situation %2 has no %1: the bot speaks it as it stands there, "
            "braces and all. Take it out of the line.");
      }
      findings.Add(PlaceOf(line),
                   Localized(english, {shown, QuotedChatType(line.type)}),
                   {SetLine(line, ReplacedAll(*line.text, part, ""),
                            Localized("Take %1 out of the line", {shown}))});
      return;
    }
  });
}

}  // namespace fragsmith
