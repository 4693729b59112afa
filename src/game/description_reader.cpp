#include "game/description_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "chat/vocabulary.h"
#include "game/file_faults.h"
#include "game/limits.h"
#include "support/game_blank.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Takes words apart as the game does in all files but the .c ones: up to a
/// blank, or between quotes without escapes.
class WordReader {
 public:
  explicit WordReader(std::string_view bytes)
      : bytes_(bytes.substr(0, bytes.find('\0'))) {}

  int line() const { return line_; }
  /// Of the last word, with its quotes.
  TextSpan span() const { return span_; }
  bool has_open_quote() const { return has_open_quote_; }

  /// The next word, empty at the end. When it must stand on the same line and
  /// does not, it is empty as well and stays to be read.
  std::string Next(bool same_line) {
    const int start = line_;
    SkipBlanks();
    span_ = {offset_, offset_};
    if (same_line && line_ > start) return {};
    if (offset_ >= bytes_.size()) return {};
    std::size_t end = offset_;
    if (bytes_[offset_] == '"') {
      end = bytes_.find('"', ++offset_);
      has_open_quote_ = end == std::string_view::npos;
      end = std::min(end, bytes_.size());
    } else {
      end += UnquotedWord(bytes_.substr(end)).size();
    }
    std::string word(bytes_.substr(offset_, end - offset_));
    line_ += static_cast<int>(std::count(word.begin(), word.end(), '\n'));
    offset_ = end + (end < bytes_.size() && bytes_[end] == '"' ? 1 : 0);
    span_.end = offset_;
    // The game drops what it has no room for.
    return word.size() > limits::kMaxDescriptionWord ? std::string() : word;
  }

  bool at_end() {
    SkipBlanks();
    return offset_ >= bytes_.size();
  }

 private:
  void SkipBlanks() {
    while (offset_ < bytes_.size()) {
      const std::string_view rest = bytes_.substr(offset_);
      std::size_t length = 0;
      if (IsGameBlank(rest[0])) {
        length = 1;
      } else if (rest.starts_with("//")) {
        length = std::min(rest.find('\n'), rest.size());
      } else if (rest.starts_with("/*")) {
        length = rest.find("*/", 2);
        length = length == std::string_view::npos ? rest.size() : length + 2;
      } else {
        return;
      }
      line_ += static_cast<int>(
          std::count(rest.begin(),
                     rest.begin() + static_cast<std::ptrdiff_t>(length), '\n'));
      offset_ += length;
    }
  }

  std::string_view bytes_;
  std::size_t offset_ = 0;
  int line_ = 1;
  bool has_open_quote_ = false;
  TextSpan span_;
};

/// The keys that the game reads, in lower case, and those that people write.
constexpr std::array<std::string_view, 11> kKnownKeys = {
    "name",   "funname", "model", "headmodel", "aifile",   "gender",
    "color1", "color2",  "color", "skin",      "arenalord"};

bool IsKnownKey(std::string_view word) {
  return std::find(kKnownKeys.begin(), kKnownKeys.end(), ToLower(word)) !=
         kKnownKeys.end();
}

/// How much it matters that the game loses the value of a key.
Severity LossOf(std::string_view key) {
  std::string lower = ToLower(key);
  std::erase_if(lower, [](char letter) {
    return Contains(kThrownAway, {&letter, 1});
  });
  if (lower == "name" || lower == "aifile") return Severity::kError;
  if (lower == "funname") return Severity::kWarning;
  return lower == "model" || lower == "headmodel" ? Severity::kWarning
                                                  : Severity::kHint;
}

/// Reads one { ... }.
class SetReader {
 public:
  SetReader(WordReader& words, const GameFile& file, Complaints& findings)
      : words_(words), file_(file), findings_(findings) {}

  /// Up to the "}"; without one, to the end of the file.
  DescriptionSet Read() {
    set_.line = words_.line();
    set_.span = words_.span();
    while (true) {
      const bool is_end = words_.at_end();
      const std::string key = words_.Next(false);
      key_span_ = words_.span();
      set_.span.end = key_span_.end;
      const int last_line = std::exchange(line_, words_.line());
      if (key == "}") break;
      if (is_end) {
        if (!set_.is_open) {
          Complain("description-brace", Severity::kHint,
                   Localized(
                       "The } at the end is missing; the game does not mind."));
        }
        break;
      }
      TakeBrace(key);
      const bool is_stray =
          line_ == last_line && !last_key_.empty() && !IsKnownKey(key);
      if (is_stray && told_line_ != line_ &&
          Contains("#;", last_key_.substr(0, 1))) {
        Complain("description-hash", Severity::kWarning,
                 Localized("The game takes the words of this line for keys and "
                           "values. A comment begins with //."));
        told_line_ = line_;
      } else if (is_stray && told_line_ != line_ && Contains(key, "\"")) {
        Complain("description-more-words", Severity::kWarning,
                 Localized("Of %1 the game reads only %2, as a quotation mark "
                           "inside a text ends it. Remove the quotation marks "
                           "inside the text, or write ' for them.",
                           {Quoted(last_key_), Quoted(last_value_)}),
                 last_key_);
        told_line_ = line_;
      } else if (is_stray && told_line_ != line_) {
        TellMoreWords(key);
      }
      ReadValue(key, is_stray);
    }
    set_.last_line = words_.line();
    TellBrace();
    return std::move(set_);
  }

