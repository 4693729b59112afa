#include "checks/bot_on_disk.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "game/description_reader.h"
#include "game/game_data.h"
#include "game/game_path.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// The descriptions that the game comes upon: loose ones lie in the folder
/// scripts itself, those of a package may lie one folder below it.
std::vector<std::string> DescriptionPaths(const GivenFiles& given) {
  const std::string folder = std::string(kScriptsFolder) + "/";
  std::vector<std::string> paths = given.PathsLike(folder, kDescriptionEnd);
  std::erase_if(paths, [&](const std::string& path) {
    return std::count(path.begin(), path.end(), '/') >
           (given.is_packed() ? 2 : 1);
  });
  return paths;
}

bool HasBotNamed(const GameFile& file, const std::string& name) {
  Complaints untold;
  return std::ranges::any_of(ReadGameDescription(file, untold),
                             [&name](const DescriptionSet& set) {
                               return EqualIgnoringCase(set.Text("name"), name);
                             });
}

using Speaks = bool (*)(const GameFile& file, const std::string& name);

std::optional<GameFile> FindDescription(const GivenFiles& given,
                                        const std::string& name, Speaks speaks,
                                        bool reads_list, bool& is_list) {
  std::vector<std::string> paths = DescriptionPaths(given);
  if (reads_list) paths.emplace_back(kBotListPath);
  for (const std::string& path : paths) {
    std::optional<GameFile> file = given.OpenInAnyCase(path);
    if (!file || !speaks(*file, name)) continue;
    is_list = path == kBotListPath;
    return file;
  }
  return std::nullopt;
}

/// The bots that lie beside this one and win: those of the list bots.txt, which
/// the game reads first, and those of descriptions that it reads before.
void TakeNames(const GivenFiles& given, bool reads_list, BotOnDisk& bot) {
  if (bot.is_in_bot_list || !bot.files.description) return;
  const auto take = [&](const std::string& path, bool is_by_chance) {
    const std::optional<GameFile> file = given.OpenInAnyCase(path);
    if (file) AddNamesTaken(file->bytes, file->name, bot.files, is_by_chance);
  };
  if (reads_list) take(std::string(kBotListPath), false);
  for (const std::string& path : DescriptionPaths(given)) {
    if (EqualIgnoringCase(path, bot.files.description->game_path)) {
      if (given.is_packed()) return;
      continue;
    }
    // The system lists those of a folder in an order of its own.
    take(path, !given.is_packed());
  }
}

}  // namespace

std::optional<ListedBot> FindListedBot(const GivenFiles& given,
                                       const std::string& name) {
  std::vector<std::string> paths = DescriptionPaths(given);
  paths.insert(paths.begin(), std::string(kBotListPath));
  std::optional<ListedBot> listed;
  std::set<std::string> others;
  for (const std::string& path : paths) {
    const std::optional<GameFile> file = given.OpenInAnyCase(path);
    if (!file) continue;
    Complaints untold;
    for (const DescriptionSet& set : ReadGameDescription(*file, untold)) {
      std::string file_name = BotOfPath(set.Text("aifile"));
      if (!EqualIgnoringCase(set.Text("name"), name)) {
        others.insert(std::move(file_name));
      } else if (!listed) {
        listed = {std::string(set.Text("name")), std::move(file_name),
                  path == kBotListPath};
      }
    }
  }
  if (listed) {
    listed->shares_files =
        !listed->file_name.empty() && others.contains(listed->file_name);
  }
  return listed;
}

BotOnDisk ReadBot(const GivenFiles& given, const std::string& name,
                  bool reads_list, const std::string& listed_name) {
  BotOnDisk bot;
  bot.files.listed_name = listed_name;
  bot.files.home = given.home();
  for (const BotFileMember& row : kBotFileMembers) {
    const std::string_view folder =
        row.file == BotFile::kDescription ? kScriptsFolder : kBotFilesFolder;
    bot.files.*row.member = given.OpenInAnyCase(
        std::string(folder) + "/" + name + std::string(FileSuffix(row.file)));
  }
  const bool is_own =
      bot.files.description &&
      (listed_name.empty() || HasBotNamed(*bot.files.description, listed_name));
  if (!is_own && !listed_name.empty()) {
    bot.files.description = FindDescription(given, listed_name, HasBotNamed,
                                            reads_list, bot.is_in_bot_list);
  } else if (!is_own) {
    bot.files.description =
        FindDescription(given, name, SpeaksOf, reads_list, bot.is_in_bot_list);
  }
  TakeNames(given, reads_list, bot);
  return bot;
}

bool SpeaksOf(const GameFile& file, const std::string& name) {
  Complaints untold;
  const std::string path = CharacterPath(name);
  const std::vector<DescriptionSet> sets = ReadGameDescription(file, untold);
  return std::ranges::any_of(sets, [&](const DescriptionSet& set) {
    return EqualIgnoringCase(
               PathLookedFor(set.Text("aifile"), FileHome::kPacked), path) ||
           EqualIgnoringCase(set.Text("name"), name);
  });
}

void AddNamesTaken(const std::string& bytes, const std::string& shown,
                   BotFileSet& files, bool is_by_chance) {
  for (const auto& [name, bot] : BotsInDescriptions(bytes)) {
    files.names_taken.emplace(name,
                              WinningDescription{.shown_path = shown,
                                                 .character = bot.character,
                                                 .is_by_chance = is_by_chance});
  }
}

Finding LooseFilesHint(const BotOnDisk& bot) {
  FilePlace place;
  for (const BotFileMember& row : kBotFileMembers) {
    const std::optional<GameFile>& file = bot.files.*row.member;
    if (place.kind || !file) continue;
    place.file = file->name;
    place.kind = row.file;
  }
  return {.id = "loose-files",
          .severity = Severity::kHint,
          .place = std::move(place),
          .text = Localized(
              "These files lie in a folder. A game that you start and play "
              "yourself passes over such files unless it was started with +set "
              "sv_pure 0. Pack the bot into a .pk3 package to be safe."),
          .mends = {}};
}

Finding HowToAdd(const std::string& name, BotPlace place,
                 const std::string& files) {
  const bool needs_quotes =
      name.find_first_of(" \t;") != std::string::npos || name.empty();
  const std::string shown = needs_quotes ? '"' + name + '"' : name;
  return {
      .id = "how-to-add",
      .severity = Severity::kHint,
      .place = std::move(place),
      .text =
          Localized("To add the bot, type /addbot %1 3 in the game's console.",
                    {ShownText(shown)}) +
          files,
      .mends = {}};
}

}  // namespace fragsmith
