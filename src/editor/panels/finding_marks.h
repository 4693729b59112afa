#ifndef FRAGSMITH_EDITOR_PANELS_FINDING_MARKS_H_
#define FRAGSMITH_EDITOR_PANELS_FINDING_MARKS_H_

#include <QWidget>
#include <vector>

#include "checks/finding.h"

namespace fragsmith {

/// Puts a mark beside the caption of each control of the window that an error
/// or a warning is about, and takes it away again.
void MarkControls(QWidget& window, const std::vector<Finding>& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PANELS_FINDING_MARKS_H_
