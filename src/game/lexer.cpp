#include "game/lexer.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "game/limits.h"
#include "support/game_blank.h"

namespace fragsmith {
namespace {

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

bool IsLetter(char letter) {
  return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
}

bool IsHexDigit(char letter) {
  return IsDigit(letter) || (letter >= 'a' && letter <= 'f') ||
         (letter >= 'A' && letter <= 'F');
}

bool BeginsName(char letter) { return IsLetter(letter) || letter == '_'; }

constexpr std::string_view kSingleSigns = "*/%+-~&|^!><.,;:=?(){}[]\\#$";

constexpr std::array<std::string_view, 24> kLongSigns = {
    ">>=", "<<=", "...", "##", "&&", "||", ">=", "<=", "==", "!=", "*=", "/=",
    "%=",  "+=",  "-=",  "++", "--", "&=", "|=", "^=", ">>", "<<", "->", "::"};

/// Digits of a base as a number; too large ones become infinite.
double Digits(std::string_view digits, int base) {
  double number = 0;
  for (const char digit : digits) {
    int value = digit - '0';
    if (digit >= 'a') value = digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'Z') value = digit - 'A' + 10;
    number = number * base + value;
  }
  return number;
}

/// Digits with points as the game works them out: behind the first point it
/// takes whatever stands there for a digit, the end of the text too, and at
/// another point it stops.
double WithOddPoints(std::string_view text) {
  const std::size_t point = text.find('.');
  double number = Digits(text.substr(0, point), 10);
  double divisor = 10;
  for (std::size_t at = point + 1;; ++at) {
    const char sign = at < text.size() ? text[at] : '\0';
    if (at > point + 1 && (sign == '.' || sign == '\0')) return number;
    number += (sign - '0') / divisor;
    divisor *= 10;
  }
}

void Evaluate(GameToken& token) {
  const std::string_view text = token.text;
  const auto points = std::count(text.begin(), text.end(), '.');
  token.is_whole = points == 0;
  if (text.starts_with("0x") || text.starts_with("0X")) {
    token.number = Digits(text.substr(2), 16);
  } else if (text.starts_with("0b") || text.starts_with("0B")) {
    token.number = Digits(text.substr(2), 2);
  } else if (points == 0 && text.size() > 1 && text[0] == '0' &&
             text.find_first_of("89") == std::string_view::npos) {
    token.number = Digits(text, 8);
    if (token.number >= 8) token.oddity = GameToken::Oddity::kOctal;
  } else {
    std::from_chars(text.data(), text.data() + text.size(), token.number);
    if (points > 1) token.oddity = GameToken::Oddity::kTwoPoints;
    if (points == 1 && text.back() == '.') {
      token.oddity = GameToken::Oddity::kPointAtEnd;
    }
    if (token.oddity != GameToken::Oddity::kNone) {
      token.number = WithOddPoints(text);
    }
  }
}

}  // namespace

GameLexer::GameLexer(std::string_view bytes)
    : bytes_(bytes.substr(0, bytes.find('\0'))) {}

char GameLexer::At(std::size_t ahead) const {
  return offset_ + ahead < bytes_.size() ? bytes_[offset_ + ahead] : '\0';
}

/// Blanks and comments; true when there were some.
bool GameLexer::SkipBlanks() {
  const std::size_t start = offset_;
  while (offset_ < bytes_.size()) {
    if (IsGameBlank(At())) {
      line_ += At() == '\n' ? 1 : 0;
      ++offset_;
    } else if (At() == '/' && At(1) == '/') {
      offset_ = std::min(bytes_.find('\n', offset_), bytes_.size());
    } else if (At() == '/' && At(1) == '*') {
      const std::size_t end =
          std::min(bytes_.find("*/", offset_ + 2), bytes_.size());
      const std::string_view comment = bytes_.substr(offset_, end - offset_);
      line_ +=
          static_cast<int>(std::count(comment.begin(), comment.end(), '\n'));
      offset_ = std::min(end + 2, bytes_.size());
    } else {
      break;
    }
  }
  return offset_ > start;
}

