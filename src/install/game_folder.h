#ifndef FRAGSMITH_INSTALL_GAME_FOLDER_H_
#define FRAGSMITH_INSTALL_GAME_FOLDER_H_

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace fragsmith {

/// The package of the game's own models, skins and bots.
inline constexpr std::string_view kGamePackage = "pak0.pk3";

/// In place of a package: the user entered the model or skin by hand.
inline constexpr std::string_view kUserDefinedPackage = "UserDef";

/// True when the game's program lies in the folder: quake3.exe in any case;
/// elsewhere than on Windows also an executable under one of the names that
/// the program has there.
bool HasGameProgram(const std::filesystem::path& gameFolder);

/// The folder of the game's packages; it need not exist.
std::filesystem::path PackageFolder(const std::filesystem::path& gameFolder);

/// Where a package of the game lies, by its file name (8-bit text); nothing
/// when there is no such file.
std::optional<std::filesystem::path> FindPackage(
    const std::filesystem::path& gameFolder, std::string_view pk3File);

/// The unzip tool of the folder: wzunzip.exe, elsewhere than on Windows also
/// an executable wzunzip, which comes first there.
std::optional<std::filesystem::path> FindUnzipTool(
    const std::filesystem::path& folder);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_GAME_FOLDER_H_
