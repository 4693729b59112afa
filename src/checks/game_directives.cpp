// What GameSource makes of lines with #, of $evalint and of macros.

#include <algorithm>
#include <cmath>
#include <utility>

#include "checks/game_expression.h"
#include "checks/game_preprocessor.h"
#include "support/code_page.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// What a macro may grow to in one step.
constexpr std::size_t kMostExpansion = 10'000;

}  // namespace

bool GameSource::Directive() {
  GameToken token;
  if (!ReadRaw(token) || token.lines_crossed > 0) {
    Complain("lone-hash", Here(),
             "A # stands here without a command behind it, and the game stops "
             "at it. Delete it, or put the text it belongs to in quotation "
             "marks.");
    return false;
  }
  // The game looks for these even where it passes over everything else.
  if (token.Is("if")) return If(false);
  if (token.Is("ifdef")) return IfDefined(true);
  if (token.Is("ifndef")) return IfDefined(false);
  if (token.Is("elif")) return If(true);
  if (token.Is("else")) return Else();
  if (token.Is("endif")) return EndIf();
  const bool is_skipped = skipped_ > 0;
  if (token.Is("include")) return is_skipped || Include();
  if (token.Is("define")) return is_skipped || Define();
  if (token.Is("undef")) return is_skipped || Undefine();
  if (token.Is("pragma")) {
    Warn("pragma", token, "The game does nothing with #pragma.");
    while (ReadRestOfLine(token)) {
    }
    return true;
  }
  if (token.Is("eval") || token.Is("evalfloat")) {
    if (is_skipped) return true;
    double value = 0;
    const bool is_float = token.Is("evalfloat");
    if (!Evaluate(Extent::kLine, is_float, value)) return false;
    PutNumber(value, is_float, token);
    return true;
  }
  if (is_skipped && (token.Is("error") || token.Is("line"))) return true;
  Complain("unknown-command", token,
           "The game knows no command #" + ShownText(token.text) +
               " and stops at it. A # may only begin a command such as "
               "#include or #define.");
  return false;
}

bool GameSource::Dollar() {
  GameToken token;
  if (!ReadRaw(token) || token.lines_crossed > 0 ||
      !(token.Is("evalint") || token.Is("evalfloat"))) {
    Complain("lone-dollar", Here(),
             "A $ stands here that belongs to no $evalint or $evalfloat, and "
             "the game stops at it. Delete it.");
    return false;
  }
  if (skipped_ > 0) return true;
  double value = 0;
  const bool is_float = token.Is("evalfloat");
  if (!Evaluate(Extent::kBrackets, is_float, value)) return false;
  PutNumber(value, is_float, token);
  return true;
}

bool GameSource::Include() {
  GameToken token;
  std::string path;
  const bool has_name = ReadRaw(token) && token.lines_crossed == 0;
  if (has_name && token.kind == GameToken::Kind::kString) {
    path = token.text;
  } else if (has_name && token.Is("<")) {
    GameToken part;
    while (ReadRestOfLine(part) && !part.Is(">")) path += part.text;
  } else {
    Complain("include-without-name", Here(),
             "The name of the file to include must stand behind #include, on "
             "the same line and in quotation marks.");
    return false;
  }
  path = NormalGamePath(path);
  const bool is_open =
      std::any_of(scripts_.begin(), scripts_.end(), [&](const Script& script) {
        return EqualIgnoringCase(script.path, path);
      });
  if (is_open) {
    Warn("includes-itself", token,
         "This file includes itself; the game passes over that line.");
    return true;
  }
  // No name at all is the folder botfiles, and passes for an empty file.
  std::optional<std::string> bytes = path.empty() ? "" : game_(path);
  if (!bytes) {
    Complain("include-missing", token,
             "There is no file botfiles/" + ShownText(path) +
                 " to include. The game looks in botfiles, not beside this "
                 "file. Correct the name, or remove the line.");
    return false;
  }
  work_ += bytes->size() / 16;
  Script& script = scripts_.emplace_back();
  script.path = path;
  script.bytes = std::move(*bytes);
  script.lexer.emplace(script.bytes);
  script.file = static_cast<int>(file_names_.size());
  file_names_.push_back("botfiles/" + ShownText(path));
  return true;
}

