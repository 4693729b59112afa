#include "checks/game_lexer.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace fragsmith {
namespace {

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

bool IsHexDigit(char letter) {
  return IsDigit(letter) || (letter >= 'a' && letter <= 'f') ||
         (letter >= 'A' && letter <= 'F');
}

bool BeginsName(char letter) {
  return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
         letter == '_';
}

/// Bytes are signed in the games that people play, so those from 128 on count
/// as blanks as well.
bool IsBlank(char letter) {
  const auto byte = static_cast<unsigned char>(letter);
  return byte != 0 && (byte <= ' ' || byte >= 128);
}

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
    if (digit >= 'A' && digit <= 'F') value = digit - 'A' + 10;
    number = number * base + value;
  }
  return number;
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
      token.number = -3.8;
    }
  }
}

}  // namespace

GameLexer::GameLexer(std::string_view bytes)
    : bytes_(bytes.substr(0, bytes.find('\0'))) {}

char GameLexer::At(std::size_t ahead) const {
  return place_ + ahead < bytes_.size() ? bytes_[place_ + ahead] : '\0';
}

/// Blanks and comments; true when there were some.
bool GameLexer::SkipBlanks() {
  const std::size_t start = place_;
  while (place_ < bytes_.size()) {
    if (IsBlank(At())) {
      line_ += At() == '\n' ? 1 : 0;
      ++place_;
    } else if (At() == '/' && At(1) == '/') {
      place_ = std::min(bytes_.find('\n', place_), bytes_.size());
    } else if (At() == '/' && At(1) == '*') {
      const std::size_t end =
          std::min(bytes_.find("*/", place_ + 2), bytes_.size());
      const std::string_view comment = bytes_.substr(place_, end - place_);
      line_ +=
          static_cast<int>(std::count(comment.begin(), comment.end(), '\n'));
      place_ = std::min(end + 2, bytes_.size());
    } else {
      break;
    }
  }
  return place_ > start;
}

GameLexer::Outcome GameLexer::Next(GameToken& token) {
  token = {};
  token.blank_before = SkipBlanks();
  Outcome outcome = Outcome::kToken;
  const char first = At();
  if (place_ >= bytes_.size()) {
    outcome = Outcome::kEnd;
  } else if (first == '"' || first == '\'') {
    outcome = TakeString(first, token);
  } else if (IsDigit(first) || (first == '.' && IsDigit(At(1)))) {
    outcome = TakeNumber(token);
  } else if (BeginsName(first)) {
    outcome = TakeName(token);
  } else {
    const std::string_view rest = bytes_.substr(place_);
    for (const std::string_view sign : kLongSigns) {
      if (token.text.empty() && rest.starts_with(sign)) token.text = sign;
    }
    if (token.text.empty() &&
        kSingleSigns.find(first) != std::string_view::npos) {
      token.text = first;
    }
    if (token.text.empty()) outcome = Outcome::kUnreadable;
    place_ += token.text.size();
  }
  token.line = line_;
  token.lines_crossed = line_ - last_line_;
  if (outcome == Outcome::kToken) last_line_ = line_;
  return outcome;
}

/// Strings side by side are one, also over lines and comments.
GameLexer::Outcome GameLexer::TakeString(char quote, GameToken& token) {
  token.kind =
      quote == '"' ? GameToken::Kind::kString : GameToken::Kind::kLiteral;
  std::string text;
  ++place_;
  while (true) {
    if (text.size() > kMostString) return Outcome::kStringTooLong;
    const char letter = At();
    if (place_ >= bytes_.size()) return Outcome::kOpenString;
    if (letter == '\n') return Outcome::kLineEndInString;
    if (letter == '\\') {
      if (!TakeEscape(text)) {
        token.oddity = GameToken::Oddity::kUnknownEscape;
        text += '\0';
      }
      continue;
    }
    ++place_;
    if (letter != quote) {
      text += letter;
      continue;
    }
    if (quote == '\'') break;
    const std::size_t end = place_;
    const int end_line = line_;
    SkipBlanks();
    if (At() != quote) {
      place_ = end;
      line_ = end_line;
      break;
    }
    ++place_;
  }
  // What the game has is a text that ends at a NUL.
  token.text = text.substr(0, text.find('\0'));
  return Outcome::kToken;
}

/// False for a "\" that begins no escape, which then has been passed with the
/// letter behind it.
bool GameLexer::TakeEscape(std::string& text) {
  constexpr std::string_view kLetters = "\\\"'?nrtvbfa";
  constexpr std::string_view kMeanings = "\\\"'?\n\r\t\v\b\f\a";
  ++place_;
  const char letter = At();
  if (const std::size_t at = kLetters.find(letter);
      letter != '\0' && at != std::string_view::npos) {
    text += kMeanings[at];
    ++place_;
    return true;
  }
  int base = 10;
  if (letter == 'x') {
    base = 16;
    ++place_;
  }
  const std::size_t start = place_;
  while (base == 16 ? IsHexDigit(At()) : IsDigit(At())) ++place_;
  if (base == 10 && place_ == start) {
    // A line end stays for the string to stumble over.
    if (letter != '\0' && letter != '\n') ++place_;
    return false;
  }
  const double value = Digits(bytes_.substr(start, place_ - start), base);
  text += static_cast<char>(static_cast<int>(std::min(value, 255.0)));
  return true;
}

GameLexer::Outcome GameLexer::TakeNumber(GameToken& token) {
  token.kind = GameToken::Kind::kNumber;
  const std::size_t start = place_;
  if (At() == '0' && (At(1) == 'x' || At(1) == 'X')) {
    place_ += 2;
    while (IsHexDigit(At())) ++place_;
  } else if (At() == '0' && (At(1) == 'b' || At(1) == 'B')) {
    place_ += 2;
    while (At() == '0' || At() == '1') ++place_;
  } else {
    while (IsDigit(At()) || At() == '.') ++place_;
  }
  if (place_ - start > kMostNumber) return Outcome::kNumberTooLong;
  token.text = bytes_.substr(start, place_ - start);
  // "10L", "10u" and both together.
  bool has_long = false;
  bool has_unsigned = false;
  for (int count = 0; count < 2; ++count) {
    bool& has = At() == 'l' || At() == 'L' ? has_long : has_unsigned;
    if (has || std::string_view("lLuU").find(At()) == std::string_view::npos ||
        place_ >= bytes_.size()) {
      break;
    }
    has = true;
    ++place_;
  }
  Evaluate(token);
  return Outcome::kToken;
}

GameLexer::Outcome GameLexer::TakeName(GameToken& token) {
  token.kind = GameToken::Kind::kName;
  const std::size_t start = place_;
  while (BeginsName(At()) || IsDigit(At())) ++place_;
  if (place_ - start > kMostName) return Outcome::kNameTooLong;
  token.text = bytes_.substr(start, place_ - start);
  return Outcome::kToken;
}

}  // namespace fragsmith
