#include "editor/code_page_validator.h"

#include <algorithm>

#include "editor/game_text_conversion.h"

namespace fragsmith {

QValidator::State CodePageValidator::validate(QString& text,
                                              int& /*position*/) const {
  const bool has_control = std::any_of(
      text.begin(), text.end(), [](QChar letter) { return letter < u' '; });
  return ToGameText(text) && !has_control ? Acceptable : Invalid;
}

}  // namespace fragsmith
