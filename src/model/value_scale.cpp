#include "model/value_scale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include "support/numbers.h"

namespace fragsmith {
namespace {

constexpr std::array<ValueScale, 5> kThreeSliderScales = {{
    {1, 20, 1, 2, 2, 0.05, true},
    {5, 20, 1, 1, 4, 0.25, true},
    {360, 72, 1, 4, 18, 5, false},
    {400, 80, 1, 2, 5, 5, false},
    {1000, 100, 1, 5, 10, 10, false},
}};

constexpr std::array<ValueScale, 7> kOneSliderScales = {{
    {1, 20, 1, 2, 2, 0.05, true},
    {5, 20, 1, 1, 4, 0.25, true},
    {4, 4, 1, 1, 0, 1, false},
    {400, 80, 1, 2, 0, 5, false},
    {600, 120, 1, 2, 0, 5, false},
    {1000, 200, 1, 5, 0, 5, false},
    {360, 360, 5, 10, 0, 1, false},
}};

template <typename Scales>
std::optional<ValueScale> Find(const Scales& scales, int max) {
  const auto* const found =
      std::find_if(scales.begin(), scales.end(),
                   [max](const ValueScale& scale) { return scale.max == max; });
  if (found == scales.end()) return std::nullopt;
  return *found;
}

}  // namespace

std::optional<ValueScale> OneSliderScale(int max) {
  return Find(kOneSliderScales, max);
}

std::optional<ValueScale> ThreeSliderScale(int max) {
  return Find(kThreeSliderScales, max);
}

int WeightMaximumFor(double value) {
  const int* const found =
      std::find_if(std::begin(kWeightMaxima), std::end(kWeightMaxima),
                   [value](int max) { return value <= max; });
  return found == std::end(kWeightMaxima) ? *std::prev(found) : *found;
}

int PositionOf(double value, const ValueScale& scale) {
  const double position = std::round(value / scale.step);
  // Written so that a value that is no number stands at 0.
  if (!(position > 0)) return 0;
  if (position > scale.positions) return scale.positions;
  return static_cast<int>(position);
}

double ValueOf(int position, const ValueScale& scale) {
  // 0.05 is no binary fraction: 3 x 0.05 would be 0.15000000000000002. The
  // steps below 1 are whole parts of 1, and the division rounds right.
  if (scale.step < 1) return position / std::round(1 / scale.step);
  return position * scale.step;
}

std::string ValueText(const Value& value, const ValueScale& scale,
                      bool is_optional) {
  const std::optional<double> number = ToNumber(value);
  if (!number) return ToText(value);
  if (*number == 0 && is_optional) return "No";
  std::string text = PlainDecimal(*number, kDoubleDigits);
  if (scale.shows_fractions && text.find('.') == std::string::npos) {
    text += ".0";
  }
  return text;
}

}  // namespace fragsmith
