#include "session/bot_sources.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "install/packages/package.h"
#include "install/program/base_scan.h"
#include "session/load_bot.h"
#include "support/files.h"
#include "support/no_prompts.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
std::optional<std::string> BotNameOfFile(const fs::path& file) {
  const std::string_view suffix = FileSuffix(BotFile::kCharacteristics);
  std::optional<std::string> name = GameTextFromPath(file.filename());
  if (!name || !EndsWithIgnoringCase(*name, suffix)) return std::nullopt;
  name->resize(name->size() - suffix.size());
  return name;
}

std::vector<std::string> BotNamesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const fs::path& file :
       ListFiles(folder, FileSuffix(BotFile::kCharacteristics))) {
    std::optional<std::string> name = BotNameOfFile(file);
    if (name) names.push_back(*std::move(name));
  }
  return names;
}

namespace {

/// For the game neither capitals nor the kind of slash count: what of the path
/// is not the bot's name is spelt as the lists know it.
std::string PlainListing(const std::string& listing) {
  std::string plain;
  LineReader lines(listing);
  while (const std::optional<std::string_view> line = lines.Next()) {
    std::string path(*line);
    std::replace(path.begin(), path.end(), '\\', '/');
    for (const std::string_view suffix : {FileSuffix(BotFile::kCharacteristics),
                                          FileSuffix(BotFile::kDescription)}) {
      if (!EndsWithIgnoringCase(path, suffix)) continue;
      path.replace(path.size() - suffix.size(), suffix.size(), suffix);
    }
    plain += path + '\n';
  }
  return plain;
}

}  // namespace

Result<BotList> BotsInPackage(const fs::path& package, Notes& notes) {
  const Result<std::string> listing = ListPackage(package, notes);
  if (!listing) return Failure(listing.error());
  BaseLists lists;
  NoPrompts prompts;
  Notes ignored;
  ParsePackageListing(
      PlainListing(*listing),
      GameTextFromPath(package.filename()).value_or(std::string()), lists,
      prompts, ignored);
  lists.bots.SortBotList();
  return std::move(lists.bots);
}

}  // namespace fragsmith
