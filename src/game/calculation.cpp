// What GameSource makes of calculations, behind #if, #eval and $evalint.

#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "chat/vocabulary.h"
#include "game/expression.h"
#include "game/preprocessor.h"
#include "support/localization.h"
#include "support/numbers.h"

namespace fragsmith {
namespace {

/// The number of the bot's own file that a calculation rests on; nothing where
/// there are several.
std::optional<OwnNumber> CommonOwnNumber(const std::vector<GameToken>& tokens) {
  std::optional<OwnNumber> common;
  for (const GameToken& token : tokens) {
    if (!token.own) continue;
    if (common && common != token.own) return std::nullopt;
    common = token.own;
  }
  return common;
}

}  // namespace

/// The value of the rest of the line, or of what stands in brackets; without
/// brackets the game then looks for them up to the end of the file.
bool GameSource::Evaluate(Extent extent, bool is_float, Calculation& result) {
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
      if (ComplainOfMacroValue()) return false;
      Complain("cannot-calculate", token,
               Localized("The game cannot calculate with %1. A plain number "
                         "must stand here.",
                         {Quoted(token.text)}));
      return false;
    }
    tokens.push_back(token);
    if (extent == Extent::kLine) continue;
    if (token.Is("(")) ++brackets;
    if (token.Is(")") && --brackets <= 0) break;
  }
  const std::optional<double> value = GameExpressionValue(tokens, is_float);
  if (!value) {
    GameToken place = Here();
    if (!tokens.empty()) place = tokens.back();
    if (ComplainOfMacroValue()) return false;
    Complain(
        "cannot-calculate", place,
        Localized(
            "The game cannot work out this calculation. Write the result."));
    return false;
  }
  result = {*value, CommonOwnNumber(tokens)};
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
  ComplainOfMacro(name);
  return false;
}

/// A negative result becomes a minus sign and a number.
void GameSource::PutNumber(const Calculation& result, bool is_float,
                           const GameToken& where) {
  const double value = result.value;
  GameToken number = where;
  number.span = {};
  number.own = result.own;
  number.kind = GameToken::Kind::kNumber;
  number.is_whole = !is_float;
  number.number = std::abs(value);
  number.text = PlainDecimal(number.number, kDoubleDigits);
  Unread(number);
  if (value >= 0) return;
  number.kind = GameToken::Kind::kSign;
  number.own.reset();
  number.text = "-";
  Unread(std::move(number));
}

}  // namespace fragsmith
