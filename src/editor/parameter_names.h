#ifndef FRAGSMITH_EDITOR_PARAMETER_NAMES_H_
#define FRAGSMITH_EDITOR_PARAMETER_NAMES_H_

#include <QString>

namespace fragsmith {

/// What a control of the parameter pages is called where its caption is out of
/// sight: "Attack skill", "Shotgun, pickup with it". Takes a catalogue index.
QString ControlName(int index);

/// The same for a field or parameter by the index of Bot::Parameter: "Funname",
/// "Attack skill, level 4".
QString ParameterTitle(int parameter);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PARAMETER_NAMES_H_
