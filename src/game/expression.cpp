#include "game/expression.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace fragsmith {
namespace {

struct Operation {
  std::string_view sign;
  int strength;
  bool needs_bits;  ///< Works on whole numbers alone.
};

constexpr std::array<Operation, 18> kOperations = {{
    {"||", 2, false},
    {"&&", 3, false},
    {"|", 4, true},
    {"^", 5, true},
    {"&", 6, true},
    {"==", 7, false},
    {"!=", 7, false},
    {"<", 8, false},
    {">", 8, false},
    {"<=", 8, false},
    {">=", 8, false},
    {"<<", 9, true},
    {">>", 9, true},
    {"+", 10, false},
    {"-", 10, false},
    {"*", 11, false},
    {"/", 11, false},
    {"%", 11, true},
}};

/// Nothing for a sign that compares nothing.
std::optional<bool> Compare(std::string_view sign, double left, double right) {
  if (sign == "||") return left != 0 || right != 0;
  if (sign == "&&") return left != 0 && right != 0;
  if (sign == "==") return left == right;
  if (sign == "!=") return left != right;
  if (sign == "<") return left < right;
  if (sign == ">") return left > right;
  if (sign == "<=") return left <= right;
  if (sign == ">=") return left >= right;
  return std::nullopt;
}

class Calculation {
 public:
  Calculation(const std::vector<GameToken>& tokens, bool is_float)
      : tokens_(tokens), is_float_(is_float) {}

  std::optional<double> Value() {
    const std::optional<double> value = Choice();
    return index_ == tokens_.size() ? value : std::nullopt;
  }

 private:
  /// Brackets in brackets; more than any file needs.
  static constexpr int kMaxDepth = 200;

  bool Take(std::string_view sign) {
    if (index_ >= tokens_.size() || !tokens_[index_].Is(sign)) return false;
    ++index_;
    return true;
  }

  double Whole(double value) const {
    constexpr double kMax = 9e15;
    return is_float_ ? value : std::trunc(std::clamp(value, -kMax, kMax));
  }

  /// The game does not mind a "?" without its ":".
  std::optional<double> Choice() {
    const std::optional<double> condition = Operand(2);
    if (!condition || !Take("?")) return condition;
    if (++depth_ > kMaxDepth) return std::nullopt;
    const std::optional<double> yes = Choice();
    std::optional<double> no = 0.0;
    if (yes && Take(":")) no = Choice();
    --depth_;
    if (!yes || !no) return std::nullopt;
    return *condition != 0 ? yes : no;
  }

  std::optional<double> Operand(int strength) {
    std::optional<double> left = Single();
    while (left && index_ < tokens_.size()) {
      const auto* const operation = std::find_if(
          kOperations.begin(), kOperations.end(),
          [&](const Operation& one) { return tokens_[index_].Is(one.sign); });
      if (operation == kOperations.end() || operation->strength < strength) {
        break;
      }
      ++index_;
      const std::optional<double> right = Operand(operation->strength + 1);
      if (!right || (operation->needs_bits && is_float_)) return std::nullopt;
      left = Apply(operation->sign, *left, *right);
    }
    return left;
  }

  std::optional<double> Single() {
    if (++depth_ > kMaxDepth || index_ >= tokens_.size()) return std::nullopt;
    std::optional<double> value;
    if (tokens_[index_].kind == GameToken::Kind::kNumber) {
      value = Whole(tokens_[index_++].number);
    } else if (Take("(")) {
      value = Choice();
      if (!Take(")")) value.reset();
    } else if (Take("-")) {
      value = Single();
      if (value) value = -*value;
    } else if (Take("!")) {
      value = Single();
      if (value) value = *value == 0 ? 1 : 0;
    } else if (!is_float_ && Take("~")) {
      value = Single();
      if (value) value = -*value - 1;
    } else if (Take("--") || Take("++")) {
      // The game complains and works on.
      value = Single();
    }
    --depth_;
    return value;
  }

  std::optional<double> Apply(std::string_view sign, double left,
                              double right) const {
    if (sign == "+") return Whole(left + right);
    if (sign == "-") return Whole(left - right);
    if (sign == "*") return Whole(left * right);
    if (sign == "/" || sign == "%") {
      if (right == 0) return std::nullopt;
      return sign == "/" ? Whole(left / right) : std::fmod(left, right);
    }
    if (const std::optional<bool> answer = Compare(sign, left, right)) {
      return *answer ? 1 : 0;
    }
    const auto bits = static_cast<std::int64_t>(left);
    const auto other = static_cast<std::int64_t>(right);
    if (sign == "&") return static_cast<double>(bits & other);
    if (sign == "|") return static_cast<double>(bits | other);
    if (sign == "^") return static_cast<double>(bits ^ other);
    const double shift = std::clamp(right, 0.0, 31.0);
    return Whole(sign == "<<" ? left * std::exp2(shift)
                              : std::floor(left / std::exp2(shift)));
  }

  const std::vector<GameToken>& tokens_;
  bool is_float_;
  std::size_t index_ = 0;
  int depth_ = 0;
};

}  // namespace

std::optional<double> GameExpressionValue(const std::vector<GameToken>& tokens,
                                          bool is_float) {
  return Calculation(tokens, is_float).Value();
}

}  // namespace fragsmith
