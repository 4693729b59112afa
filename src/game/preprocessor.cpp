#include "game/preprocessor.h"

#include <utility>

#include "chat/vocabulary.h"
#include "game/file_faults.h"
#include "game/game_path.h"
#include "game/limits.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Beyond so many tokens a file is endless: the game's own largest files have
/// some ten thousand.
constexpr std::size_t kMaxWork = 500'000;
/// Tokens waiting to be read again, after macros have been replaced.
constexpr std::size_t kMaxUnread = 50'000;
/// Texts that a macro or a directive parts, to be joined into one.
constexpr int kMaxDepth = 100;

}  // namespace

GameSource::GameSource(const GameFile& file, const IncludeLookup& game,
                       Complaints& findings)
    : file_(file),
      game_(game),
      findings_(findings),
      file_names_{file.name},
      include_lines_{0},
      scripts_(1) {
  Script& script = scripts_.back();
  script.path = NormalGamePath(file.game_path);
  script.lexer.emplace(file.bytes);
}

bool GameSource::Read(GameToken& token) {
  while (ReadRaw(token)) {
    if (token.Is("#")) {
      if (!Directive()) return false;
      continue;
    }
    if (token.Is("$")) {
      if (!Dollar()) return false;
      continue;
    }
    // The game joins texts before it looks whether they are passed over, so
    // the last text of a part between #if 0 and #endif comes out of it.
    const bool was_skipped = skipped_ > 0;
    if (token.kind == GameToken::Kind::kString && !Join(token)) return false;
    if (skipped_ > 0) continue;
    if (was_skipped) leaked_ = token;
    if (token.kind == GameToken::Kind::kName) {
      const auto macro = macros_.find(token.text);
      if (macro != macros_.end()) {
        if (!Expand(token, macro->second)) return false;
        continue;
      }
    }
    ReportOddity(token);
    return true;
  }
  return false;
}

void GameSource::Unread(GameToken token) {
  unread_.push_front(std::move(token));
}

bool GameSource::SkipBlock() {
  GameToken token;
  for (int depth = 1; depth > 0;) {
    if (!ReadAny(token)) return false;
    if (token.Is("{")) ++depth;
    if (token.Is("}")) --depth;
  }
  return true;
}

bool GameSource::ReadAny(GameToken& token) {
  has_complained_ = false;
  if (Read(token)) return true;
  if (!has_complained_) {
    Complain("file-ends-early", Here(),
             Localized("The file ends here, but the game expects more.") +
                 AdviceForOpenBrace(file_.bytes));
  }
  return false;
}

bool GameSource::Expect(std::string_view word, GameToken* expected) {
  GameToken token;
  if (!ReadAny(token)) return false;
  if (token.Is(word)) {
    if (expected != nullptr) *expected = std::move(token);
    return true;
  }
  if (ComplainOfMacroValue()) return false;
  Complain("expected-other", token,
           Localized("The game expects %1 here but finds %2. Write what is "
                     "missing, or remove what does not belong here.",
                     {Quoted(word),
                      Quoted(token.macro.empty() ? token.text : token.macro)}));
  return false;
}

bool GameSource::ExpectBrace(const GameToken& last, GameToken* brace) {
  GameToken token;
  if (!ReadAny(token)) return false;
  if (token.Is("{")) {
    if (brace != nullptr) *brace = std::move(token);
    return true;
  }
  const bool is_bracket = token.Is("(") || token.Is("[");
  const bool is_behind = token.file == last.file && token.line == last.line;
  std::string text =
      Localized("The game expects a { behind %1 but finds %2.",
                {Quoted(last.text),
                 Quoted(token.macro.empty() ? token.text : token.macro)}) +
      " ";
  if (is_bracket) {
    text += Localized("Write { in its place.");
  } else {
    text += is_behind ? Localized("Remove the %1.", {Quoted(token.text)})
                      : Localized("Write the { between them.");
  }
  Complain("expected-brace", is_behind || is_bracket ? token : last,
           std::move(text));
  return false;
}

bool GameSource::ExpectString(GameToken& token) {
  if (!ReadAny(token)) return false;
  if (token.kind == GameToken::Kind::kString) return true;
  Complain("expected-text", token,
           token.kind == GameToken::Kind::kLiteral
               ? Localized("The game takes no text in single quotes ('). Put "
                           "it in double ones (\").")
               : Localized("The game expects a text in quotation marks here "
                           "but finds %1. Put the text in quotation marks.",
                           {Quoted(token.text)}));
  return false;
}

