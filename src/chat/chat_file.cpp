#include "chat/chat_file.h"

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <utility>

#include "botfiles/game_text.h"
#include "botfiles/keyed_line.h"
#include "botfiles/left_out.h"
#include "chat/chat_catalogue.h"
#include "chat/chat_line.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr ChatTypeId kLevelEndType{3};

/// The chat type that a line names; nothing for an unknown one. level_end
/// also begins the keys of two other types.
std::optional<ChatTypeId> TypeIn(std::string_view line) {
  // As in most lines, where nothing else can stand that is a type.
  constexpr std::string_view kWord = "type \"";
  std::string_view name = TrimBlanksAndTabs(line);
  if (name.starts_with(kWord) && name.ends_with('"')) {
    name = name.substr(kWord.size(), name.size() - kWord.size() - 1);
    for (const ChatTypeId type : kAllChatTypes) {
      if (ChatTypeAt(type).Key == name) return type;
    }
  }
  for (const ChatTypeId type : kAllChatTypes) {
    if (type == kLevelEndType && Contains(line, "level_end_")) continue;
    if (Contains(line, ChatTypeAt(type).Key)) return type;
  }
  // Capitals do not count for the game.
  const std::string lower = ToLower(line);
  if (lower != line) return TypeIn(lower);
  return std::nullopt;
}

/// True for a line that begins a block although the one before is open.
bool IsTypeLine(std::string_view line) {
  constexpr std::string_view kWord = "type";
  if (!line.starts_with(kWord)) return false;
  line = TrimBlanks(line.substr(kWord.size()));
  return line.starts_with('"') && Contains(line.substr(1), "\"");
}

/// A chat line in file form without what says nothing: blanks and TABs
/// between texts, and empty texts beside others.
std::string Condensed(std::string_view line) {
  std::string condensed;
  bool is_quoted = false;
  for (const char letter : line) {
    if (letter == '"') is_quoted = !is_quoted;
    if (is_quoted || (letter != ' ' && letter != '\t')) condensed += letter;
  }
  for (const std::string_view empty : {",\"\"", "\"\","}) {
    for (std::size_t at = condensed.find(empty); at != std::string::npos;
         at = condensed.find(empty, at)) {
      condensed.erase(at, empty.size());
    }
  }
  return condensed;
}

/// One chat file on its way into a bot.
class ChatReader {
 public:
  ChatReader(const std::string& file, std::size_t header_end, Bot& bot)
      : file_(file),
        header_end_(header_end),
        left_out_(file, {"teamplay.h"}),
        bot_(bot) {}

  void TakeLine(std::string_view line, std::size_t number, std::size_t start) {
    number_ = number;
    start_ = start;
    code_ = comments_.Strip(line);
    has_comment_ = comments_.had_words() && number > header_end_;
    if (is_in_block_) {
      TakeBlockLine(line);
    } else if (!IsPassedOver(line) && Contains(line, "type")) {
      OpenBlock(line);
    } else {
      std::string_view code = code_;
      if (TakeWord(code) == "chat") {
        braces_ = {.open = 0, .is_due = true};
        if (++chats_ > 1) {
          AddNote(
              Localized("Another chat begins here. A save puts its lines into "
                        "one with those above."));
        }
      }
      TellLeftOut(code_);
    }
    if (has_comment_) left_out_.AddComment(number);
  }

  ReadReport Finish() {
    if (is_in_block_) {
      AddNote(Localized("The file ends before the \"}\" of its last block."));
    }
    for (const ChatTypeId type : kAllChatTypes) {
      if (!has_type_.at(IndexOf(type))) {
        report_.missing_types.emplace_back(ChatTypeAt(type).Key);
      }
    }
    for (const auto& [kind, lines] : oddities_) {
      report_.notes.Add(
          {file_, lines.first, Localized(kind, {lines.list.Text()})});
    }
    left_out_.Tell(report_.notes);
    report_.missing_includes = left_out_.missing_includes();
    return std::move(report_);
  }

 private:
  void AddNote(std::string text) {
    report_.notes.Add({file_, number_, std::move(text)});
  }

