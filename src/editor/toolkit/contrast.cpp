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

}  // namespace fragsmith
