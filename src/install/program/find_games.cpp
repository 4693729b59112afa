#include "install/program/find_games.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>
#include <utility>

#include "install/program/game_folder.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// Below the user's folder.
constexpr std::array<std::string_view, 12> kInHome = {
    ".q3a",
    ".ioquake3",
    ".openarena",
    "Games/ioquake3",
    "Games/openarena",
    "Games/quake3",
    "GOG Games/Quake III Arena",
    "GOG Games/Quake III",
    ".wine/drive_c/GOG Games/Quake III",
    ".wine/drive_c/GOG Games/Quake III Arena",
    ".wine/drive_c/Program Files (x86)/Quake III Arena",
    ".wine/drive_c/Program Files/Quake III Arena"};

/// Below the top of the file system; those without effect on a system are not
/// there.
constexpr std::array<std::string_view, 17> kInRoot = {
    "usr/share/games/openarena",
    "usr/share/games/quake3",
    "usr/share/games/ioquake3",
    "usr/local/share/games/openarena",
    "usr/local/share/games/quake3",
    "usr/local/games/quake3",
    "usr/local/games/openarena",
    "opt/quake3",
    "opt/openarena",
    "opt/ioquake3",
    "Program Files (x86)/Quake III Arena",
    "Program Files/Quake III Arena",
    "Program Files/ioquake3",
    "Program Files (x86)/ioquake3",
    "GOG Games/Quake III",
    "GOG Games/Quake III Arena",
    "Quake III Arena"};

/// The shop's program, below the user's folder and the top; the first names
/// are those of one and the same folder.
constexpr std::array<std::string_view, 3> kSteamInHome = {
    ".steam/steam", ".local/share/Steam",
    ".var/app/com.valvesoftware.Steam/.local/share/Steam"};
constexpr std::array<std::string_view, 2> kSteamInRoot = {
    "Program Files (x86)/Steam", "Program Files/Steam"};

constexpr std::size_t kMaxLibraryListBytes = std::size_t{1} << 20U;

/// The value of a line of the form  "path"  "/games".
std::string PathOfLine(std::string_view line) {
  constexpr std::string_view kKey = "\"path\"";
  const std::size_t key = line.find(kKey);
  if (key == std::string_view::npos) return {};
  line.remove_prefix(key + kKey.size());
  const std::size_t begin = line.find('"');
  const std::size_t end = line.rfind('"');
  if (begin == std::string_view::npos || end == begin) return {};
  std::string path(line.substr(begin + 1, end - begin - 1));
  // A backslash is written twice.
  for (std::size_t at = path.find("\\\\"); at != std::string::npos;
       at = path.find("\\\\", at + 1)) {
    path.erase(at, 1);
  }
  return path;
}

/// The shop's game folders: in its own and in the other libraries that it
/// lists.
void AddSteam(const fs::path& steam, std::vector<fs::path>& folders) {
  const auto add = [&folders](const fs::path& library) {
    folders.push_back(library / "steamapps" / "common" / "Quake 3 Arena");
  };
  add(steam);
  const Result<std::string> list = ReadFile(
      steam / "steamapps" / "libraryfolders.vdf", kMaxLibraryListBytes);
  if (!list) return;
  LineReader lines(*list);
  while (const auto line = lines.Next()) {
    const std::string path = PathOfLine(*line);
    if (!path.empty()) add(PathFromBytes(path));
  }
}

/// Those that are called as the game or its relatives are, and those of the
/// shop.
void AddInstalled(const std::vector<InstalledProgram>& programs,
                  std::vector<fs::path>& folders) {
  for (const InstalledProgram& program : programs) {
    const std::string name = ToLower(program.name);
    // Some are noted with a slash at the end, or with the other system's.
    fs::path folder = program.folder.lexically_normal();
    if (!folder.has_filename()) folder = folder.parent_path();
    if (name == "steam") {
      AddSteam(folder, folders);
    } else if (Contains(name, "quake") || Contains(name, "openarena")) {
      folders.push_back(std::move(folder));
    }
  }
}

std::vector<fs::path> Candidates(const GameRoots& roots) {
  std::vector<fs::path> folders;
  AddInstalled(roots.installed, folders);
  const auto add = [&folders](const fs::path& top, const auto& steams,
                              const auto& names) {
    if (top.empty()) return;
    for (const std::string_view steam : steams) AddSteam(top / steam, folders);
    for (const std::string_view name : names) folders.push_back(top / name);
  };
  add(roots.root, kSteamInRoot, kInRoot);
  add(roots.home, kSteamInHome, kInHome);
  return folders;
}

}  // namespace

std::vector<FoundGame> FindGames(const GameRoots& roots) {
  std::vector<FoundGame> games;
  for (const fs::path& folder : Candidates(roots)) {
    if (!IsFolder(folder) || !FolderToInstallInto(folder) ||
        !HasGameProgram(folder)) {
      continue;
    }
    const bool is_known =
        std::ranges::any_of(games, [&folder](const FoundGame& game) {
          std::error_code ignored;
          return game.folder == folder ||
                 fs::equivalent(game.folder, folder, ignored);
        });
    if (!is_known) games.push_back({GameName(folder), folder});
  }
  return games;
}

std::string GameName(const fs::path& game_folder) {
  const fs::path packages = PackageFolder(game_folder);
  if (IsStandardPackageFolder(packages)) return "Quake III Arena";
  if (EqualIgnoringCase(BytesFromPath(packages.filename()), "baseoa")) {
    return "OpenArena";
  }
  return Utf8FromPath(game_folder.filename());
}

}  // namespace fragsmith