bool GameSource::ExpectNumber(Numbers numbers, GameToken& token) {
  if (!ReadAny(token)) return false;
  if (token.kind == GameToken::Kind::kNumber &&
      (token.is_whole || numbers == Numbers::kAny)) {
    return true;
  }
  if (ComplainOfMacroValue()) return false;
  std::string text = Localized("The game expects a number here but finds %1.",
                               {Quoted(token.text)});
  if (token.text.starts_with("INVENTORY_")) {
    text += " " + Localized("Write #include \"%1\" at the top of the file.",
                            {"inv.h"});
  } else if (token.kind == GameToken::Kind::kString) {
    text += " " + Localized("Remove the quotation marks.");
  } else if (token.Is("(")) {
    text += " " + Localized("Write it without brackets.");
  }
  Complain("expected-number", token, std::move(text));
  return false;
}

bool GameSource::Take(std::string_view word, GameToken* taken) {
  GameToken token;
  if (!Read(token)) return false;
  if (token.Is(word)) {
    if (taken != nullptr) *taken = std::move(token);
    return true;
  }
  Unread(std::move(token));
  return false;
}

void GameSource::Complain(std::string_view id, const GameToken& token,
                          std::string text) {
  Report(id, Severity::kError, token, std::move(text));
}

void GameSource::Warn(std::string_view id, const GameToken& token,
                      std::string text) {
  Report(id, Severity::kWarning, token, std::move(text));
}

void GameSource::ForgetMacro() { last_macro_.clear(); }

std::vector<OwnMacro> GameSource::OwnMacros() const {
  std::vector<OwnMacro> macros;
  for (const auto& [name, macro] : macros_) {
    if (macro.name.file != 0) continue;
    OwnMacro own = {name, {}, {}};
    for (const GameToken& token : macro.body) {
      if (own.value.empty()) own.value = token.span;
      own.value.end = token.span.end;
      own.text += own.text.empty() ? token.text : ' ' + token.text;
    }
    macros.push_back(std::move(own));
  }
  return macros;
}

/// The next token as it stands, out of the innermost file that has one.
bool GameSource::ReadRaw(GameToken& token) {
  if (!Count()) return false;
  if (!unread_.empty()) {
    token = std::move(unread_.front());
    unread_.pop_front();
    return true;
  }
  while (true) {
    Script& script = scripts_.back();
    const GameLexer::Outcome outcome = script.lexer->Next(token);
    token.file = script.file;
    if (outcome == GameLexer::Outcome::kToken) {
      if (token.kind == GameToken::Kind::kNumber && script.file == 0) {
        token.own = {token.span, token.number};
      }
      return true;
    }
    if (outcome != GameLexer::Outcome::kEnd) {
      ReportLexer(outcome, token);
      return false;
    }
    CloseConditions(script);
    if (scripts_.size() == 1) return false;
    scripts_.pop_back();
  }
}

/// The next token when it stands on the line of the last one, or behind a "\"
/// at the line's end. An error in the first word of the next line is met, and
/// forgotten, here.
bool GameSource::ReadRestOfLine(GameToken& token) {
  int crossed = 0;
  do {
    if (!ReadRaw(token)) return false;
    if (token.lines_crossed > crossed) {
      Unread(std::move(token));
      return false;
    }
    crossed = 1;
  } while (token.Is("\\"));
  return true;
}

/// Texts side by side are one, also when a macro or a directive parts them.
bool GameSource::Join(GameToken& token) {
  if (depth_ >= kMaxDepth) return true;
  const bool was_skipped = skipped_ > 0;
  ++depth_;
  GameToken next;
  const bool has_next = Read(next);
  --depth_;
  if (!has_next) return true;
  if (next.kind != GameToken::Kind::kString) {
    Unread(std::move(next));
    return true;
  }
  token.text += next.text;
  const bool is_behind =
      next.file == token.file && next.span.begin >= token.span.end;
  token.span =
      is_behind ? TextSpan{token.span.begin, next.span.end} : TextSpan();
  if (token.text.size() <= limits::kMaxString) return true;
  if (skipped_ > 0) {
    skipped_from_ = conditions_.back().begin;
    is_skipped_to_end_ = false;
  }
  if (was_skipped) leaked_ = token;
  if (!ComplainOfLeak(token)) {
    ReportLexer(GameLexer::Outcome::kStringTooLong, token);
  }
  return false;
}