bool GameSource::Define() {
  Macro macro;
  if (!ReadRestOfLine(macro.name) ||
      macro.name.kind != GameToken::Kind::kName) {
    Complain("define-without-name", Here(),
             "A name must stand behind #define, on the same line and without "
             "quotation marks.");
    return false;
  }
  const auto known = macros_.find(macro.name.text);
  if (known != macros_.end()) {
    // Game files that are included twice are nobody's fault.
    if (macro.name.file == 0) {
      Warn("defined-twice", macro.name,
           macro.name.text +
               " is defined a second time; the game takes the "
               "last value. Remove one of the lines.");
    }
    macros_.erase(known);
  }
  GameToken token;
  bool has_token = ReadRestOfLine(token);
  if (has_token && token.Is("(") && !token.blank_before) {
    if (!DefineParameters(macro)) {
      Complain("define-brackets", macro.name,
               "The game does not understand what stands in the brackets "
               "behind " +
                   macro.name.text +
                   ": names with commas between them belong there.");
      return false;
    }
    has_token = ReadRestOfLine(token);
  }
  for (; has_token; has_token = ReadRestOfLine(token)) {
    if (token.Is(macro.name.text)) {
      Warn("defined-by-itself", token,
           macro.name.text +
               " is defined by itself; the game leaves that out of its value.");
    } else {
      ReportOddity(token);
      macro.body.push_back(token);
    }
  }
  if (!macro.body.empty() &&
      (macro.body.front().Is("##") || macro.body.back().Is("##"))) {
    Complain("misplaced-merge", macro.name,
             "A ## must stand between two words.");
    return false;
  }
  macro.parameter_count = static_cast<int>(macro.parameters.size());
  macros_[macro.name.text] = std::move(macro);
  return true;
}

bool GameSource::DefineParameters(Macro& macro) {
  GameToken token;
  if (!ReadRestOfLine(token)) return false;
  if (token.Is(")")) return true;
  while (true) {
    const bool is_new =
        std::find(macro.parameters.begin(), macro.parameters.end(),
                  token.text) == macro.parameters.end();
    if (token.kind != GameToken::Kind::kName || !is_new) return false;
    macro.parameters.push_back(token.text);
    if (!ReadRestOfLine(token)) return false;
    if (token.Is(")")) return true;
    if (!token.Is(",") || !ReadRestOfLine(token)) return false;
  }
}

bool GameSource::Undefine() {
  GameToken token;
  if (!ReadRestOfLine(token) || token.kind != GameToken::Kind::kName) {
    Complain("define-without-name", Here(),
             "A name must stand behind #undef, on the same line.");
    return false;
  }
  macros_.erase(token.text);
  return true;
}

bool GameSource::IfDefined(bool wanted) {
  GameToken token;
  if (!ReadRestOfLine(token) || token.kind != GameToken::Kind::kName) {
    Complain("condition", Here(),
             "A name must stand behind #ifdef and #ifndef, on the same line.");
    return false;
  }
  const bool is_skipped = macros_.contains(token.text) != wanted;
  conditions_.push_back({is_skipped, false, &scripts_.back()});
  skipped_ += is_skipped ? 1 : 0;
  return true;
}

bool GameSource::If(bool is_elif) {
  if (is_elif) {
    if (conditions_.empty() || conditions_.back().script != &scripts_.back() ||
        conditions_.back().is_else) {
      Complain("condition", Here(), "There is no #if for this #elif.");
      return false;
    }
    skipped_ -= conditions_.back().is_skipped ? 1 : 0;
    conditions_.pop_back();
  }
  double value = 0;
  if (skipped_ == 0 && !Evaluate(Extent::kLine, false, value)) return false;
  const bool is_skipped = value == 0;
  conditions_.push_back({is_skipped, false, &scripts_.back()});
  skipped_ += is_skipped ? 1 : 0;
  return true;
}

bool GameSource::Else() {
  if (conditions_.empty() || conditions_.back().script != &scripts_.back() ||
      conditions_.back().is_else) {
    Complain("condition", Here(), "There is no #if for this #else.");
    return false;
  }
  Condition& condition = conditions_.back();
  condition.is_else = true;
  condition.is_skipped = !condition.is_skipped;
  skipped_ += condition.is_skipped ? 1 : -1;
  return true;
}

bool GameSource::EndIf() {
  if (conditions_.empty() || conditions_.back().script != &scripts_.back()) {
    Complain("condition", Here(), "There is no #if for this #endif.");
    return false;
  }
  skipped_ -= conditions_.back().is_skipped ? 1 : 0;
  conditions_.pop_back();
  return true;
}

