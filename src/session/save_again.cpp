#include "session/save_again.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <set>
#include <string>
#include <utility>

#include "install/packages/package.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

constexpr BotFile kFirst = BotFile::kCharacteristics;
constexpr std::array kBesideIt = {BotFile::kWeaponWeights,
                                  BotFile::kItemWeights, BotFile::kChat};

/// The bot's file of that kind on disk.
const OriginFile* OnDisk(const BotHome& home, BotFile file) {
  const auto found = home.files.find(file);
  return found != home.files.end() && found->second.is_on_disk()
             ? &found->second
             : nullptr;
}

bool IsSameName(const fs::path& left, const fs::path& right) {
  return ToLower(GameTextFromPath(left).value_or(std::string())) ==
         ToLower(GameTextFromPath(right).value_or(std::string()));
}

/// The very path of the file, unless the bot has another name now.
fs::path TargetOf(BotFile file, const Bot& bot, const BotHome& home,
                  const fs::path& folder) {
  const fs::path name = FileNameOf(file, bot);
  const OriginFile* const known = OnDisk(home, file);
  if (known == nullptr) return folder / name;
  if (IsSameName(known->path.filename(), name)) return known->path;
  return known->path.parent_path() / name;
}

/// The folder of the characteristic file, or of one that lies beside it.
std::optional<fs::path> FolderOf(const BotHome& home) {
  if (const OriginFile* const known = OnDisk(home, kFirst)) {
    return known->path.parent_path();
  }
  for (const BotFile file : kBesideIt) {
    if (const OriginFile* const known = OnDisk(home, file)) {
      return known->path.parent_path();
    }
  }
  return std::nullopt;
}

bool IsKnown(const BotHome& home, BotFile file, const fs::path& path) {
  const OriginFile* const known = OnDisk(home, file);
  return known != nullptr && known->path == path;
}

/// The file there as this bot's load or save knows it, or an earlier one.
const OriginFile* FindKnown(const BotHome& home, BotFile file,
                            const fs::path& path) {
  if (IsKnown(home, file, path)) return &home.files.at(file);
  for (const BotHome::Earlier& earlier : home.earlier) {
    const auto found = earlier.files.find(file);
    if (found != earlier.files.end() && found->second.is_on_disk() &&
        found->second.path == path) {
      return &found->second;
    }
  }
  return nullptr;
}

/// The same for a package that was made from the bot.
const OriginFile* FindKnownPackage(const BotHome& home, const fs::path& path) {
  if (home.package && home.package->path == path) return &*home.package;
  for (const BotHome::Earlier& earlier : home.earlier) {
    if (earlier.package && earlier.package->path == path) {
      return &*earlier.package;
    }
  }
  return nullptr;
}

/// The characteristic file on disk, which tells the bot's sets of files apart.
fs::path FirstPath(const OriginFiles& files) {
  const auto found = files.find(kFirst);
  return found != files.end() && found->second.is_on_disk() ? found->second.path
                                                            : fs::path();
}

/// Keeps the files and the package in mind that the bot has now, and forgets
/// those.
void Exchange(BotHome& home, const fs::path& forgotten) {
  std::erase_if(home.earlier, [&](const BotHome::Earlier& one) {
    return FirstPath(one.files) == forgotten;
  });
  if (FirstPath(home.files).empty()) return;
  home.earlier.push_back(
      {.files = home.files,
       .saved = home.saved != nullptr ? home.saved : home.loaded,
       .package = std::exchange(home.package, std::nullopt)});
}

bool HasChanged(const OriginFile& known, std::size_t limit) {
  const Result<std::string> bytes = ReadFile(known.path, limit);
  // One that has become too large is not what it was either.
  return bytes ? FingerprintOf(*bytes) != known.fingerprint
               : IsFile(known.path);
}

/// True for what the last save wrote before it failed.
bool IsOfHalfSave(const BotHome& home, BotFile file, const fs::path& path) {
  const auto made = home.half_saved.find(file);
  return made != home.half_saved.end() && made->second.path == path &&
         !HasChanged(made->second, kMaxBotFileBytes);
}

}  // namespace