  void OpenBlock(std::string_view line) {
    is_in_block_ = true;
    is_whole_in_line_ = TrimBlanksAndTabs(code_).ends_with('}');
    const bool has_brace = Contains(code_, "{");
    braces_ = {.open = has_brace && !is_whole_in_line_ ? 2 : 1,
               .is_due = !has_brace};
    if (const std::optional<ChatTypeId> type = TypeIn(line)) {
      type_ = *type;
      has_type_.at(IndexOf(type_)) = true;
      if (next_lines_.at(IndexOf(type_)) > ChatLineIndex()) {
        AddNote(Localized(
            "The type %1 was there before; the game uses the last block alone.",
            {ChatTypeAt(type_).Key}));
      }
    } else {
      AddNote(Localized(
          "The line names no known chat type; what follows goes to %1. It "
          "says: %2",
          {ChatTypeAt(type_).Key, ShownText(TrimBlanksAndTabs(line))}));
      return;
    }
    // The game wants a "{" behind it, on this line or the next.
    const std::string key(ChatTypeAt(type_).Key);
    std::string_view code = code_;
    const bool is_type = TakeWord(code) == "type";
    const std::string_view written = TakeWord(code);
    const std::string_view named = WithoutQuotes(written);
    const std::string_view brace = TakeWord(code);
    const bool is_empty = TrimBlanksAndTabs(code) == "}";
    if (!is_type || named != key) {
      AddNote(Localized(
          "What follows is read as the type %1, but the line says: %2",
          {key, ShownText(TrimBlanksAndTabs(line))}));
    } else if ((!TakeWord(code).empty() && !is_empty) ||
               (!brace.empty() && brace != "{")) {
      AddNote(
          Localized("Of this line only the type %1 is read. A save leaves out "
                    "the rest: %2",
                    {key, ShownText(TrimBlanksAndTabs(line))}));
    } else if (!written.starts_with('"')) {
      AddNote(
          Localized("The type %1 stands without quotes, and so the game does "
                    "not read the chats; a save puts them on.",
                    {key}));
    }
  }

  void TakeBlockLine(std::string_view line) {
    std::string_view text = TrimBlanksAndTabs(line);
    const std::size_t begin =
        start_ + static_cast<std::size_t>(text.data() - line.data());
    const TextSpan place = {begin, begin + text.size()};
    std::string without_tabs;
    if (Contains(text, "\t")) {
      without_tabs = RemoveTabs(text);
      text = without_tabs;
    }
    if (text.starts_with('}')) {
      is_in_block_ = false;
      TellLeftOut(code_);
    } else if (IsTypeLine(text)) {
      if (!is_whole_in_line_)
        AddNote(Localized("The block before has no \"}\"."));
      OpenBlock(text);
    } else if (text.starts_with('{')) {
      TellLeftOut(code_);
    } else if (!text.empty() && !text.starts_with("//")) {
      report_.chat_lines.push_back({type_, place});
      Store(text);
    }
  }

  void Store(std::string_view text) {
    EditorLine line = ChatLineFromFile(type_, text);
    const std::string_view code = TrimBlanksAndTabs(code_);
    if (code.empty()) {
      has_comment_ = false;
      line.oddities = {
          {ShownText(text),
           Localizable(
               "%1: a comment for the game, but read as a chat line.")}};
    } else if (line.oddities.empty()) {
      CompareWithSaved(code, line.text);
    }
    for (const ChatOddity& oddity : line.oddities) AddOddity(oddity);
    ChatLineIndex& next = next_lines_.at(IndexOf(type_));
    bot_.SetChatLine(type_, next, std::move(line.text));
    next = next.Next();
  }

  /// Tells of a line that a save would not write as it is.
  void CompareWithSaved(std::string_view code, const std::string& text) {
    if (text.empty()) {
      return AddOddity({Localized("An empty chat line"),
                        Localizable("%1: a save leaves it out.")});
    }
    const std::string saved = ChatLineToFile(type_, text);
    // A variable at the start has a blank in front.
    if (TrimBlanksAndTabs(saved) == code) return;
    const bool says_the_same =
        Contains(code, "\"") && Condensed(saved) == Condensed(code);
    if (!says_the_same) {
      AddOddity(
          {ShownText(saved), Localizable("%1: how a save writes a line that "
                                         "stands otherwise in the file.")});
    }
  }

