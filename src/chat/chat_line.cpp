#include "chat/chat_line.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "chat/chat_catalogue.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr bool HasNoBrace(const WordList& list) {
  return !list.Variable.starts_with('{');
}
static_assert(std::count_if(kWordLists.begin(), kWordLists.end(), HasNoBrace) ==
              1);
constexpr std::string_view kPlainVariable =
    std::find_if(kWordLists.begin(), kWordLists.end(), HasNoBrace)->Variable;

/// No variable is longer.
constexpr std::size_t kLongestVariable = [] {
  std::size_t longest = 0;
  for (const WordList& list : kWordLists) {
    longest = std::max(longest, list.Variable.size());
  }
  for (const ChatPointer& pointer : kChatPointers) {
    longest = std::max(longest, pointer.Variable.size());
  }
  return longest;
}();

bool IsZero(std::string_view digits) {
  return digits.find_first_not_of('0') == std::string_view::npos;
}

/// A group and the digits of the member, when the whole line is one member.
struct Member {
  const ChatGroup* group;
  std::string_view digits;
};

/// The digits at the end.
std::string_view NumberAtEnd(std::string_view text) {
  return text.substr(text.find_last_not_of("0123456789") + 1);
}

/// Names of groups and their markers end in a letter, so a text parts in but
/// one way.
std::optional<Member> MemberOf(std::string_view text,
                               std::string_view ChatGroup::*start) {
  const std::string_view digits = NumberAtEnd(text);
  text.remove_suffix(digits.size());
  const auto* const group = std::ranges::find(kChatGroups, text, start);
  if (group == kChatGroups.end()) return std::nullopt;
  return Member{group, digits};
}

std::optional<Member> MemberInEditorForm(std::string_view line) {
  constexpr std::string_view kEnd = "}}";
  if (!line.starts_with("{{") || !line.ends_with(kEnd)) return std::nullopt;
  line.remove_suffix(kEnd.size());
  const std::optional<Member> member = MemberOf(line, &ChatGroup::Marker);
  if (!member || member->digits.empty()) return std::nullopt;
  return member;
}

std::optional<Member> MemberInFileForm(std::string_view line) {
  if (line.starts_with('"')) return std::nullopt;
  return MemberOf(line, &ChatGroup::Name);
}

/// What stands in a file for a variable.
struct Item {
  std::string_view variable;
  std::string_view text;
  bool is_pointer = false;
};

/// The variable that the text begins with. None begins within another one.
std::optional<Item> ItemAt(ChatTypeId type, std::string_view text) {
  std::string_view variable = kPlainVariable;
  if (text.starts_with('{')) {
    variable = text.substr(0, kLongestVariable);
    variable = variable.substr(0, variable.find('}') + 1);
    if (variable.empty()) return std::nullopt;
  } else if (!text.starts_with(variable)) {
    return std::nullopt;
  }
  const auto* const list =
      std::ranges::find(kWordLists, variable, &WordList::Variable);
  if (list != kWordLists.end()) return Item{variable, list->Key};
  for (const int pointer : ChatTypeAt(type).Pointers()) {
    if (ChatPointerAt(pointer).Variable == variable) {
      return Item{variable, ChatPointerAt(pointer).Item(), true};
    }
  }
  return std::nullopt;
}

/// Walks over the places of a line where a variable may begin.
class VariableStarts {
 public:
  explicit VariableStarts(std::string_view line)
      : line_(line),
        brace_(line.find('{')),
        plain_(line.find(kPlainVariable)) {}

  /// The first that is not in front of the offset.
  std::size_t From(std::size_t offset) {
    if (brace_ < offset) brace_ = line_.find('{', offset);
    if (plain_ < offset) plain_ = line_.find(kPlainVariable, offset);
    return std::min(brace_, plain_);
  }

 private:
  std::string_view line_;
  std::size_t brace_;
  std::size_t plain_;
};

/// Notes what is odd; a line of megabytes must not give a note a byte.
/// Of a piece that is not understood: with what writing gives back, and where
/// it does not quite.
constexpr std::string_view kStays =
    Localizable("%1: not understood; stays as it is written.");
constexpr std::string_view kChanges =
    Localizable("%1: not understood; a save writes the line in another way.");

void AddOddity(std::string what, std::string_view kind, EditorLine& result) {
  constexpr std::size_t kMax = 20;
  if (result.oddities.size() < kMax) {
    result.oddities.push_back({std::move(what), kind});
  }
}

bool IsComment(std::string_view text) {
  return text.starts_with("//") ||
         (text.starts_with("/*") && text.find("*/") == text.size() - 2);
}

