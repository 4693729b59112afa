#include "checks/bot_on_disk.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "checks/game_data.h"
#include "install/package.h"
#include "session/load_bot.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

struct Member {
  BotFile file;
  std::optional<GameFile> BotFileSet::*member;
};

constexpr std::array<Member, 5> kMembers = {{
    {BotFile::kDescription, &BotFileSet::description},
    {BotFile::kCharacteristics, &BotFileSet::character},
    {BotFile::kWeaponWeights, &BotFileSet::weapon_weights},
    {BotFile::kItemWeights, &BotFileSet::item_weights},
    {BotFile::kChat, &BotFileSet::chat},
}};

/// Gives a file by its name in scripts or botfiles/bots.
using Finder = std::function<std::optional<GameFile>(bool is_script,
                                                     const std::string& name)>;

BotOnDisk Read(const std::string& name, const Finder& find) {
  BotOnDisk bot;
  for (const Member& row : kMembers) {
    bot.files.*row.member = find(row.file == BotFile::kDescription,
                                 name + std::string(FileSuffix(row.file)));
  }
  if (bot.files.description) return bot;
  std::optional<GameFile> list = find(true, "bots.txt");
  if (list && NamesInDescriptions(list->bytes).contains(ToLower(name))) {
    bot.files.description = std::move(list);
    bot.is_in_bot_list = true;
  }
  return bot;
}

}  // namespace

BotOnDisk ReadBotInFolder(const fs::path& folder, const std::string& name,
                          bool uses_layout) {
  const fs::path scripts =
      uses_layout ? folder.parent_path().parent_path() / kScriptsFolder
                  : folder;
  return Read(
      name,
      [&](bool is_script, const std::string& file) -> std::optional<GameFile> {
        const std::optional<fs::path> path =
            FindFile(is_script ? scripts : folder, file);
        if (!path) return std::nullopt;
        Result<std::string> bytes = ReadFile(*path, kMostBotFileBytes);
        const std::optional<std::string> found =
            GameTextFromPath(path->filename());
        if (!bytes || !found) return std::nullopt;
        return GameFile{.name = Utf8FromPath(*path),
                        .game_path = is_script ? *found : "bots/" + *found,
                        .bytes = std::move(*bytes)};
      });
}

BotOnDisk ReadBotInPackage(const fs::path& package, const std::string& name) {
  Notes notes;
  const Result<std::vector<std::string>> entries =
      ListPackageEntries(package, notes);
  return Read(
      name,
      [&](bool is_script, const std::string& file) -> std::optional<GameFile> {
        if (!entries) return std::nullopt;
        const std::string_view folder =
            is_script ? kScriptsFolder : kBotFilesFolder;
        const std::string wanted = std::string(folder) + "/" + file;
        const bool is_there = std::any_of(
            entries->begin(), entries->end(), [&wanted](std::string entry) {
              std::replace(entry.begin(), entry.end(), '\\', '/');
              return entry.size() == wanted.size() &&
                     EqualIgnoringCase(entry, wanted);
            });
        if (!is_there) return std::nullopt;
        Result<std::string> bytes =
            ReadPackageEntry(package, wanted, kMostBotFileBytes);
        if (!bytes) return std::nullopt;
        // In packages case does not count: spelt as the bot's files spell it.
        const std::string lower = ToLower(file);
        const std::string shown =
            Utf8FromPath(package.filename()) + "/" + wanted;
        return GameFile{.name = shown,
                        .game_path = is_script ? lower : "bots/" + lower,
                        .bytes = std::move(*bytes)};
      });
}

Finding LooseFilesHint(const BotOnDisk& bot) {
  std::string name;
  for (const Member& row : kMembers) {
    const std::optional<GameFile>& file = bot.files.*row.member;
    if (name.empty() && file) name = file->name;
  }
  return {.id = "loose-files",
          .severity = Severity::kHint,
          .place = {.file = std::move(name)},
          .text =
              "These files lie in a folder. A game that you start and play "
              "yourself passes over such files unless it was started with "
              "+set sv_pure 0. Pack the bot into a .pk3 package to be "
              "safe.",
          .mends = {}};
}

}  // namespace fragsmith
