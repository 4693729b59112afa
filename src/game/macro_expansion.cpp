// What GameSource puts in place of a macro's name.

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "chat/vocabulary.h"
#include "game/limits.h"
#include "game/preprocessor.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// What a macro may grow to in one step.
constexpr std::size_t kMaxExpansion = 10'000;

/// Of a macro that is defined in this line.
std::string NoValueText(std::string_view name, std::string_view line) {
  const std::string shown = ShownText(name);
  const std::size_t behind = line.find(name) + name.size();
  const bool is_by_itself =
      behind < line.size() &&
      TrimBlanksAndTabs(line.substr(behind)).starts_with(name);
  return is_by_itself ? Localized(
                            "%1 is defined by itself, and so has no value. "
                            "Write a number in the place of the second.",
                            {shown})
                      : Localized(
                            "There is no value behind %1. Write one behind its "
                            "#define, on the same line.",
                            {shown});
}

}  // namespace

std::string GameSource::TooManyParameters(const Macro& macro) {
  return Localized(
      "%1 has %2 names in brackets. The game takes no more than %3: it stops "
      "where such a macro is used. Take the line out.",
      {macro.name.text, std::to_string(macro.parameters.size()),
       std::to_string(limits::kMaxParameters)});
}

/// Puts the macro's text in place of its name. A macro that leaves nothing
/// stops the game's reading like an error.
bool GameSource::Expand(const GameToken& name, const Macro& macro) {
  if (macro.name.file == 0) {
    last_macro_ = macro.name.text;
    last_macro_name_ = macro.name;
  }
  std::vector<std::vector<GameToken>> arguments(macro.parameters.size());
  if (!macro.parameters.empty() && !ReadArguments(name, macro, arguments)) {
    return false;
  }
  // Of a long text there may be nothing left in the end.
  work_ += macro.body.size();
  std::vector<GameToken> tokens;
  for (std::size_t at = 0; at < macro.body.size(); ++at) {
    const auto argument_at =
        [&](std::size_t index) -> const std::vector<GameToken>* {
      if (index >= macro.body.size()) return nullptr;
      const auto found = macro.parameters.find(macro.body[index].text);
      if (found == macro.parameters.end()) return nullptr;
      return &arguments[found->second];
    };
    if (!macro.parameters.empty() && macro.body[at].Is("#")) {
      const std::vector<GameToken>* const argument = argument_at(at + 1);
      if (argument == nullptr) continue;
      GameToken text = macro.body[at++];
      text.kind = GameToken::Kind::kString;
      text.span = {};
      text.text.clear();
      for (const GameToken& token : *argument) {
        text.text += token.text;
        if (text.text.size() > limits::kMaxString) break;
      }
      tokens.push_back(std::move(text));
    } else if (const std::vector<GameToken>* const argument = argument_at(at)) {
      tokens.insert(tokens.end(), argument->begin(), argument->end());
    } else {
      tokens.push_back(macro.body[at]);
      if (name.file == 0 && macro.name.file != 0) {
        // What goes wrong with it does so here, by the name that stands here.
        tokens.back().file = 0;
        tokens.back().line = name.line;
        tokens.back().span = name.span;
        tokens.back().macro = name.text;
      }
    }
    if (tokens.size() > kMaxExpansion) break;
  }
  if (!Merge(tokens)) return false;
  if (tokens.empty()) {
    Complain("empty-macro", name, NoValueText(name.text, LineOf(macro.name)));
    return false;
  }
  work_ += tokens.size();
  unread_.insert(unread_.begin(), tokens.begin(), tokens.end());
  return true;
}

/// What stands in the brackets behind a macro's name. Brackets inside are
/// dropped by the game, and the first that closes closes all of them.
bool GameSource::ReadArguments(const GameToken& name, const Macro& macro,
                               std::vector<std::vector<GameToken>>& arguments) {
  GameToken token;
  bool is_good = ReadRaw(token);
  if (is_good && macro.parameters.size() > limits::kMaxParameters) {
    Complain("macro-parameters", name, TooManyParameters(macro));
    return false;
  }
  if (is_good && !token.Is("(")) {
    Unread(std::move(token));
    is_good = false;
  }
  std::size_t at = 0;
  int brackets = 0;
  while (is_good) {
    is_good = ReadRaw(token) && at < arguments.size();
    if (!is_good) break;
    if (token.Is(",") && brackets <= 0) {
      ++at;
    } else if (token.Is("(")) {
      ++brackets;
    } else if (token.Is(")")) {
      if (--brackets <= 0) break;
    } else {
      arguments[at].push_back(token);
    }
  }
  if (!is_good) {
    Complain(
        "macro-brackets", name,
        Localized("%1 needs %2 value(s) in brackets behind it, with commas "
                  "between them.",
                  {macro.name.text, std::to_string(macro.parameters.size())}));
  }
  return is_good;
}

/// Makes one word of two with a ## between them.
bool GameSource::Merge(std::vector<GameToken>& tokens) {
  using Kind = GameToken::Kind;
  std::vector<GameToken> merged;
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    const bool is_merge =
        tokens[at].Is("##") && !merged.empty() && at + 1 < tokens.size();
    if (!is_merge) {
      merged.push_back(std::move(tokens[at]));
      continue;
    }
    GameToken& left = merged.back();
    const GameToken& right = tokens[++at];
    const bool fits =
        left.kind == Kind::kName
            ? right.kind == Kind::kName || right.kind == Kind::kNumber
            : left.kind == Kind::kString && right.kind == Kind::kString;
    if (!fits || left.text.size() > limits::kMaxString) {
      Complain("misplaced-merge", left,
               Localized("The game cannot make one word of %1 and %2. Remove "
                         "the ##, and write the word or the number itself.",
                         {Quoted(left.text), Quoted(right.text)}));
      return false;
    }
    left.text += right.text;
    left.span = {};
    left.own.reset();
  }
  tokens = std::move(merged);
  return true;
}

}  // namespace fragsmith
