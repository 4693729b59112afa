#ifndef FRAGSMITH_EDITOR_TOOLKIT_LINE_ICON_H_
#define FRAGSMITH_EDITOR_TOOLKIT_LINE_ICON_H_

#include <QColor>
#include <QIcon>
#include <QPainter>

namespace fragsmith {

/// The icons of the tool bar and of the list of pages.
enum class LineIcon {
  kNew,
  kLoad,
  kSaveAgain,
  kMake,
  kUndo,
  kRedo,
  kFind,
  kTry,
  kPlayOut,
  kInstall,
  kHelp,
  kGeneral,
  kBehaviour,
  kWeaponSkills,
  kWeaponUsage,
  kWeaponPickup,
  kItemPickup,
  kChatCharacteristics,
  kChatTexts,
};

/// An icon drawn with lines of one weight in the text's colour of the theme,
/// sharp at every size.
QIcon MakeLineIcon(LineIcon icon);

/// The same drawn into a rectangle, in a colour of the caller's.
void DrawLineIcon(QPainter& painter, const QRectF& area, LineIcon icon,
                  const QColor& color);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_LINE_ICON_H_
