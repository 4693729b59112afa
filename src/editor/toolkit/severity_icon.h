#ifndef FRAGSMITH_EDITOR_TOOLKIT_SEVERITY_ICON_H_
#define FRAGSMITH_EDITOR_TOOLKIT_SEVERITY_ICON_H_

#include <QIcon>
#include <QStyle>

#include "checks/finding.h"

namespace fragsmith {

inline QIcon SeverityIcon(Severity severity, const QStyle& style) {
  switch (severity) {
    case Severity::kError:
      return style.standardIcon(QStyle::SP_MessageBoxCritical);
    case Severity::kWarning:
      return style.standardIcon(QStyle::SP_MessageBoxWarning);
    case Severity::kHint:
      break;
  }
  return style.standardIcon(QStyle::SP_MessageBoxInformation);
}

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_SEVERITY_ICON_H_
