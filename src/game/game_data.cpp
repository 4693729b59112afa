#include "game/game_data.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "game/description_reader.h"
#include "model/characteristic_catalogue.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// What stands between the beginning and the end of a path.
std::optional<std::string_view> Between(std::string_view path,
                                        std::string_view beginning,
                                        std::string_view end) {
  if (path.size() < beginning.size() + end.size() ||
      !path.starts_with(beginning) || !path.ends_with(end)) {
    return std::nullopt;
  }
  path.remove_prefix(beginning.size());
  path.remove_suffix(end.size());
  return path;
}

void TakePath(std::string_view path, const GamePackage& package,
              GameData& data) {
  if (const auto name = Between(path, "botfiles/bots/", kCharacterEnd)) {
    data.bot_packages.emplace(*name, package);
  }
  const auto script = Between(path, kScriptsPath, "");
  if (script && script->ends_with(kDescriptionEnd) && !Contains(*script, "/")) {
    data.description_files.emplace(*script);
  }
  const auto model = Between(path, "models/players/", "");
  const std::size_t slash = model ? model->find('/') : std::string_view::npos;
  if (slash == std::string_view::npos) return;
  data.models.emplace(model->substr(0, slash));
  if (const auto skin = Between(model->substr(slash), "/lower_", ".skin")) {
    data.skins.insert(std::string(model->substr(0, slash)) + "/" +
                      std::string(*skin));
  }
}

/// The list of bots, and descriptions as the game comes upon them.
void TakeKnownBots(const GameFiles& files, GameData& data) {
  const auto take = [&](std::string_view path, const GamePackage& package) {
    const std::optional<std::string> bytes = files.Read(path);
    if (!bytes) return;
    for (auto& [name, bot] : BotsInDescriptions(*bytes)) {
      bot.path = path;
      bot.package = package;
      data.known_bots.emplace(name, std::move(bot));
    }
  };
  take(kBotListPath, {});
  std::vector<std::pair<GamePackage, std::string>> by_package;
  for (const auto& [path, package] : files.entries()) {
    const auto script = Between(path, kScriptsPath, kDescriptionEnd);
    if (script && !Contains(*script, "/"))
      by_package.emplace_back(package, path);
  }
  std::stable_sort(by_package.begin(), by_package.end(),
                   [](const auto& one, const auto& other) {
                     return one.first.WinsOver(other.first);
                   });
  for (const auto& [package, path] : by_package) take(path, package);
}

/// The game's scripts include the files that use the macros of a bot.
bool MentionsOwnedWeights(const GameFiles& files) {
  for (const std::string_view name : {"fw_items.c", "fuzi.c"}) {
    const auto bytes = files.Read(InBotFiles(name));
    if (bytes && Contains(*bytes, "GWW_")) return true;
  }
  return false;
}

}  // namespace

std::string ShownPlace(const KnownBot& bot) {
  const std::string path = ShownText(bot.path);
  return bot.is_of_list() ? path : ShownText(bot.package.name) + "/" + path;
}

std::multimap<std::string, KnownBot, std::less<>> BotsInDescriptions(
    std::string_view bytes) {
  const GameFile file = {
      .name = {}, .game_path = {}, .bytes = std::string(bytes)};
  Complaints nobody_asked;
  std::multimap<std::string, KnownBot, std::less<>> bots;
  for (const DescriptionSet& set : ReadGameDescription(file, nobody_asked)) {
    const std::string_view name = set.Text("name");
    if (!name.empty() && name != kNoDescriptionValue) {
      bots.emplace(ToLower(name),
                   KnownBot{.path = {},
                            .package = {},
                            .character = ToLower(set.Text("aifile")),
                            .fun_name = std::string(set.Text("funname")),
                            .model = std::string(set.Text("model"))});
    }
  }
  return bots;
}

const KnownBot* BotThatWins(const GameData& game, std::string_view name,
                            const DescriptionSource& own) {
  const auto [first, last] = game.known_bots.equal_range(ToLower(name));
  const auto wins = std::find_if(first, last, [&own](const auto& known) {
    const KnownBot& other = known.second;
    return other.is_of_list() ||
           (own.package && !EqualIgnoringCase(other.path, own.path) &&
            other.package.WinsOver(*own.package));
  });
  return wins == last ? nullptr : &wins->second;
}

GameData ReadGameData(const GameFiles& files) {
  GameData data;
  for (const auto& [path, package] : files.entries()) {
    TakePath(path, package, data);
  }
  TakeKnownBots(files, data);
  if (const auto words = files.Read("botfiles/rnd.c")) {
    data.words = WordLists::Parse(*words);
  }
  data.has_weapon_script = files.Read("botfiles/fw_weap.c").has_value();
  data.has_item_script = files.Read("botfiles/fw_items.c").has_value();
  const IncludeLookup look_up = [&files](std::string_view path) {
    return files.Read(InBotFiles(path));
  };
  data.weapon_macros = OtherMacros(kWeaponWeightRange, look_up);
  data.item_macros = OtherMacros(kItemWeightRange, look_up);
  data.uses_owned_weights = MentionsOwnedWeights(files);
  return data;
}

}  // namespace fragsmith
