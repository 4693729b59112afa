#include "checks/bot_location.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>

#include "chat/vocabulary.h"
#include "game/complaints.h"
#include "game/description_reader.h"
#include "game/game_path.h"
#include "model/file_names.h"
#include "session/bot_file.h"
#include "session/bot_sources.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

constexpr std::array kFiles = {BotFile::kCharacteristics, BotFile::kDescription,
                               BotFile::kChat, BotFile::kItemWeights,
                               BotFile::kWeaponWeights};

/// Whether a description speaks of the character file of a bot of that name.
bool HasCharacterOf(const GameFile& description, const std::string& name) {
  const std::string path = CharacterPath(name);
  Complaints untold;
  const std::vector<DescriptionSet> sets =
      ReadGameDescription(description, untold);
  return std::ranges::any_of(sets, [&path](const DescriptionSet& set) {
    return EqualIgnoringCase(
        PathLookedFor(set.Text("aifile"), FileHome::kPacked), path);
  });
}

BotLocation InFolder(const fs::path& folder, const std::string& name) {
  const fs::path whole = WholePath(folder);
  return {.name = name,
          .folder = whole,
          .package = {},
          .uses_layout = GivenFiles::IsInGame(whole)};
}

std::vector<BotLocation> InPackage(const fs::path& package,
                                   const std::vector<BotListEntry>& bots) {
  std::vector<BotLocation> found;
  found.reserve(bots.size());
  for (const BotListEntry& bot : bots) {
    found.push_back({.name = bot.Name,
                     .folder = {},
                     .package = WholePath(package),
                     .uses_layout = false,
                     .has_description = bot.HasBotScript});
  }
  return found;
}

}  // namespace

void DropDescriptionsOfOthers(const GivenFiles& given,
                              std::vector<BotListEntry>& bots) {
  const auto open = [&given](std::string_view folder, const std::string& name,
                             BotFile file) {
    return given.OpenInAnyCase(std::string(folder) + "/" + name +
                               std::string(FileSuffix(file)));
  };
  const auto has_character = [&open](const BotListEntry& bot) {
    return open(kBotFilesFolder, bot.Name, BotFile::kCharacteristics)
        .has_value();
  };
  std::vector<BotListEntry> with_character;
  std::ranges::copy_if(bots, std::back_inserter(with_character), has_character);
  std::erase_if(bots, [&](const BotListEntry& bot) {
    if (has_character(bot)) return false;
    const std::optional<GameFile> description =
        open(kScriptsFolder, bot.Name, BotFile::kDescription);
    return description &&
           std::ranges::any_of(
               with_character, [&description](const BotListEntry& other) {
                 return HasCharacterOf(*description, other.Name);
               });
  });
}

std::optional<std::string> BotNameOfAnyFile(const fs::path& file) {
  std::optional<std::string> name = GameTextFromPath(file.filename());
  if (!name) return std::nullopt;
  for (const BotFile kind : kFiles) {
    const std::string_view suffix = FileSuffix(kind);
    if (!EndsWithIgnoringCase(*name, suffix)) continue;
    name->resize(name->size() - suffix.size());
    return name;
  }
  return std::nullopt;
}

Result<std::vector<BotLocation>> BotsAt(const fs::path& path) {
  std::vector<BotLocation> found;
  if (IsFolder(path)) {
    for (const fs::path& folder :
         {path, path / PathFromBytes(kBotFilesFolder)}) {
      for (const std::string& name : BotNamesIn(folder)) {
        found.push_back(InFolder(folder, name));
      }
      if (!found.empty()) break;
    }
  } else if (EndsWithIgnoringCase(BytesFromPath(path.filename()),
                                  kPackageEnd)) {
    Notes odd_entries;
    const Result<BotList> list = BotsInPackage(path, odd_entries);
    if (!list) return Failure(list.error());
    std::vector<BotListEntry> bots = list->entries();
    DropDescriptionsOfOthers(GivenFiles::OfPackage(path).value_or(GivenFiles()),
                             bots);
    found = InPackage(path, bots);
  } else if (const auto name = BotNameOfAnyFile(path); name && IsFile(path)) {
    const bool is_description = EndsWithIgnoringCase(
        BytesFromPath(path.filename()), FileSuffix(BotFile::kDescription));
    const fs::path bots =
        path.parent_path().parent_path() / PathFromBytes(kBotFilesFolder);
    // In the game's layout a description lies beside botfiles.
    const bool is_beside = is_description &&
                           path.parent_path().filename() == kScriptsFolder &&
                           IsFolder(bots);
    found.push_back(InFolder(is_beside ? bots : path.parent_path(), *name));
  }
  return found;
}

