#include "game/given_files.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <system_error>
#include <utility>

#include "game/game_path.h"
#include "install/packages/package.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// A game with everything that was ever made for it has some thousands.
constexpr std::size_t kMaxFiles = 20'000;
constexpr std::size_t kMaxDepth = 8;
/// The same bound as for a bot's files elsewhere, and one for all together.
constexpr std::size_t kMaxBytes = std::size_t{4} << 20U;
constexpr std::uintmax_t kMaxCopied = std::uintmax_t{256} << 20U;

std::string WithSlashes(std::string_view path) {
  std::string text(path);
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

/// What lies among a bot's files, but belongs to the folder scripts.
bool IsScript(const std::string& name) {
  constexpr std::array<std::string_view, 3> kEnds = {kDescriptionEnd, ".arena",
                                                     ".txt"};
  return std::any_of(kEnds.begin(), kEnds.end(), [&](std::string_view end) {
    return EndsWithIgnoringCase(name, end);
  });
}

}  // namespace

bool GivenFiles::IsInGame(const fs::path& folder) {
  const fs::path whole = WholePath(folder);
  const fs::path bots = whole.has_filename() ? whole : whole.parent_path();
  return bots.filename() == "bots" &&
         bots.parent_path().filename() == "botfiles" &&
         IsFolder(bots.parent_path().parent_path() / kScriptsFolder);
}

GivenFiles GivenFiles::OfFolder(const fs::path& folder, bool uses_layout) {
  GivenFiles given;
  const fs::path whole = WholePath(folder);
  const fs::path bots = whole.has_filename() ? whole : whole.parent_path();
  if (uses_layout) {
    given.AddFolder(bots.parent_path(), std::string(kBotFilesPath), false);
    given.AddFolder(bots.parent_path().parent_path() / kScriptsFolder,
                    std::string(kScriptsFolder) + "/", false);
  } else {
    given.AddFolder(bots, std::string(kBotFilesFolder) + "/", true);
  }
  return given;
}

void GivenFiles::AddFolder(const fs::path& folder, const std::string& game_path,
                           bool is_flat) {
  std::error_code reason;
  std::vector<fs::path> found;
  for (fs::directory_iterator entry(folder, reason), end;
       !reason && entry != end && files_.size() + found.size() < kMaxFiles;
       entry.increment(reason)) {
    found.push_back(entry->path());
  }
  std::sort(found.begin(), found.end());
  for (const fs::path& path : found) {
    const std::optional<std::string> name = GameTextFromPath(path.filename());
    if (!name) continue;
    if (IsFile(path)) {
      const std::string full_path =
          (is_flat && IsScript(*name) ? std::string(kScriptsFolder) + "/"
                                      : game_path) +
          *name;
      files_.emplace(ToLower(full_path), Source{full_path, path, 0});
    } else if (fs::is_directory(fs::symlink_status(path, reason)) &&
               static_cast<std::size_t>(std::count(
                   game_path.begin(), game_path.end(), '/')) < kMaxDepth) {
      AddFolder(path, game_path + *name + "/", false);
    }
  }
}

Result<GivenFiles> GivenFiles::OfPackage(const fs::path& package) {
  GivenFiles given;
  given.package_ = package;
  Notes notes;
  const Result<std::vector<std::string>> entries =
      ListPackageEntries(package, notes);
  if (!entries) return Failure(entries.error());
  for (const std::string& entry : *entries) {
    if (given.files_.size() >= kMaxFiles) break;
    const std::string path = ToLower(WithSlashes(entry));
    if (path.ends_with('/')) continue;
    // Of two of one name the game takes the last.
    const auto known = given.files_.find(path);
    if (known != given.files_.end()) {
      known->second.path = entry;
    } else {
      given.files_.emplace(path, Source{entry, {}, given.files_.size()});
    }
  }
  return given;
}