void GameSource::OpenCondition(bool is_skipped, const GameToken& begin) {
  conditions_.push_back({is_skipped, false, &scripts_.back(), begin});
  skipped_ += is_skipped ? 1 : 0;
}

void GameSource::CloseCondition() {
  const Condition& condition = conditions_.back();
  if (condition.is_skipped) {
    --skipped_;
    skipped_from_ = condition.begin;
    is_skipped_to_end_ = false;
  }
  conditions_.pop_back();
}

/// At the end of a file its open #if end as well.
void GameSource::CloseConditions(const Script& script) {
  while (!conditions_.empty() && conditions_.back().script == &script) {
    const GameToken begin = conditions_.back().begin;
    CloseCondition();
    is_skipped_to_end_ = true;
    Warn("endif-missing", begin,
         Localized("The #if, #ifdef or #ifndef in this line has no #endif. Put "
                   "one where the part ends that it is about."));
  }
}

bool GameSource::ComplainOfLeak(const GameToken& token) {
  if (!leaked_ || !skipped_from_ || token.kind != GameToken::Kind::kString ||
      token.file != leaked_->file || token.line != leaked_->line) {
    return false;
  }
  if (is_skipped_to_end_) {
    Complain("endif-missing", *skipped_from_,
             Localized(
                 "The #if, #ifdef or #ifndef in this line has no #endif: the "
                 "game passes over all that stands behind it, but for the "
                 "texts. Put an #endif where the part ends that it is about."));
  } else {
    Complain(
        "text-in-condition", *skipped_from_,
        Localized(
            "The game passes over what stands between this line and its "
            "#endif, but takes the texts there for a part of what follows. "
            "Make a comment of that part with /* and */, or delete it."));
  }
  return true;
}

/// Keeps files that feed on themselves from running on and on; in the game
/// they do.
bool GameSource::Count() {
  if (is_endless_) return false;
  if (++work_ <= kMaxWork && unread_.size() <= kMaxUnread) return true;
  is_endless_ = true;
  const bool is_long = scripts_.size() == 1 && file_.bytes.size() > kMaxWork;
  Complain(
      "endless-file", Here(),
      is_long
          ? Localized(
                "This file is far longer than any that a game comes with, and "
                "what stands behind this line was not looked at. Shorten it.")
          : Localized("Reading this file never ends: the game stands still for "
                      "ever. Look for #define lines that name each other in a "
                      "circle, or a file that is included over and over."));
  return false;
}

GameToken GameSource::Here() const {
  GameToken token;
  token.file = scripts_.back().file;
  token.line = scripts_.back().lexer->line();
  return token;
}

void GameSource::Report(std::string_view id, Severity severity,
                        const GameToken& token, std::string text,
                        std::string missing) {
  if (severity == Severity::kError) has_complained_ = true;
  int line = token.line;
  if (token.file != 0) {
    const auto file = static_cast<std::size_t>(token.file);
    const bool is_by_macro = IsLastMacroOdd();
    line = is_by_macro ? last_macro_name_.line : include_lines_[file];
    const std::string there = std::to_string(token.line);
    text +=
        " " +
        (is_by_macro
             ? Localized("(Noticed where %1, line %2 uses %3.)",
                         {file_names_[file], there, last_macro_})
             : Localized("(Noticed in %1, line %2, which this line includes.)",
                         {file_names_[file], there}));
  }
  if (severity == Severity::kError && line > 0) {
    const std::string_view advice =
        AdviceForLine(LineOfFile(file_.bytes, line));
    if (!advice.empty()) text += Localized(advice);
  }
  if (severity == Severity::kError && is_uncertain_ &&
      token.kind == GameToken::Kind::kName) {
    severity = Severity::kHint;
    text = Localized(
        "It is not known what the game makes of %1: a file that is included "
        "above was not looked at.",
        {Quoted(token.text)});
  }
  findings_.Add({.id = id,
                 .severity = severity,
                 .place = {.file = file_.name, .line = line},
                 .text = std::move(text),
                 .missing = std::move(missing)});
}

}  // namespace fragsmith
