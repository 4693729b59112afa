#ifndef FRAGSMITH_EDITOR_TOOLKIT_WHEEL_GUARD_H_
#define FRAGSMITH_EDITOR_TOOLKIT_WHEEL_GUARD_H_

#include <QComboBox>

namespace fragsmith {

/// A combo box takes the wheel wherever the pointer rests on it. With this one
/// it does so only after it was clicked or reached by key; before that the
/// wheel scrolls what lies around it.
void IgnoreWheelWithoutFocus(QComboBox& box);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_WHEEL_GUARD_H_
