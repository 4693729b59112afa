#include "inplace/origin_files.h"

#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "game/game_path.h"
#include "inplace/named_files.h"
#include "install/packages/package.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// The file on disk that the game finds by a path below botfiles once this one
/// lies in botfiles/bots: with the game's folders around it, or without.
std::optional<fs::path> FileBeside(const fs::path& file,
                                   std::string_view path) {
  std::string rest = PathLookedFor(path, FileHome::kLoose);
  fs::path folder = file.parent_path();
  if (ToLower(rest).starts_with(kBotsPath)) {
    rest.erase(0, kBotsPath.size());
  } else if (const std::optional<fs::path> root = LayoutRootOf(folder)) {
    folder = *root / "botfiles";
  } else {
    return std::nullopt;
  }
  for (std::size_t end = rest.find('/'); end != std::string::npos;
       end = rest.find('/')) {
    const std::string part = rest.substr(0, end);
    if (!IsFileName(part)) return std::nullopt;
    folder /= PathFromGameText(part);
    rest.erase(0, end + 1);
  }
  return FindFile(folder, rest);
}

}  // namespace

Result<std::string> BytesAt(const OriginFile& file) {
  return file.is_on_disk()
             ? ReadFile(file.path, kMaxBotFileBytes)
             : ReadPackageEntry(file.path, file.entry, kMaxBotFileBytes);
}

std::string ShownAt(const OriginFile& file) {
  // As the notes of a load have it.
  return file.is_on_disk() ? Utf8FromPath(file.path)
                           : Utf8FromPath(file.path.filename()) + "/" +
                                 Utf8FromGameText(file.entry);
}

std::string CalledBy(const OriginFiles& files) {
  for (const BotFile kind : kOwnFilesFirst) {
    const auto file = files.find(kind);
    if (file == files.end()) continue;
    const std::string name = NameAt(file->second);
    const std::string_view suffix = FileSuffix(kind);
    if (EndsWithIgnoringCase(name, suffix)) {
      return name.substr(0, name.size() - suffix.size());
    }
  }
  return {};
}

std::string OneWith(const OriginFiles& files, BotFile kind) {
  const OriginFile& own = files.at(kind);
  for (const auto& [other, file] : files) {
    std::error_code ignored;
    if (other != kind && own.is_on_disk() && file.is_on_disk() &&
        fs::equivalent(own.path, file.path, ignored)) {
      return Utf8FromPath(file.path.filename());
    }
  }
  return {};
}

IncludeLookup LookUpBeside(const OriginFile& file, IncludeLookup game) {
  return [file, game = std::move(game)](
             std::string_view path) -> std::optional<std::string> {
    if (!file.is_on_disk()) {
      Result<std::string> bytes =
          ReadPackageEntry(file.path, InBotFiles(path), kMaxBotFileBytes);
      if (bytes) return *std::move(bytes);
    } else if (const auto beside = FileBeside(file.path, path)) {
      Result<std::string> bytes = ReadFile(*beside, kMaxBotFileBytes);
      if (bytes) return *std::move(bytes);
    }
    return game(path);
  };
}

}  // namespace fragsmith