 private:
  /// Behind the value of the last key.
  void TellMoreWords(const std::string& word) {
    const std::string_view curly =
        AdviceForCurlyQuotes(LineOfFile(file_.bytes, line_));
    Complain(
        "description-more-words", Severity::kWarning,
        Localized(
            "Of %1 the game reads only %2, and takes %3 behind it for a key.",
            {Quoted(last_key_), Quoted(last_value_), Quoted(word)}) +
            (curly.empty()
                 ? " " + Localized(
                             "Put a text of several words in quotation marks.")
                 : Localized(curly)),
        last_key_);
  }

  /// A { or }, where a key should stand.
  void TakeBrace(const std::string& key) {
    if (key != "{" && !key.starts_with('}')) return;
    if (brace_.empty()) {
      brace_ = key;
      brace_line_ = line_;
    }
    told_line_ = line_;
  }

  /// Without a brace between two bots, or with two names for one.
  void TellSecondName() {
    line_ = second_name_line_;
    if (has_two_files_) {
      Complain(kBotsMerged, Severity::kError,
               Localized("The } and the { between two bots are missing above "
                         "this line, so the game makes one bot of two and does "
                         "not know %1. Write } and { above this line.",
                         {Quoted(lost_name_)}));
    } else {
      Complain("name-twice", Severity::kWarning,
               Localized("The bot has a second name here: the game takes the "
                         "last and does not know %1. Remove one of the lines.",
                         {Quoted(lost_name_)}),
               "name");
    }
  }

  void TellBrace() {
    if (brace_.empty()) {
      if (!lost_name_.empty()) TellSecondName();
      return;
    }
    const std::string begin = std::to_string(set_.line);
    line_ = brace_line_;
    if (lost_name_.empty()) {
      Complain(
          "description-stray-brace", Severity::kWarning,
          brace_ == "{"
              ? Localized("There is a { too many here. Remove it.")
              : Localized("The game does not see the } of the bot that begins "
                          "in line %1 in %2. Write } and a blank behind it.",
                          {begin, Quoted(brace_)}));
      return;
    }
    Complain(
        kBotsMerged, Severity::kError,
        brace_ == "{"
            ? Localized("The } of the bot that begins in line %1 is missing "
                        "above this line, so the game makes one bot of two and "
                        "does not know %2. Write } in front of this line.",
                        {begin, Quoted(lost_name_)})
            : Localized("The game does not see the } of the bot that begins in "
                        "line %1 in %2, so the game makes one bot of two and "
                        "does not know %3. Write } and a blank behind it.",
                        {begin, Quoted(brace_), Quoted(lost_name_)}));
  }

  void Complain(std::string_view id, Severity severity, std::string text,
                std::string_view key = {}) {
    findings_.Add({.id = id,
                   .severity = severity,
                   .place = {.file = file_.name, .line = line_},
                   .text = std::move(text),
                   .key = ToLower(key)});
  }

  /// People who write other files put a = between a key and its value.
  void TellEquals(const std::string& key, const std::string& value,
                  TextSpan span) {
    std::string_view before = key;
    const std::string_view without_last = before.substr(0, key.size() - 1);
    before = before.substr(0, before.find('='));
    if (before.size() < key.size() && IsKnownKey(before)) {
      Complain("description-equals", LossOf(before),
               Localized("The game takes %1 for one word. Write %2, a blank "
                         "and the value, without a =.",
                         {Quoted(key), before}),
               before);
    } else if (value.starts_with('=') &&
               span.end - span.begin == value.size()) {
      const bool is_path = EqualIgnoringCase(key, "aifile");
      Complain(
          "description-equals", is_path ? Severity::kError : Severity::kWarning,
          Localized("The game takes %1 for the value of %2. Remove the =: the "
                    "value stands behind its key, with a blank between them.",
                    {Quoted(value), Quoted(key)}),
          key);
    } else if (key.ends_with(':') && IsKnownKey(without_last)) {
      Complain("description-colon", Severity::kWarning,
               Localized("The game does not know the key %1 and passes over "
                         "this line. Remove the colon.",
                         {Quoted(key)}),
               without_last);
    } else {
      return;
    }
    told_line_ = line_;
  }

  /// A comment begins with a word, and not inside one.
  void TellComment(const std::string& key, const std::string& value,
                   TextSpan span) {
    const std::size_t comment = std::min(value.find("//"), value.find("/*"));
    const bool is_quoted = span.end - span.begin != value.size();
    if (comment == std::string::npos || is_quoted || !IsKnownKey(key)) return;
    // Between folders a doubled slash is one.
    const bool is_path = EqualIgnoringCase(key, "aifile");
    const std::string before = value.substr(0, comment);
    if (is_path && !EndsWithIgnoringCase(before, ".c")) return;
    Complain(
        "description-comment", is_path ? Severity::kError : Severity::kWarning,
        Localized("The comment stands right behind %1, and the game takes %2 "
                  "for the value of %3. Put a blank in front of the comment.",
                  {Quoted(before), Quoted(value), Quoted(key)}),
        key);
    told_line_ = line_;
  }

