#ifndef FRAGSMITH_EDITOR_TOOLKIT_READABLE_PALETTE_H_
#define FRAGSMITH_EDITOR_TOOLKIT_READABLE_PALETTE_H_

namespace fragsmith {

/// Mends what dark themes leave hard to see. To be called once there is an
/// application.
void MakePaletteReadable();

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_READABLE_PALETTE_H_