GameLexer::Outcome GameLexer::Next(GameToken& token) {
  token = {};
  token.blank_before = SkipBlanks();
  token.span.begin = offset_;
  // A text may run on over lines.
  token.lines_crossed = line_ - last_line_;
  Outcome outcome = Outcome::kToken;
  const char first = At();
  if (offset_ >= bytes_.size()) {
    outcome = Outcome::kEnd;
  } else if (first == '"' || first == '\'') {
    outcome = TakeString(first, token);
  } else if (IsDigit(first) || (first == '.' && IsDigit(At(1)))) {
    outcome = TakeNumber(token);
  } else if (BeginsName(first)) {
    outcome = TakeName(token);
  } else {
    const std::string_view rest = bytes_.substr(offset_);
    for (const std::string_view sign : kLongSigns) {
      if (token.text.empty() && rest.starts_with(sign)) token.text = sign;
    }
    if (token.text.empty() &&
        kSingleSigns.find(first) != std::string_view::npos) {
      token.text = first;
    }
    if (token.text.empty()) outcome = Outcome::kUnreadable;
    offset_ += token.text.size();
  }
  token.span.end = offset_;
  token.line = line_;
  if (outcome == Outcome::kToken) last_line_ = line_;
  return outcome;
}

/// Strings side by side are one, also over lines and comments.
GameLexer::Outcome GameLexer::TakeString(char quote, GameToken& token) {
  token.kind =
      quote == '"' ? GameToken::Kind::kString : GameToken::Kind::kLiteral;
  std::string text;
  ++offset_;
  while (true) {
    if (text.size() > limits::kMaxString) return Outcome::kStringTooLong;
    const char letter = At();
    if (offset_ >= bytes_.size()) return Outcome::kOpenString;
    if (letter == '\n') return Outcome::kLineEndInString;
    if (letter == '\\') {
      if (!TakeEscape(text)) {
        token.oddity = GameToken::Oddity::kUnknownEscape;
        text += '\0';
      }
      continue;
    }
    ++offset_;
    if (letter != quote) {
      text += letter;
      continue;
    }
    if (quote == '\'') break;
    const std::size_t end = offset_;
    const int end_line = line_;
    SkipBlanks();
    if (At() != quote) {
      offset_ = end;
      line_ = end_line;
      break;
    }
    ++offset_;
  }
  // What the game has is a text that ends at a NUL.
  token.text = text.substr(0, text.find('\0'));
  return Outcome::kToken;
}

/// False for a "\" that begins no escape, which then has been passed with the
/// letter behind it.
bool GameLexer::TakeEscape(std::string& text) {
  constexpr std::string_view kMeanings = "\\\"'?\n\r\t\v\b\f\a";
  constexpr std::string_view kLetters = kEscapes.substr(0, kMeanings.size());
  ++offset_;
  const char letter = At();
  if (const std::size_t at = kLetters.find(letter);
      letter != '\0' && at != std::string_view::npos) {
    text += kMeanings[at];
    ++offset_;
    return true;
  }
  int base = 10;
  if (letter == 'x') {
    base = 16;
    ++offset_;
  }
  const std::size_t start = offset_;
  // The game takes all letters for digits here, also those behind F.
  while (IsDigit(At()) || (base == 16 && IsLetter(At()))) ++offset_;
  if (base == 10 && offset_ == start) {
    // A line end stays for the string to stumble over.
    if (letter != '\0' && letter != '\n') ++offset_;
    return false;
  }
  const double value = Digits(bytes_.substr(start, offset_ - start), base);
  text += static_cast<char>(static_cast<int>(std::min(value, 255.0)));
  return true;
}

GameLexer::Outcome GameLexer::TakeNumber(GameToken& token) {
  token.kind = GameToken::Kind::kNumber;
  const std::size_t start = offset_;
  if (At() == '0' && (At(1) == 'x' || At(1) == 'X')) {
    offset_ += 2;
    while (IsHexDigit(At())) ++offset_;
  } else if (At() == '0' && (At(1) == 'b' || At(1) == 'B')) {
    offset_ += 2;
    while (At() == '0' || At() == '1') ++offset_;
  } else {
    while (IsDigit(At()) || At() == '.') ++offset_;
  }
  if (offset_ - start > limits::kMaxNumber) return Outcome::kNumberTooLong;
  token.text = bytes_.substr(start, offset_ - start);
  // "10L", "10u" and both together.
  bool has_long = false;
  bool has_unsigned = false;
  for (int count = 0; count < 2; ++count) {
    bool& has = At() == 'l' || At() == 'L' ? has_long : has_unsigned;
    if (has || std::string_view("lLuU").find(At()) == std::string_view::npos ||
        offset_ >= bytes_.size()) {
      break;
    }
    has = true;
    ++offset_;
  }
  Evaluate(token);
  return Outcome::kToken;
}

GameLexer::Outcome GameLexer::TakeName(GameToken& token) {
  token.kind = GameToken::Kind::kName;
  const std::size_t start = offset_;
  while (BeginsName(At()) || IsDigit(At())) ++offset_;
  if (offset_ - start > limits::kMaxIdentifier) return Outcome::kNameTooLong;
  token.text = bytes_.substr(start, offset_ - start);
  return Outcome::kToken;
}

}  // namespace fragsmith
