#include "support/localization.h"

#include <cstddef>
#include <utility>

namespace fragsmith {
namespace {

Translation& Chosen() {
  static Translation translation;
  return translation;
}

}  // namespace

std::string Localized(std::string_view english,
                      std::initializer_list<std::string_view> values) {
  const std::string text = Chosen() ? Chosen()(english) : std::string(english);
  std::string filled;
  filled.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' &&
        text[i + 1] <= '9') {
      const auto index = static_cast<std::size_t>(text[i + 1] - '1');
      if (index < values.size()) {
        filled += values.begin()[index];
        ++i;
        continue;
      }
    }
    filled += text[i];
  }
  return filled;
}

void LocalizeBy(Translation translation) { Chosen() = std::move(translation); }

}  // namespace fragsmith
