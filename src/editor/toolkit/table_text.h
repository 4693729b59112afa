#ifndef FRAGSMITH_EDITOR_TOOLKIT_TABLE_TEXT_H_
#define FRAGSMITH_EDITOR_TOOLKIT_TABLE_TEXT_H_

#include <QString>
#include <string_view>

namespace fragsmith {

/// A text of our own tables and vocabulary (UTF-8) for a widget.
inline QString TableText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_TABLE_TEXT_H_
