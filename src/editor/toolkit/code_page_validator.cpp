#include "editor/toolkit/code_page_validator.h"

#include <algorithm>

#include "editor/toolkit/game_text_conversion.h"

namespace fragsmith {

void CodePageValidator::JoinLines(QString& text, int& position) {
  const auto is_end = [](QChar letter) {
    return letter == u'\n' || letter == u'\r';
  };
  while (!text.isEmpty() && is_end(text.back())) text.chop(1);
  text.replace(QLatin1String("\r\n"), QLatin1String(" "));
  std::replace_if(text.begin(), text.end(), is_end, QChar(u' '));
  position = std::min(position, static_cast<int>(text.size()));
}

QValidator::State CodePageValidator::validate(QString& text,
                                              int& position) const {
  JoinLines(text, position);
  const bool has_control = std::any_of(
      text.begin(), text.end(), [](QChar letter) { return letter < u' '; });
  return ToGameText(text) && !has_control ? Acceptable : Invalid;
}

}  // namespace fragsmith