std::string WhyNoBots(const fs::path& path) {
  const bool is_folder = IsFolder(path);
  const Result<GivenFiles> given = is_folder ? GivenFiles::OfFolder(path, false)
                                             : GivenFiles::OfPackage(path);
  if (!given) return {};
  for (const std::string_view end : {kCharacterEnd, kDescriptionEnd}) {
    const std::vector<std::string> texts =
        given->PathsLike("", std::string(end) + ".txt");
    if (texts.empty()) continue;
    return Localized(
        "The name of %1 ends in .txt, so the game does not take it for a file "
        "of a bot. Remove the .txt from the names of the bot's files.",
        {Quoted(texts.front().substr(texts.front().rfind('/') + 1))});
  }
  const std::vector<std::string> files = given->PathsLike("", kCharacterEnd);
  if (files.empty()) return {};
  std::string_view folder = files.front();
  const std::size_t slash = folder.rfind('/');
  const std::string name = Quoted(folder.substr(slash + 1));
  folder = folder.substr(0, slash + 1);
  if (is_folder) {
    folder.remove_prefix(std::min(folder.size(), kBotFilesFolder.size() + 1));
    if (folder.empty()) return {};
    folder.remove_suffix(1);
    return Localized(
        "%1 lies in the folder %2 there: give that folder. For the game the "
        "files belong into %3.",
        {name, Quoted(folder), kBotFilesFolder});
  }
  if (!folder.empty()) folder.remove_suffix(1);
  return Localized(
      folder.empty()
          ? Localizable("%1 lies at the top of the package, where the game "
                        "does not look. Make the package anew: the files that "
                        "end in .c belong into its folder botfiles/bots, the "
                        "one that ends in .bot into its folder scripts.")
          : Localizable("%1 lies in the folder %2, where the game does not "
                        "look. Make the package anew: the files that end in .c "
                        "belong into its folder botfiles/bots, the one that "
                        "ends in .bot into its folder scripts."),
      {name, Quoted(folder)});
}

std::optional<BotLocation> LocationOf(const BotHome& home) {
  if (home.files.empty()) return std::nullopt;
  const OriginFile& file = home.files.contains(BotFile::kCharacteristics)
                               ? home.files.at(BotFile::kCharacteristics)
                               : home.files.begin()->second;
  if (!file.is_on_disk()) {
    std::optional<std::string> name =
        BotNameOfAnyFile(PathFromGameText(file.entry));
    if (!name) return std::nullopt;
    return BotLocation{
        .name = *std::move(name), .folder = {}, .package = file.path};
  }
  std::optional<std::string> name = BotNameOfAnyFile(file.path);
  if (!name) return std::nullopt;
  BotLocation location = InFolder(file.path.parent_path(), *name);
  location.uses_layout |= home.load_options.uses_layout;
  return location;
}

std::optional<fs::path> PlayersFolderOf(const BotLocation& location,
                                        const fs::path& package_folder) {
  std::optional<fs::path> folder =
      location.package.empty() ? LayoutRootOf(location.folder)
                               : WholePath(location.package).parent_path();
  if (folder && !folder->has_filename()) folder = folder->parent_path();
  std::error_code reason;
  const bool is_players =
      folder &&
      EqualIgnoringCase(BytesFromPath(folder->filename()),
                        BytesFromPath(package_folder.filename())) &&
      !fs::equivalent(*folder, package_folder, reason) && !reason;
  return is_players ? std::move(folder) : std::nullopt;
}

GivenFiles FilesOf(const BotLocation& location) {
  if (location.package.empty()) {
    return GivenFiles::OfFolder(location.folder, location.uses_layout);
  }
  return GivenFiles::OfPackage(location.package).value_or(GivenFiles());
}

}  // namespace fragsmith
