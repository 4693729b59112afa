// What GameSource tells of macros that are not there, or are no number.

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "chat/vocabulary.h"
#include "game/advice.h"
#include "game/file_faults.h"
#include "game/preprocessor.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kDefine = "#define";

/// What stands between the quotes of an #include.
std::string_view IncludedName(std::string_view line) {
  const std::size_t begin = line.find('"');
  const std::size_t end = line.rfind('"');
  return begin == end ? line : line.substr(begin + 1, end - begin - 1);
}

/// The first word behind blanks and TABs.
std::string_view FirstWord(std::string_view text) {
  text = TrimBlanksAndTabs(text);
  return text.substr(0, text.find_first_of(" \t"));
}

/// What a line behind which a macro has no value did to it; empty for a line
/// that has nothing to do with it.
std::string SlipOfLine(std::string_view line, const std::string& macro) {
  constexpr std::string_view kUndefine = "#undef";
  if (line.starts_with(kUndefine) &&
      FirstWord(line.substr(kUndefine.size())) == macro) {
    return Localized("This line takes the value of %1 away. Remove it.",
                     {macro});
  }
  const std::size_t text = line.find_first_not_of("/* \t");
  const bool is_comment = line.starts_with("//") || line.starts_with("/*");
  if (is_comment && text != std::string_view::npos) line.remove_prefix(text);
  if (!line.starts_with(kDefine)) return {};
  const std::string_view name = FirstWord(line.substr(kDefine.size()));
  if (is_comment) {
    return name == macro ? Localized(
                               "For the game this line is a comment, so %1 has "
                               "no value. Remove what makes it a comment.",
                               {macro})
                         : "";
  }
  constexpr std::string_view kDigits = "0123456789.";
  if (name.starts_with(macro) && name.size() > macro.size() &&
      name.find_first_not_of(kDigits, macro.size()) == std::string_view::npos) {
    return Localized(
        "There is no blank between %1 and its value, so the game does not know "
        "%1. Write a blank between them.",
        {macro});
  }
  // W_SHOTGUN and GWW_SHOTGUN are two macros.
  const std::string_view wanted = macro;
  const bool is_slip =
      ToLower(name.substr(0, 1)) == ToLower(wanted.substr(0, 1)) &&
      name != wanted && !NearestWord(name, {&wanted, 1}).empty();
  if (!is_slip) return {};
  return Localized(
      "The game looks for %1 and finds %2 alone; capital letters count. Write "
      "%1.",
      {macro, Quoted(name)});
}

}  // namespace

void GameSource::ComplainOfMacro(const GameToken& name) {
  missing_macro_ = name.text;
  if (name.file == 0 && name.line == last_macro_name_.line &&
      ComplainOfMacroValue()) {
    return;
  }
  if (ComplainOfIncludedMacro(name)) return;
  const std::string shown = ShownText(name.text);
  std::string text = Localized(
      "The game looks for a value of %1 and finds none. Write #define %1 and a "
      "plain number in this file; capital letters count.",
      {shown});
  if (name.file != 0) {
    text = Localized(
        "The file that is included here asks for %1, which has no value. Write "
        "#define %1 and a plain number above this line, or correct the name of "
        "the file.",
        {shown});
  }
  // It may stand below the #include of the file that wants it.
  int line = 0;
  bool is_joined = false;
  int slip_line = 0;
  std::string slip;
  LineReader lines(file_.bytes);
  while (const std::optional<std::string_view> next = lines.Next()) {
    const std::string_view trimmed = TrimBlanksAndTabs(*next);
    if (slip.empty()) {
      slip = SlipOfLine(trimmed, shown);
      slip_line = static_cast<int>(lines.number());
    }
    if (name.file != 0 && line == 0 && trimmed.starts_with("#include") &&
        Contains(file_names_[static_cast<std::size_t>(name.file)],
                 IncludedName(trimmed))) {
      line = static_cast<int>(lines.number());
    }
    const bool defines_it =
        trimmed.starts_with(kDefine) &&
        FirstWord(trimmed.substr(kDefine.size())) == name.text;
    const bool was_joined = std::exchange(is_joined, trimmed.ends_with('\\'));
    if (defines_it && was_joined) {
      // The line is of the advice that its "\" brings.
      line = static_cast<int>(lines.number()) - 1;
      text = Localized("This line takes away the #define of %1 below it.",
                       {shown});
      slip.clear();
      break;
    }
    if (line > 0 && defines_it) {
      text = Localized(
          "This #include stands above the #define of %1 in line %2, and the "
          "game reads from top to bottom. Move the #include to the end of the "
          "file.",
          {shown, std::to_string(lines.number())});
    }
  }
  if (!slip.empty() && (name.file != 0 || slip_line < name.line)) {
    line = slip_line;
    text = std::move(slip);
  }
  GameToken place = name;
  if (line > 0) {
    // Of the bot's own file.
    place.file = 0;
    place.line = line;
  }
  Complain("macro-missing", place, std::move(text));
}

bool GameSource::ComplainOfIncludedMacro(const GameToken& name) {
  constexpr std::string_view kOfBots = "botfiles/bots/";
  // Of the game's own files all but the bot's numbers is right.
  if (name.file == 0 ||
      !file_names_[static_cast<std::size_t>(name.file)].starts_with(kOfBots)) {
    return false;
  }
  const auto found = std::ranges::find_if(macros_, [&name](const auto& known) {
    const Macro& macro = known.second;
    return macro.name.file == name.file && macro.name.line == name.line &&
           std::ranges::count(macro.body, name.text, &GameToken::text) > 0;
  });
  if (found == macros_.end()) return false;
  ComplainOfBody(found->second);
  return true;
}

bool GameSource::IsLastMacroOdd() const {
  const auto macro = macros_.find(last_macro_);
  return macro != macros_.end() &&
         (macro->second.body.size() != 1 ||
          macro->second.body.front().kind != GameToken::Kind::kNumber);
}

bool GameSource::ComplainOfMacroValue() {
  if (!IsLastMacroOdd()) return false;
  ComplainOfBody(macros_.find(last_macro_)->second);
  return true;
}

void GameSource::ComplainOfBody(const Macro& macro) {
  std::string value;
  bool is_quoted = false;
  for (const GameToken& token : macro.body) {
    value += (value.empty() || !token.blank_before ? "" : " ") + token.text;
    is_quoted |= token.kind == GameToken::Kind::kString ||
                 token.kind == GameToken::Kind::kLiteral;
  }
  const std::string shown = ShownText(macro.name.text);
  Complain(
      "macro-not-a-number", macro.name,
      (is_quoted
           ? Localized("The value of %1 must be one plain number, without "
                       "quotation marks.",
                       {shown})
           : Localized("The value of %1 must be one plain number, and not %2.",
                       {shown, Quoted(value)})) +
          " " + AdviceForMacroValue(value));
}

std::string_view GameSource::LineOf(const GameToken& token) const {
  return token.file == 0 ? LineOfFile(file_.bytes, token.line)
                         : std::string_view();
}

}  // namespace fragsmith
