#ifndef FRAGSMITH_EDITOR_PAGES_PARAMETER_HELP_H_
#define FRAGSMITH_EDITOR_PAGES_PARAMETER_HELP_H_

#include <QString>

#include "editor/toolkit/page_table.h"

namespace fragsmith {

/// What the control's parameter does in the game, as plain text, closed by the
/// range of its slider. Throws std::out_of_range for an index that no page
/// shows.
QString PlainHelp(const ControlRow& control);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_PARAMETER_HELP_H_
