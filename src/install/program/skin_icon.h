#ifndef FRAGSMITH_INSTALL_PROGRAM_SKIN_ICON_H_
#define FRAGSMITH_INSTALL_PROGRAM_SKIN_ICON_H_

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "install/packages/targa.h"
#include "install/program/extraction.h"
#include "support/result.h"
#include "support/temporary_folder.h"

namespace fragsmith {

/// The fixed pictures, which say why there is no icon, or the icon itself.
enum class IconKind { kNotInUse, kNoPackage, kNotFound, kUserDefined, kIcon };

struct IconResult {
  IconKind kind = IconKind::kNotFound;
  Picture picture;  ///< Of an icon alone; empty otherwise.
};

/// The icon of a skin, given as the catalogue holds it. It is taken out of its
/// package into the temporary folder, from which it is gone afterwards.
/// Nothing is ever shown to the user but the result.
IconResult ShowSkinIcon(std::string_view iconFile, std::string_view pk3File,
                        const std::filesystem::path& gameFolder,
                        const UnzipTool& tool, TemporaryFolder& temporary);

/// File name of a fixed picture; empty for the icon itself.
std::string_view FixedPictureName(IconKind kind);

/// The fixed picture, from the first of the folders that has it.
Result<Picture> LoadFixedPicture(
    IconKind kind, const std::vector<std::filesystem::path>& folders);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_SKIN_ICON_H_