fs::path FolderOf(const SavePlan& plan) {
  const auto first = plan.files.find(kFirst);
  const fs::path folder =
      (first != plan.files.end() ? first->second : plan.left_alone.at(kFirst))
          .parent_path();
  return LayoutRootOf(folder).value_or(folder);
}

std::optional<SavePlan> PlanOfSaveAgain(const Bot& bot, const BotHome& home) {
  if (home.target) return PlanOf(bot, *home.target);
  const std::optional<fs::path> folder = FolderOf(home);
  if (!folder) return std::nullopt;
  SavePlan plan;
  plan.files.emplace(kFirst, TargetOf(kFirst, bot, home, *folder));
  for (const BotFile file : kBesideIt) {
    plan.files.emplace(file, TargetOf(file, bot, home, *folder));
  }
  fs::path scripts = *folder;
  if (const std::optional<fs::path> root = LayoutRootOf(*folder)) {
    scripts = *root / kScriptsFolder;
    plan.folders = {scripts};
  }
  plan.files.emplace(BotFile::kDescription,
                     TargetOf(BotFile::kDescription, bot, home, scripts));
  return plan;
}

bool HasNewName(const SavePlan& plan, const BotHome& home) {
  const fs::path known = FirstPath(home.files);
  const auto target = plan.files.find(kFirst);
  return !known.empty() && target != plan.files.end() &&
         target->second != known;
}

void TakeUpEarlier(const Bot& bot, BotHome& home) {
  const std::optional<SavePlan> plan = PlanOfSaveAgain(bot, home);
  if (!plan) return;
  const fs::path target = plan->files.at(kFirst);
  if (target == FirstPath(home.files)) return;
  auto found = std::ranges::find(
      home.earlier, target,
      [](const BotHome::Earlier& one) { return FirstPath(one.files); });
  if (found == home.earlier.end()) {
    // Those of the name may lie elsewhere than the last save went to.
    const auto has_name =
        [name = FileNameOf(kFirst, bot)](const OriginFiles& files) {
          return IsSameName(FirstPath(files).filename(), name);
        };
    if (has_name(home.files)) return;
    const auto last =
        std::ranges::find_if(home.earlier.rbegin(), home.earlier.rend(),
                             has_name, &BotHome::Earlier::files);
    if (last == home.earlier.rend()) return;
    found = std::prev(last.base());
    home.target.reset();
  }
  BotHome::Earlier earlier = *found;
  Exchange(home, FirstPath(earlier.files));
  home.files = std::move(earlier.files);
  home.saved = std::move(earlier.saved);
  home.package = std::move(earlier.package);
}

std::vector<fs::path> ChangedByOthers(const SavePlan& plan,
                                      const BotHome& home) {
  std::vector<fs::path> changed;
  for (const auto& [file, path] : plan.files) {
    const OriginFile* const known = FindKnown(home, file, path);
    if (known != nullptr && HasChanged(*known, kMaxBotFileBytes)) {
      changed.push_back(path);
    }
  }
  if (plan.package) {
    const OriginFile* const known = FindKnownPackage(home, *plan.package);
    if (known != nullptr && HasChanged(*known, kMaxFileBytes)) {
      changed.push_back(*plan.package);
    }
  }
  return changed;
}

std::vector<fs::path> GoneSince(const SavePlan& plan, const BotHome& home) {
  std::vector<fs::path> gone;
  if (HasNewName(plan, home)) return gone;
  for (const auto& [file, path] : plan.files) {
    if (IsKnown(home, file, path) && !IsFile(path)) gone.push_back(path);
  }
  if (plan.package && home.package && home.package->path == *plan.package &&
      !IsFile(*plan.package)) {
    gone.push_back(*plan.package);
  }
  return gone;
}

void AddMissingFolders(SavePlan& plan) {
  std::set<fs::path> missing;  // Each before those in it.
  for (const auto& [file, path] : plan.files) {
    for (fs::path folder = path.parent_path();
         folder.has_relative_path() && !IsFolder(folder);
         folder = folder.parent_path()) {
      missing.insert(folder);
    }
  }
  plan.folders.insert(plan.folders.begin(), missing.begin(), missing.end());
}

