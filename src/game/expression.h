#ifndef FRAGSMITH_GAME_EXPRESSION_H_
#define FRAGSMITH_GAME_EXPRESSION_H_

#include <optional>
#include <vector>

#include "game/lexer.h"

namespace fragsmith {

/// The value of numbers and signs as #if and $evalint work it out, or nothing
/// where the game gives up: an operand or an operator too many, a division by
/// zero, an operation on bits in a calculation with fractions. Without
/// fractions every number is cut to a whole one.
std::optional<double> GameExpressionValue(const std::vector<GameToken>& tokens,
                                          bool is_float);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_EXPRESSION_H_
