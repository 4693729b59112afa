#ifndef FRAGSMITH_EDITOR_TOOLKIT_GAME_TEXT_CONVERSION_H_
#define FRAGSMITH_EDITOR_TOOLKIT_GAME_TEXT_CONVERSION_H_

#include <QString>
#include <optional>
#include <string>

#include "support/code_page.h"

namespace fragsmith {

/// Game text for a widget. Every byte has a character, so nothing is lost.
inline QString ToQString(const std::string& game_text) {
  return QString::fromStdString(Utf8FromGameText(game_text));
}

/// A widget's text as game text; nothing when a character cannot be had.
inline std::optional<std::string> ToGameText(const QString& text) {
  return GameTextFromUtf8(text.toStdString());
}

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_GAME_TEXT_CONVERSION_H_
