#ifndef FRAGSMITH_EDITOR_TOOLKIT_TOOL_TIP_H_
#define FRAGSMITH_EDITOR_TOOLKIT_TOOL_TIP_H_

#include <QString>

namespace fragsmith {

/// Plain text as a tool tip that wraps, below its title.
QString WrappedToolTip(const QString& title, const QString& plain_text);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_TOOL_TIP_H_
