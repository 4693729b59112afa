#include "editor/toolkit/contrast.h"

#include <algorithm>
#include <cmath>

namespace fragsmith {
namespace {

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92
                           : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

}  // namespace

double Contrast(const QColor& color, const QColor& ground) {
  const auto [dark, light] = std::minmax({Luminance(color), Luminance(ground)});
  return (light + 0.05) / (dark + 0.05);
}

QColor FaintestReadable(const QColor& text, const QColor& ground) {
  // Strokes are thin: few of their points have the whole colour.
  constexpr double kReadable = 5;
  constexpr int kSteps = 20;
  for (int step = 1; step < kSteps; ++step) {
    const float share = static_cast<float>(step) / kSteps;
    const auto mix = [share](float from, float to) {
      return from + (to - from) * share;
    };
    const QColor color = QColor::fromRgbF(mix(ground.redF(), text.redF()),
                                          mix(ground.greenF(), text.greenF()),
                                          mix(ground.blueF(), text.blueF()));
    if (Contrast(color, ground) >= kReadable) return color;
  }
  return text;
}

}  // namespace fragsmith
