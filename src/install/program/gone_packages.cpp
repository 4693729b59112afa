#include "install/program/gone_packages.h"

#include <optional>
#include <system_error>

#include "install/program/game_folder.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// Names of what lies in the folder, in lower case; nothing when it cannot be
/// read.
std::optional<std::set<std::string>> NamesIn(const fs::path& folder) {
  std::set<std::string> names;
  std::error_code reason;
  for (fs::directory_iterator entry(folder, reason), end;
       !reason && entry != end; entry.increment(reason)) {
    if (const auto name = GameTextFromPath(entry->path().filename())) {
      names.insert(ToLower(*name));
    }
  }
  if (reason) return std::nullopt;
  return names;
}

}  // namespace

std::set<std::string> GonePackages(const fs::path& gameFolder,
                                   const BaseLists& lists) {
  if (gameFolder.empty()) return {};
  const auto present = NamesIn(PackageFolder(gameFolder));
  if (!present) return {};
  std::set<std::string> gone;
  const auto look_for = [&present, &gone](const std::string& package) {
    if (!present->contains(ToLower(package))) gone.insert(package);
  };
  for (const BotListEntry& bot : lists.bots.entries()) {
    if (!bot.IsStandard) look_for(bot.PK3File);
  }
  for (const ModelEntry& model : lists.models.models()) {
    for (const SkinEntry& skin : model.Skins) {
      if (!skin.IsOriginal && skin.PK3File != kUserDefinedPackage) {
        look_for(skin.PK3File);
      }
    }
  }
  return gone;
}

void DropPackages(const std::set<std::string>& packages, BaseLists& lists) {
  lists.bots.RemoveBotsOf(packages);
  lists.models.PurgeModelsOf(packages);
}

}  // namespace fragsmith
