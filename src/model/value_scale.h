#ifndef FRAGSMITH_MODEL_VALUE_SCALE_H_
#define FRAGSMITH_MODEL_VALUE_SCALE_H_

#include <optional>
#include <string>

#include "model/value.h"

namespace fragsmith {

/// How a slider turns its whole positions into values. A Max of the control
/// chooses the scale; the value of a position is position x step.
struct ValueScale {
  int max;               ///< The Max that chooses this scale.
  int positions;         ///< Highest position; the lowest is always 0.
  int small_change;      ///< Positions moved by an arrow key.
  int large_change;      ///< Positions moved by a page key.
  int tick_spacing;      ///< Positions between two ticks; 0 for none.
  double step;           ///< Value of one position.
  bool shows_fractions;  ///< Value format "0.0#": one or two decimals.
};

/// The scales of the two kinds of control; nothing for a Max without one.
std::optional<ValueScale> OneSliderScale(int max);
std::optional<ValueScale> ThreeSliderScale(int max);

/// The maxima that a weight page offers, in the order shown.
inline constexpr int kWeightMaxima[] = {400, 600, 1000};

/// The smallest weight maximum that holds the value; the largest for values
/// beyond them all.
int WeightMaximumFor(double value);

/// The position nearest to the value, within the scale.
int PositionOf(double value, const ValueScale& scale);

double ValueOf(int position, const ValueScale& scale);

/// The text beside a slider: the real value in the scale's format, always
/// with "."; "No" for 0 where 0 means that the parameter is left out; a text
/// that is no number as it stands.
std::string ValueText(const Value& value, const ValueScale& scale,
                      bool is_optional);

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_VALUE_SCALE_H_