/// The part of a line that says something: without the ";" that ends it and
/// a comment behind that.
std::string_view Statement(std::string_view line, EditorLine& result) {
  // As in most lines: no other ";" than the one that ends it.
  if (line.ends_with(';') && line.find(';') + 1 == line.size()) {
    line.remove_suffix(1);
    return TrimBlanks(line);
  }
  bool is_quoted = false;
  bool has_more = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == '"') is_quoted = !is_quoted;
    if (line[at] != ';' || is_quoted) continue;
    const std::string_view rest = TrimBlanks(line.substr(at + 1));
    if (rest.empty() || IsComment(rest)) return TrimBlanks(line.substr(0, at));
    has_more = true;
  }
  if (line.ends_with(';')) {
    line.remove_suffix(1);
  } else if (has_more) {
    AddOddity(Localized("What stands behind the \";\""),
              Localizable("%1: read as a part of the same chat line."), result);
  } else {
    AddOddity(Localized("No \";\" at the end"),
              Localizable("%1: the game takes the line and the next for one. "
                          "Here they are two, and a save writes them so."),
              result);
  }
  return TrimBlanks(line);
}

/// A member that some game data has and others lack.
void NoteOddNumber(const Member& member, EditorLine& result) {
  const ChatGroup& group = *member.group;
  const std::string name(group.Name);
  if (group.Unnumbered && !member.digits.empty() && IsZero(member.digits)) {
    AddOddity(name + std::string(member.digits),
              Localizable("%1: a file made anew has the name without its 0."),
              result);
  }
  const std::optional<double> number = NumberFromText(member.digits);
  if (number && *number > group.MaxNumber) {
    AddOddity(name + std::string(member.digits),
              Localizable("%1: none of the ready-made lines that the game is "
                          "known to have; kept as it is."),
              result);
  }
}

/// The variable of an item between two texts; empty when it is unknown.
std::string_view VariableOf(ChatTypeId type, std::string_view item) {
  for (const int pointer : ChatTypeAt(type).Pointers()) {
    if (ChatPointerAt(pointer).Item() == item) {
      return ChatPointerAt(pointer).Variable;
    }
  }
  const auto* const found =
      std::find_if(kWordLists.begin(), kWordLists.end(),
                   [item](const WordList& list) { return list.Key == item; });
  return found == kWordLists.end() ? std::string_view() : found->Variable;
}

/// The variables of items with commas between them, side by side; nothing
/// when one is unknown.
std::optional<std::string> VariablesOf(ChatTypeId type,
                                       std::string_view items) {
  std::string variables;
  while (true) {
    const std::size_t comma = items.find(',');
    const std::string_view variable =
        VariableOf(type, RemoveBlanks(items.substr(0, comma)));
    if (variable.empty()) return std::nullopt;
    variables += variable;
    if (comma == std::string_view::npos) return variables;
    items.remove_prefix(comma + 1);
  }
}

/// Joins the pieces of a statement in file form.
class PieceJoiner {
 public:
  PieceJoiner(ChatTypeId type, EditorLine& result)
      : type_(type), result_(result) {}

  /// The text without its outermost quotes, and whether they were there.
  void Join(std::string_view inner, bool starts_quoted, bool ends_quoted) {
    ends_quoted_ = ends_quoted;
    bool is_quoted = starts_quoted;
    bool is_first = true;
    for (int unquoted = 0;; is_quoted = !is_quoted, is_first = false) {
      // The rest of a line of very many pieces stays as it is written.
      if (!is_quoted && ++unquoted > kMaxPieces) return AddRest(inner);
      const std::size_t quote = inner.find('"');
      const bool is_last = quote == std::string_view::npos;
      const std::string_view piece = inner.substr(0, quote);
      if (is_quoted) {
        result_.text += piece;
      } else {
        AddItems(piece, is_first, is_last);
      }
      if (is_last) return;
      inner.remove_prefix(quote + 1);
    }
  }

 private:
  static constexpr int kMaxPieces = 19;

  void AddItems(std::string_view piece, bool is_first, bool is_last) {
    const bool is_whole = is_first && is_last;
    if (is_whole && ends_quoted_) {
      // A text that lacks its opening quote.
      result_.text += piece;
      return Note(piece);
    }
    const std::string_view items =
        WithoutOuterCommas(TrimBlanks(piece), !is_first, !is_last);
    const std::optional<std::string> variables =
        is_last && ends_quoted_ ? std::nullopt : VariablesOf(type_, items);
    if (variables) {
      result_.text += *variables;
    } else if (is_whole && !Contains(items, ",")) {
      result_.text += items;
      AddOddity(Shown(items),
                Localizable("%1: none of the word lists and groups known here; "
                            "read as plain text, and a save writes it so."),
                result_);
    } else {
      AddUnknown(piece, is_first, is_last);
      Note(piece);
    }
  }

