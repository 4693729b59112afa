#ifndef FRAGSMITH_INSTALL_PROGRAM_GAME_FOLDER_H_
#define FRAGSMITH_INSTALL_PROGRAM_GAME_FOLDER_H_

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace fragsmith {

/// The package of the game's own models, skins and bots.
inline constexpr std::string_view kGamePackage = "pak0.pk3";

/// In place of a package: the user entered the model or skin by hand.
inline constexpr std::string_view kUserDefinedPackage = "UserDef";

/// True when the game's program lies in the folder: a program, of this system
/// or of Windows, under one of the names that makers give it (quake3.exe,
/// ioquake3.x86_64, oa_ded.exe). True as well for packages without their
/// program: those of a game of another name, wherever they lie, and the others
/// in the places where systems keep them apart, such as ~/.q3a.
bool HasGameProgram(const std::filesystem::path& gameFolder);

/// The folder of the game's packages: baseq3, or in a game of another name the
/// one in its place, such as baseoa, which has a pak0.pk3 where baseq3 has
/// none. Where there is none baseq3, which may not exist then.
std::filesystem::path PackageFolder(const std::filesystem::path& gameFolder);

/// True when the package folder is the game's own baseq3, of whose pak0.pk3
/// the contents are known.
bool IsStandardPackageFolder(const std::filesystem::path& package_folder);

/// The package folder, where it exists.
std::optional<std::filesystem::path> FolderToInstallInto(
    const std::filesystem::path& gameFolder);

/// Where a package of the game lies, by its file name (8-bit text); nothing
/// when there is no such file.
std::optional<std::filesystem::path> FindPackage(
    const std::filesystem::path& gameFolder, std::string_view pk3File);

/// The unzip tool of the folder: wzunzip.exe, elsewhere than on Windows also
/// an executable wzunzip, which comes first there. A folder that is not named
/// in full has none.
std::optional<std::filesystem::path> FindUnzipTool(
    const std::filesystem::path& folder);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_GAME_FOLDER_H_
