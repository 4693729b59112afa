#ifndef FRAGSMITH_EDITOR_TOOLKIT_CONTRAST_H_
#define FRAGSMITH_EDITOR_TOOLKIT_CONTRAST_H_

#include <QColor>

namespace fragsmith {

/// Between two colours of the screen, 1 to 21, as the web's guidelines for
/// readable text define it.
double Contrast(const QColor& color, const QColor& ground);

/// What lies nearest to the ground between it and the text and can still be
/// read on it.
QColor FaintestReadable(const QColor& text, const QColor& ground);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_CONTRAST_H_