  /// Items with a text before or behind them have a comma there; without one
  /// nothing is left that could be an item.
  static std::string_view WithoutOuterCommas(std::string_view items,
                                             bool has_text_before,
                                             bool has_text_behind) {
    if (has_text_before) {
      if (!items.starts_with(',')) return {};
      items.remove_prefix(1);
    }
    if (has_text_behind) {
      if (!items.ends_with(',')) return {};
      items.remove_suffix(1);
    }
    return items;
  }

  /// At an end of the line an empty text makes a middle piece of it, which
  /// writing gives back.
  void AddUnknown(std::string_view piece, bool is_first, bool is_last) {
    std::string& text = result_.text;
    text += is_first ? "\", " : "\"";
    text += piece;
    if (!is_last) {
      text += '"';
    } else if (!ends_quoted_) {
      text += ", \"";
    }
  }

  void AddRest(std::string_view rest) {
    result_.text += '"';
    result_.text += rest;
    const bool ends_inside = std::count(rest.begin(), rest.end(), '"') % 2 != 0;
    if (!ends_inside && !ends_quoted_) result_.text += ", \"";
    Note(rest);
  }

  void Note(std::string_view piece) {
    AddOddity('"' + Shown(piece) + '"', kStays, result_);
  }

  static std::string Shown(std::string_view text) {
    constexpr std::size_t kMax = 60;
    return Utf8FromGameText(text.substr(0, kMax));
  }

  ChatTypeId type_;
  EditorLine& result_;
  bool ends_quoted_ = false;
};

bool StaysUnknown(const ChatOddity& oddity) { return oddity.kind == kStays; }

/// Blanks are written in a way of our own without a word.
void TellChanges(ChatTypeId type, std::string_view line, EditorLine& result) {
  if (std::none_of(result.oddities.begin(), result.oddities.end(),
                   StaysUnknown) ||
      RemoveBlanks(ChatLineToFile(type, result.text)) == RemoveBlanks(line)) {
    return;
  }
  for (ChatOddity& oddity : result.oddities) {
    if (StaysUnknown(oddity)) oddity.kind = kChanges;
  }
}

}  // namespace

std::string ChatLineToFile(ChatTypeId type, std::string_view line) {
  if (const std::optional<Member> member = MemberInEditorForm(line)) {
    std::string text(member->group->Name);
    if (!member->group->Unnumbered || !IsZero(member->digits)) {
      text += member->digits;
    }
    return text + ';';
  }
  // With the quotes of a text around it, and of two around each variable.
  constexpr std::size_t kRoom = 32;
  std::string text = "\"";
  text.reserve(line.size() + kRoom);
  bool ends_with_variable = false;
  std::size_t done = 0;
  VariableStarts starts(line);
  for (std::size_t at = starts.From(0); at < line.size();) {
    const std::optional<Item> item = ItemAt(type, line.substr(at));
    if (!item) {
      at = starts.From(at + 1);
      continue;
    }
    const std::size_t end = at + item->variable.size();
    const bool is_at_end = end == line.size();
    text.append(line, done, at - done);
    if (at > 0) {
      text += "\", ";
    } else if (is_at_end && !item->is_pointer) {
      return std::string(item->text) + ';';
    } else {
      text = item->is_pointer ? " " : "";
    }
    text += item->text;
    ends_with_variable = is_at_end && at > 0;
    if (!ends_with_variable) text += ", \"";
    done = end;
    at = starts.From(end);
  }
  text.append(line, done);
  text += ends_with_variable ? ";" : "\";";
  return text;
}

EditorLine ChatLineFromFile(ChatTypeId type, std::string_view line) {
  EditorLine result;
  std::string_view inner = Statement(line, result);
  if (const std::optional<Member> member = MemberInFileForm(inner)) {
    result.text = std::string(member->group->Marker);
    result.text += member->digits.empty() ? "0" : member->digits;
    result.text += "}}";
    NoteOddNumber(*member, result);
    return result;
  }
  const bool starts_quoted = inner.starts_with('"');
  if (starts_quoted) inner.remove_prefix(1);
  const bool ends_quoted = inner.ends_with('"');
  if (ends_quoted) inner.remove_suffix(1);

  const auto* const list =
      std::find_if(kWordLists.begin(), kWordLists.end(),
                   [inner](const WordList& row) { return row.Key == inner; });
  if (list != kWordLists.end()) {
    result.text = std::string(list->Variable);
    if (starts_quoted || ends_quoted) {
      AddOddity('"' + std::string(inner) + '"',
                Localizable(
                    "%1: a text that is taken for the word list of that name."),
                result);
    }
    return result;
  }
  if (inner.empty()) return result;
  result.text.reserve(inner.size());
  PieceJoiner(type, result).Join(inner, starts_quoted, ends_quoted);
  TellChanges(type, line, result);
  return result;
}

}  // namespace fragsmith