std::optional<GameFile> GivenFiles::Read(const Source& source) const {
  Result<std::string> bytes =
      is_packed() ? ReadPackageEntry(package_, source.path, kMaxBytes,
                                     PackageReading::kAsGame)
                  : ReadFile(source.on_disk, kMaxBytes);
  if (!bytes) return std::nullopt;
  // In packages case does not count: spelt as a bot's files spell it.
  std::string path =
      WithSlashes(is_packed() ? ToLower(source.path) : source.path);
  if (path.starts_with(kBotFilesPath)) path.erase(0, kBotFilesPath.size());
  const std::string shown = is_packed()
                                ? package_name() + "/" + ShownText(source.path)
                                : Utf8FromPath(source.on_disk);
  return GameFile{shown, std::move(path), std::move(*bytes)};
}

std::optional<GameFile> GivenFiles::Open(std::string_view path) const {
  const std::string wanted = PathLookedFor(path, home());
  const auto [first, last] = files_.equal_range(ToLower(wanted));
  const auto found = std::find_if(first, last, [&](const auto& file) {
    return PathLookedFor(file.second.path, home()) == wanted;
  });
  if (found == last) return std::nullopt;
  return Read(found->second);
}

std::optional<GameFile> GivenFiles::OpenInAnyCase(std::string_view path) const {
  std::optional<GameFile> exact = Open(path);
  if (exact) return exact;
  const auto found = files_.find(ToLower(PathLookedFor(path, home())));
  if (found == files_.end()) return std::nullopt;
  return Read(found->second);
}

std::vector<std::string> GivenFiles::PathsLike(std::string_view beginning,
                                               std::string_view end) const {
  std::vector<std::pair<std::size_t, std::string>> found;
  for (const auto& [path, source] : files_) {
    if (path.size() >= beginning.size() + end.size() &&
        path.starts_with(beginning) && path.ends_with(end)) {
      found.emplace_back(source.number, path);
    }
  }
  std::sort(found.begin(), found.end());
  std::vector<std::string> paths;
  paths.reserve(found.size());
  for (auto& [number, path] : found) paths.push_back(std::move(path));
  return paths;
}

std::string GivenFiles::package_name() const {
  return Utf8FromPath(package_.filename());
}

std::vector<EntryFault> GivenFiles::Faults() const {
  if (!is_packed()) return {};
  return FindEntryFaults(package_, kMaxBytes,
                         [](std::string_view name) {
                           const std::string path = ToLower(WithSlashes(name));
                           return path.starts_with(kBotFilesPath) ||
                                  path.starts_with(kScriptsFolder);
                         })
      .value_or(std::vector<EntryFault>());
}

Result<void> GivenFiles::CopyInto(const fs::path& game_folder) const {
  const auto copy = [](const fs::path& from, const fs::path& to) {
    std::error_code reason;
    fs::create_directories(to.parent_path(), reason);
    if (!reason) fs::copy_file(from, to, reason);
    if (!reason) return Result<void>();
    return Result<void>(
        Failure({.what = Localized("The file cannot be copied: %1.",
                                   {reason.message()}),
                 .file = Utf8FromPath(from),
                 .line = 0,
                 .advice = {}}));
  };
  if (is_packed()) return copy(package_, game_folder / package_.filename());
  std::uintmax_t copied = 0;
  for (const auto& [path, source] : files_) {
    std::error_code reason;
    const std::uintmax_t size = fs::file_size(source.on_disk, reason);
    // No file of a bot is as large.
    if (reason || size > kMaxBytes) continue;
    copied += size;
    if (copied > kMaxCopied) {
      return Failure(
          {.what = Localized("There is too much in this folder to try it."),
           .file = Utf8FromPath(source.on_disk.parent_path()),
           .line = 0,
           .advice =
               Localized("Put the bot's files into a folder of their own.")});
    }
    Result<void> done =
        copy(source.on_disk, game_folder / PathFromGameText(source.path));
    if (!done) return done;
  }
  return {};
}

}  // namespace fragsmith
