#include "install/program/skin_icon.h"

#include <cstddef>
#include <string>
#include <system_error>
#include <utility>

#include "install/program/game_folder.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// The part of the path from the first "icon" on, wherever that stands; a
/// path that has an "icon" in the name of a folder thus gives no file name.
std::string_view IconFileName(std::string_view iconFile) {
  const std::size_t start = ToLower(iconFile).find("icon");
  if (start == std::string_view::npos) return {};
  return iconFile.substr(start);
}

std::string_view BareName(std::string_view path) {
  return path.substr(path.find_last_of("/\\") + 1);
}

void Remove(const std::filesystem::path& folder, std::string_view name) {
  if (const auto path = FindFile(folder, name)) {
    std::error_code ignored;
    std::filesystem::remove(*path, ignored);
  }
}

Result<Picture> LoadPicture(const std::filesystem::path& path) {
  const Result<std::string> bytes = ReadFile(path);
  if (!bytes) return Failure(bytes.error());
  return DecodeTarga(*bytes);
}

std::optional<Picture> TakeIcon(std::string_view iconFile,
                                const std::filesystem::path& package,
                                const UnzipTool& tool,
                                const std::filesystem::path& folder) {
  const std::string_view name = IconFileName(iconFile);
  if (!IsFileName(name)) return std::nullopt;
  // A name with something before "icon" is taken out under its whole name,
  // not found, and to be removed all the same.
  const std::string_view extracted = BareName(iconFile);
  Remove(folder, name);
  Remove(folder, extracted);
  const ExtractionEnd end = RunUnzipTool(tool, package, iconFile, folder).end;
  std::optional<Picture> icon;
  if (const auto path = FindFile(folder, name);
      path && end == ExtractionEnd::kEnded) {
    Result<Picture> picture = LoadPicture(*path);
    if (picture) icon = std::move(*picture);
  }
  Remove(folder, name);
  Remove(folder, extracted);
  return icon;
}

}  // namespace

IconResult ShowSkinIcon(std::string_view iconFile, std::string_view pk3File,
                        const std::filesystem::path& gameFolder,
                        const UnzipTool& tool, TemporaryFolder& temporary) {
  if (iconFile.empty() && pk3File.empty()) return {IconKind::kNotInUse, {}};
  // This comes first, so that a skin entered by hand shows as one without a
  // package, unless a file of that very name lies among the packages.
  const auto package = FindPackage(gameFolder, pk3File);
  if (!package) return {IconKind::kNoPackage, {}};
  if (pk3File == kUserDefinedPackage) return {IconKind::kUserDefined, {}};
  if (tool.silent != nullptr && tool.silent->contains(*package)) {
    return {IconKind::kNotFound, {}};
  }
  const Result<std::filesystem::path> folder = temporary.GetTempFolder();
  if (!folder) return {IconKind::kNotFound, {}};
  std::optional<Picture> icon = TakeIcon(iconFile, *package, tool, *folder);
  if (!icon) return {IconKind::kNotFound, {}};
  return {IconKind::kIcon, std::move(*icon)};
}

std::string_view FixedPictureName(IconKind kind) {
  switch (kind) {
    case IconKind::kNotInUse:
      return "notinuse.tga";
    case IconKind::kNoPackage:
      return "nopk3.tga";
    case IconKind::kNotFound:
      return "notfound.tga";
    case IconKind::kUserDefined:
      return "userdef.tga";
    case IconKind::kIcon:
      break;
  }
  return {};
}

Result<Picture> LoadFixedPicture(
    IconKind kind, const std::vector<std::filesystem::path>& folders) {
  const std::string_view name = FixedPictureName(kind);
  for (const std::filesystem::path& folder : folders) {
    if (const auto path = FindFile(folder, name)) return LoadPicture(*path);
  }
  return Failure({.what = Localized("The picture is missing."),
                  .file = std::string(name),
                  .line = 0,
                  .advice = Localized("Install the program anew.")});
}

}  // namespace fragsmith