  /// Of a word that is no key it was told already.
  void ReadValue(const std::string& key, bool is_stray) {
    std::string value = words_.Next(true);
    const TextSpan span = words_.span();
    if (words_.has_open_quote()) {
      set_.is_open = true;
      Complain(
          "description-quote", Severity::kError,
          Localized(
              "The quotation mark in this line is never closed: the game takes "
              "the rest of the file for the value of %1, and goes on in "
              "another bot's description, whose files it may take. Close it.",
              {Quoted(key)}),
          key);
    }
    TellEquals(key, value, span);
    TellComment(key, value, span);
    const bool has_value = !value.empty();
    if (!has_value) value = kNoDescriptionValue;
    if (!has_value && !is_stray && told_line_ != line_) {
      Complain(
          "description-no-value", Severity::kWarning,
          Localized(
              "There is no value behind %1 on its line, so the game takes "
              "<NULL> for it. Write the value behind it or remove the line.",
              {Quoted(key)}),
          key);
    }
    last_key_ = key;
    last_value_ = value;
    size_ += key.size() + value.size() + 2;
    const bool is_too_long = size_ > limits::kMaxDescription;
    if (EqualIgnoringCase(key, "name") &&
        !EqualIgnoringCase(set_.Text("name"), value) && lost_name_.empty()) {
      lost_name_ = set_.Text("name");
      second_name_line_ = line_;
    }
    has_two_files_ = has_two_files_ || (EqualIgnoringCase(key, "aifile") &&
                                        !set_.Text("aifile").empty());
    if (!is_too_long && !IsThrownAway(key) && !IsThrownAway(value)) {
      set_.values[ToLower(key)] = {std::move(value), line_, span, key_span_};
      return;
    }
    if (!is_too_long && !IsThrownAway(key)) {
      set_.thrown_away[ToLower(key)] = {value, line_, span, key_span_};
    }
    const bool is_told = is_stray && told_line_ == line_;
    if (is_told && !is_too_long) return;
    Complain("description-sign", LossOf(key),
             is_too_long
                 ? Localized(
                       "This line does not fit into the %1 characters that the "
                       "game keeps of a bot, and is lost. Shorten the values.",
                       {std::to_string(limits::kMaxDescription)})
                 : Localized("The game throws this line away, because %1 or "
                             "its value holds a ;, a \\ or a \". Remove the "
                             "sign; in a path write / for \\.",
                             {Quoted(key)}),
             key);
  }

  WordReader& words_;
  const GameFile& file_;
  Complaints& findings_;
  DescriptionSet set_;
  std::size_t size_ = 0;
  int line_ = 0;
  TextSpan key_span_;
  int told_line_ = 0;  ///< The last of which all that follows was told.
  std::string last_key_;
  std::string last_value_;
  std::string brace_;  ///< The first where a key should stand.
  int brace_line_ = 0;
  std::string lost_name_;  ///< Of a bot that another one swallows.
  int second_name_line_ = 0;
  bool has_two_files_ = false;
};

}  // namespace

bool DescriptionSet::HidesCharacter() const {
  return Text("funname").size() > limits::kMaxFunName;
}

std::string_view DescriptionSet::Text(std::string_view key) const {
  const auto found = values.find(key);
  return found == values.end() ? std::string_view() : found->second.text;
}

int DescriptionSet::Line(std::string_view key) const {
  const auto found = values.find(key);
  return found == values.end() ? line : found->second.line;
}

std::string_view UnquotedWord(std::string_view text) {
  const auto* const end = std::ranges::find_if(text, IsGameBlank);
  return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

std::vector<DescriptionSet> ReadGameDescription(const GameFile& file,
                                                Complaints& findings) {
  std::vector<DescriptionSet> sets;
  if (file.bytes.size() >= limits::kRefusedDescription) {
    findings.Add(
        "description-too-large", Severity::kError, file.name, 0,
        Localized("The file has %1 bytes or more, and the game does not read "
                  "it at all. Shorten it, for example its comments.",
                  {std::to_string(limits::kRefusedDescription)}));
    return sets;
  }
  WordReader words(file.bytes);
  while (!words.at_end() && sets.size() < limits::kMaxDescriptions) {
    const std::string word = words.Next(false);
    if (word != "{") {
      findings.Add(
          "description-brace", Severity::kError, file.name, words.line(),
          Localized("The game expects { here but finds %1, and passes over the "
                    "rest of the file. Each bot's lines stand between { and }.",
                    {Quoted(word)}));
      break;
    }
    sets.push_back(SetReader(words, file, findings).Read());
  }
  return sets;
}

}  // namespace fragsmith