/// Puts the macro's text in place of its name. A macro that leaves nothing
/// stops the game's reading like an error.
bool GameSource::Expand(const GameToken& name, const Macro& macro) {
  if (macro.name.file == 0) {
    last_macro_ = macro.name.text;
    last_macro_name_ = macro.name;
  }
  std::vector<std::vector<GameToken>> arguments(
      static_cast<std::size_t>(macro.parameter_count));
  if (macro.parameter_count > 0 && !ReadArguments(name, macro, arguments)) {
    return false;
  }
  std::vector<GameToken> tokens;
  for (std::size_t at = 0; at < macro.body.size(); ++at) {
    const auto argument_at =
        [&](std::size_t place) -> const std::vector<GameToken>* {
      if (place >= macro.body.size()) return nullptr;
      const auto found =
          std::find(macro.parameters.begin(), macro.parameters.end(),
                    macro.body[place].text);
      if (found == macro.parameters.end()) return nullptr;
      return &arguments[static_cast<std::size_t>(found -
                                                 macro.parameters.begin())];
    };
    if (macro.parameter_count > 0 && macro.body[at].Is("#")) {
      const std::vector<GameToken>* const argument = argument_at(at + 1);
      if (argument == nullptr) continue;
      GameToken text = macro.body[at++];
      text.kind = GameToken::Kind::kString;
      text.text.clear();
      for (const GameToken& token : *argument) text.text += token.text;
      tokens.push_back(std::move(text));
    } else if (const std::vector<GameToken>* const argument = argument_at(at)) {
      tokens.insert(tokens.end(), argument->begin(), argument->end());
    } else {
      tokens.push_back(macro.body[at]);
    }
    if (tokens.size() > kMostExpansion) break;
  }
  if (!Merge(tokens)) return false;
  if (tokens.empty()) {
    Complain("empty-macro", name,
             "There is no value behind " + ShownText(name.text) +
                 ". Write one behind its #define, on the same line.");
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
    Complain("macro-brackets", name,
             macro.name.text + " needs " +
                 std::to_string(macro.parameter_count) +
                 " value(s) in brackets behind it, with commas between them.");
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
    if (!fits || left.text.size() > GameLexer::kMostString) {
      Complain("misplaced-merge", left,
               "The game cannot make one word of " + Quoted(left.text) +
                   " and " + Quoted(right.text) + ".");
      return false;
    }
    left.text += right.text;
  }
  tokens = std::move(merged);
  return true;
}

/// The value of the rest of the line, or of what stands in brackets; without
/// brackets the game then looks for them up to the end of the file.
bool GameSource::Evaluate(Extent extent, bool is_float, double& value) {
  std::vector<GameToken> tokens;
  GameToken token;
  int brackets = 0;
  while (extent == Extent::kLine ? ReadRestOfLine(token) : ReadRaw(token)) {
    if (token.kind == GameToken::Kind::kName) {
      if (!EvaluateName(token, tokens)) return false;
      continue;
    }
    if (token.kind != GameToken::Kind::kNumber &&
        token.kind != GameToken::Kind::kSign) {
      Complain("cannot-calculate", token,
               "The game cannot calculate with " + Quoted(token.text) +
                   ". A plain number must stand here.");
      return false;
    }
    tokens.push_back(token);
    if (extent == Extent::kLine) continue;
    if (token.Is("(")) ++brackets;
    if (token.Is(")") && --brackets <= 0) break;
  }
  const std::optional<double> result = GameExpressionValue(tokens, is_float);
  if (!result) {
    GameToken place = Here();
    if (!tokens.empty()) place = tokens.back();
    std::string text = "The game cannot work out this calculation.";
    if (!last_macro_.empty()) {
      text += " The value of " + last_macro_ + " must be one plain number.";
    }
    Complain("cannot-calculate", place, std::move(text));
    return false;
  }
  value = *result;
  return true;
}

/// A name in a calculation: a macro, or a question for one.
bool GameSource::EvaluateName(const GameToken& name,
                              std::vector<GameToken>& tokens) {
  if (name.text == "defined") {
    GameToken token;
    bool has_name = ReadRaw(token);
    const bool has_bracket = has_name && token.Is("(");
    if (has_bracket) has_name = ReadRaw(token);
    GameToken answer = name;
    answer.kind = GameToken::Kind::kNumber;
    answer.number = has_name && macros_.contains(token.text) ? 1 : 0;
    tokens.push_back(std::move(answer));
    if (has_bracket) ReadRaw(token);
    return has_name;
  }
  const auto macro = macros_.find(name.text);
  if (macro != macros_.end()) return Expand(name, macro->second);
  Complain("macro-missing", name,
           "The game looks for a value of " + ShownText(name.text) +
               " and finds none. Write #define " + ShownText(name.text) +
               " and a number in this file; capital letters count.");
  return false;
}

/// A negative result becomes a minus sign and a number.
void GameSource::PutNumber(double value, bool is_float,
                           const GameToken& where) {
  GameToken number = where;
  number.kind = GameToken::Kind::kNumber;
  number.is_whole = !is_float;
  number.number = std::abs(value);
  number.text = PlainDecimal(number.number, kDoubleDigits);
  Unread(number);
  if (value >= 0) return;
  number.kind = GameToken::Kind::kSign;
  number.text = "-";
  Unread(std::move(number));
}

}  // namespace fragsmith
