#ifndef FRAGSMITH_EDITOR_PARAMETER_HELP_H_
#define FRAGSMITH_EDITOR_PARAMETER_HELP_H_

#include <QString>
#include <string_view>

#include "editor/pages/page_table.h"

namespace fragsmith {

/// What a parameter of the pages does in the game.
struct ParameterHelp {
  std::string_view text;  ///< Sentences, UTF-8.
  std::string_view unit;  ///< Of the value; empty when it has none.
  /// False when the game never reads the parameter. It is kept for those who
  /// play with other game code.
  bool is_read = true;
};

/// Throws std::out_of_range for an index that no page shows.
const ParameterHelp& HelpFor(int index);

/// The help as plain text, closed by the range of the control's slider.
QString PlainHelp(const ControlRow& control);

/// Plain text as a tool tip that wraps, below its title.
QString WrappedToolTip(const QString& title, const QString& plain_text);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PARAMETER_HELP_H_
