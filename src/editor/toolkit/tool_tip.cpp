#include "editor/toolkit/tool_tip.h"

namespace fragsmith {

QString WrappedToolTip(const QString& title, const QString& plain_text) {
  const QString text = plain_text.toHtmlEscaped();
  if (title.isEmpty()) return QStringLiteral("<qt>%1</qt>").arg(text);
  return QStringLiteral("<qt><b>%1</b><br>%2</qt>")
      .arg(title.toHtmlEscaped(), text);
}

}  // namespace fragsmith
