#include "checks/game_preprocessor.h"

#include <algorithm>
#include <utility>

#include "support/text.h"

namespace fragsmith {
namespace {

/// Beyond so many tokens a file is endless: the game's own largest files have
/// some ten thousand.
constexpr std::size_t kMostWork = 500'000;
/// Tokens waiting to be read again, after macros have been replaced.
constexpr std::size_t kMostUnread = 50'000;
/// Texts that a macro or a directive parts, to be joined into one.
constexpr int kMostDepth = 100;

}  // namespace

std::string NormalGamePath(std::string_view path) {
  std::string normal;
  for (char letter : path) {
    if (letter == '\\') letter = '/';
    const bool is_doubled =
        letter == '/' && (normal.empty() || normal.back() == '/');
    if (!is_doubled) normal += letter;
  }
  return normal;
}

GameSource::GameSource(const GameFile& file, const IncludeLookup& game,
                       FileFindings& findings)
    : file_(file),
      game_(game),
      findings_(findings),
      file_names_{file.name},
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
    if (token.kind == GameToken::Kind::kString && !Join(token)) return false;
    if (skipped_ > 0) continue;
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
             "The file ends here, but the game expects more. Most often a } is "
             "missing somewhere above, or a comment that begins with /* is "
             "never closed.");
  }
  return false;
}

bool GameSource::Expect(std::string_view word) {
  GameToken token;
  if (!ReadAny(token)) return false;
  if (token.Is(word)) return true;
  std::string text = "The game expects " + Quoted(word) + " here but finds " +
                     Quoted(token.text) + ".";
  if (!last_macro_.empty()) {
    text += " The value of " + last_macro_ + " must be one plain number.";
  }
  Complain("expected-other", token, std::move(text));
  return false;
}

bool GameSource::ExpectString(GameToken& token) {
  if (!ReadAny(token)) return false;
  if (token.kind == GameToken::Kind::kString) return true;
  Complain("expected-text", token,
           "The game expects a text in quotation marks here but finds " +
               Quoted(token.text) + ".");
  return false;
}

bool GameSource::ExpectNumber(Numbers numbers, GameToken& token) {
  if (!ReadAny(token)) return false;
  if (token.kind == GameToken::Kind::kNumber &&
      (token.is_whole || numbers == Numbers::kAny)) {
    return true;
  }
  std::string text =
      "The game expects a number here but finds " + Quoted(token.text) + ".";
  if (token.text.starts_with("INVENTORY_")) {
    text += " Write #include \"inv.h\" at the top of the file.";
  }
  Complain("expected-number", token, std::move(text));
  return false;
}

bool GameSource::Take(std::string_view word) {
  GameToken token;
  if (!Read(token)) return false;
  if (token.Is(word)) return true;
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
    if (outcome == GameLexer::Outcome::kToken) return true;
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
  if (depth_ >= kMostDepth) return true;
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
  if (token.text.size() <= GameLexer::kMostString) return true;
  ReportLexer(GameLexer::Outcome::kStringTooLong, token);
  return false;
}

/// At the end of a file its open #if end as well.
void GameSource::CloseConditions(const Script& script) {
  while (!conditions_.empty() && conditions_.back().script == &script) {
    skipped_ -= conditions_.back().is_skipped ? 1 : 0;
    conditions_.pop_back();
    Warn("endif-missing", Here(),
         "An #if, #ifdef or #ifndef above has no #endif. Put one where the "
         "part ends that it is about.");
  }
}

/// Keeps files that feed on themselves from running on and on; in the game
/// they do.
bool GameSource::Count() {
  if (is_endless_) return false;
  if (++work_ <= kMostWork && unread_.size() <= kMostUnread) return true;
  is_endless_ = true;
  Complain("endless-file", Here(),
           "Reading this file never ends: the game stands still for ever. Look "
           "for #define lines that name each other in a circle, or a file "
           "that is included over and over.");
  return false;
}

GameToken GameSource::Here() const {
  GameToken token;
  token.file = scripts_.back().file;
  token.line = scripts_.back().lexer->line();
  return token;
}

void GameSource::Report(std::string_view id, Severity severity,
                        const GameToken& token, std::string text) {
  if (severity == Severity::kError) has_complained_ = true;
  int line = token.line;
  if (token.file != 0) {
    line = last_macro_.empty() ? 0 : last_macro_name_.line;
    const std::string place =
        file_names_[static_cast<std::size_t>(token.file)] + ", line " +
        std::to_string(token.line);
    text += last_macro_.empty()
                ? " (Noticed in " + place + ", which this file includes.)"
                : " (Noticed where " + place + " uses " + last_macro_ + ".)";
  }
  findings_.Add(id, severity, file_.name, line, std::move(text));
}

void GameSource::ReportLexer(GameLexer::Outcome outcome,
                             const GameToken& token) {
  using Outcome = GameLexer::Outcome;
  switch (outcome) {
    case Outcome::kLineEndInString:
      return Complain(
          "line-end-in-text", token,
          "A quotation mark (\" or ') opens a text here that does not end on "
          "its line. The game stops at it. Close the text on the same line, "
          "and write \\\" for a quotation mark inside a text.");
    case Outcome::kOpenString:
      return Complain(
          "open-text", token,
          "A quotation mark (\" or ') opens a text here that never ends. Close "
          "it.");
    case Outcome::kStringTooLong:
      return Complain(
          "text-too-long", token,
          "This text has more than the 1020 characters that the game can hold. "
          "Texts that stand side by side count as one: perhaps a ; or a , is "
          "missing between them.");
    case Outcome::kNumberTooLong:
    case Outcome::kNameTooLong:
      return Complain(
          "word-too-long", token,
          "This word or number is too long for the game. Shorten it.");
    case Outcome::kUnreadable:
      return Complain(
          "unreadable", token,
          "The game cannot read a character that stands here outside a text, "
          "and goes no further. Delete it.");
    case Outcome::kToken:
    case Outcome::kEnd:
      return;
  }
}

void GameSource::ReportOddity(const GameToken& token) {
  if (token.file != 0) return;
  const std::string text = Quoted(token.text);
  switch (token.oddity) {
    case GameToken::Oddity::kNone:
      return;
    case GameToken::Oddity::kUnknownEscape:
      return Warn("unknown-escape", token,
                  "The game cuts this text at a \\ that it does not "
                  "understand: " +
                      text +
                      " is all that remains. Write \\\\ for the sign itself, "
                      "or remove it.");
    case GameToken::Oddity::kPointAtEnd:
      return Warn(
          "point-at-end", token,
          "The game reads " + text + " as -3.8. Put a digit behind the point.");
    case GameToken::Oddity::kTwoPoints:
      return Warn("two-points", token,
                  "The game makes some other number of " + text +
                      ". Leave one point only.");
    case GameToken::Oddity::kOctal:
      return Warn("leading-zero", token,
                  "With a zero in front the game reads " + text + " as " +
                      std::to_string(static_cast<long long>(
                          std::min(token.number, 9e15))) +
                      ", a number to the base 8. Remove the zero.");
  }
}

}  // namespace fragsmith