  /// Files often have the same oddity on many lines.
  void AddOddity(const ChatOddity& oddity) {
    OddLines& lines = oddities_[oddity.kind];
    if (lines.first == 0) lines.first = number_;
    lines.list.Add(
        Localized("%1 (line %2)", {oddity.what, std::to_string(number_)}));
  }

  /// Tells of a brace that stands where none is due: a save has no such.
  void TakeBrace(std::string_view brace) {
    if (brace == "{" && braces_.is_due) {
      ++braces_.open;
    } else if (brace == "}" && braces_.open > 0) {
      // Where the one that is due is missing, the block ends all the same.
      if (!braces_.is_due) --braces_.open;
    } else {
      left_out_.AddText(brace, number_);
    }
    braces_.is_due = false;
  }

  /// Looks at a line that is no part of a block.
  void TellLeftOut(std::string_view code) {
    std::string_view rest = code;
    std::string_view word = TakeWord(rest);
    for (; word == "{" || word == "}"; word = TakeWord(rest)) TakeBrace(word);
    if (word.empty()) return;
    const std::string_view value = TakeWord(rest);
    if (word == "chat" && value.starts_with('"')) {
      report_.names.push_back(
          {"chat", number_, kChatNameField, std::string(WithoutQuotes(value))});
      return TellLeftOut(rest);
    }
    left_out_.AddInclude(TrimBlanksAndTabs(code), number_);
  }

  struct OddLines {
    std::size_t first = 0;
    NameList list;
  };

  std::string file_;
  std::size_t header_end_;
  LeftOut left_out_;
  Bot& bot_;
  ReadReport report_;
  CommentStripper comments_;
  std::size_t number_ = 0;
  std::size_t start_ = 0;  ///< Of the line in the file.
  std::string_view code_;  ///< Of the line, without comments.
  bool has_comment_ = false;
  bool is_in_block_ = false;
  bool is_whole_in_line_ = false;  ///< Of that block.
  struct {
    int open = 0;
    bool is_due = false;  ///< A "{" comes next.
  } braces_;
  std::array<bool, kChatTypeCount> has_type_{};
  int chats_ = 0;  ///< That have begun so far.
  ChatTypeId type_{0};
  std::array<ChatLineIndex, kChatTypeCount> next_lines_;
  std::map<std::string_view, OddLines> oddities_;  ///< By kind.
};

}  // namespace

std::string WriteChatFile(const Bot& bot, const Author& author) {
  std::string text = HeaderComment(bot, author);
  const auto add_line = [&text](std::string_view line) {
    text += line;
    text += kLineEnd;
  };
  add_line("");
  add_line("");
  // Always quoted, also a name of digits: the game accepts no other.
  add_line("chat \"" + bot.Name() + "\"");
  add_line("{");
  add_line("\t#include \"teamplay.h\"");
  for (const ChatTypeId type : kAllChatTypes) {
    add_line("");
    add_line("\ttype \"" + std::string(ChatTypeAt(type).Key) + "\"");
    add_line("\t{");
    for (const std::string& line : bot.ChatLines(type)) {
      if (!line.empty()) add_line("\t\t" + ChatLineToFile(type, line));
    }
    add_line("\t}");
  }
  add_line("}");
  return text;
}

ReadReport ReadChatFile(std::string_view file_bytes,
                        const std::string& file_name, Bot& bot) {
  const std::string bytes = WithPlainBlanks(file_bytes, TextsInLine::kSeveral);
  ChatReader reader(file_name, HeaderLineCount(bytes), bot);
  LineReader lines(bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    reader.TakeLine(*line, lines.number(),
                    static_cast<std::size_t>(line->data() - bytes.data()));
  }
  return reader.Finish();
}

}  // namespace fragsmith
