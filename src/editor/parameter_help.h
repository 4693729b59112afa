#ifndef FRAGSMITH_EDITOR_PARAMETER_HELP_H_
#define FRAGSMITH_EDITOR_PARAMETER_HELP_H_

#include <QString>

#include "editor/pages/page_table.h"

namespace fragsmith {

/// What the control's parameter does in the game, as plain text, closed by the
/// range of its slider. Throws std::out_of_range for an index that no page
/// shows.
QString PlainHelp(const ControlRow& control);

/// Plain text as a tool tip that wraps, below its title.
QString WrappedToolTip(const QString& title, const QString& plain_text);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PARAMETER_HELP_H_