std::map<BotFile, fs::path> TakeOutUnread(SavePlan& plan, const Bot& bot,
                                          const BotHome& home,
                                          const Author& author) {
  std::map<BotFile, fs::path> unread;
  for (const auto& [file, path] : plan.files) {
    if (IsKnown(home, file, path) || !IsFile(path) ||
        IsOfHalfSave(home, file, path)) {
      continue;
    }
    const bool is_untouched =
        home.loaded != nullptr &&
        BytesOf(file, bot, author) == BytesOf(file, *home.loaded, author);
    (is_untouched ? plan.left_alone : unread).emplace(file, path);
  }
  for (const auto& [file, path] : plan.left_alone) plan.files.erase(file);
  return unread;
}

std::vector<fs::path> NeverRead(const SavePlan& plan, const Bot& bot,
                                const BotHome& home, const Author& author) {
  std::vector<fs::path> never_read;
  for (const auto& [file, path] : plan.files) {
    if (FindKnown(home, file, path) != nullptr || !IsFile(path) ||
        IsOfHalfSave(home, file, path)) {
      continue;
    }
    const Result<std::string> bytes = ReadFile(path, kMaxBotFileBytes);
    const auto content = plan.contents.find(file);
    const bool is_same =
        bytes &&
        (bytes->empty() || *bytes == (content != plan.contents.end()
                                          ? content->second
                                          : BytesOf(file, bot, author)));
    if (!is_same) never_read.push_back(path);
  }
  if (plan.package && IsFile(*plan.package) &&
      FindKnownPackage(home, *plan.package) == nullptr &&
      std::ranges::none_of(home.files, [&plan](const auto& file) {
        return file.second.path == *plan.package;
      })) {
    never_read.push_back(*plan.package);
  }
  return never_read;
}

std::size_t OtherFilesIn(const fs::path& package, const Bot& bot) {
  Notes ignored;
  const auto entries = ListPackageEntries(package, ignored);
  if (!entries) return 0;
  std::size_t others = 0;
  for (const std::string& entry : *entries) {
    const fs::path file = PathFromGameText(entry).filename();
    const bool is_own =
        IsSameName(file, FileNameOf(kFirst, bot)) ||
        IsSameName(file, FileNameOf(BotFile::kDescription, bot)) ||
        std::any_of(kBesideIt.begin(), kBesideIt.end(), [&](BotFile one) {
          return IsSameName(file, FileNameOf(one, bot));
        });
    if (!is_own && !entry.ends_with('/')) ++others;
  }
  return others;
}

std::string WhatGoes(std::size_t other_files) {
  return Localized("Other files in it, which would go: %1.",
                   {std::to_string(other_files)});
}

bool IsPackageOf(const fs::path& package, const Bot& bot) {
  Notes odd_entries;
  const auto entries = ListPackageEntries(package, odd_entries);
  return IsSameName(package.filename(), PackageNameOf(bot)) && entries &&
         !entries->empty() && odd_entries.empty() &&
         OtherFilesIn(package, bot) == 0;
}

std::optional<PackageBeside> FindPackageBeside(const SavePlan& plan,
                                               const Bot& bot) {
  if (plan.package) return std::nullopt;
  const std::optional<std::string> name = GameTextFromPath(PackageNameOf(bot));
  const std::optional<fs::path> path =
      name ? FindFile(FolderOf(plan), *name) : std::nullopt;
  if (!path) return std::nullopt;
  return PackageBeside{*path, OtherFilesIn(*path, bot)};
}

void Remember(const SavedBot& saved, const SavePlan& plan, BotHome& home) {
  const bool is_whole = saved.files.size() == plan.files.size();
  const fs::path target = FirstPath(saved.files);
  if (is_whole && !target.empty() && target != FirstPath(home.files)) {
    Exchange(home, target);
  }
  if (is_whole) home.half_saved.clear();
  for (const auto& [file, known] : saved.files) {
    if (!is_whole && !IsKnown(home, file, known.path)) {
      home.half_saved.insert_or_assign(file, known);
      continue;
    }
    home.files.insert_or_assign(file, known);
  }
  if (saved.package) home.package = saved.package;
}

}  // namespace fragsmith
