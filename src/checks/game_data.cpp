#include "checks/game_data.h"

#include <cstddef>
#include <optional>
#include <vector>

#include "botfiles/game_text.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// The game ignores a list of that size.
constexpr std::size_t kTooLargeList = 8192;

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

void TakePath(std::string_view path, const std::string& package,
              GameData& data) {
  if (const auto name = Between(path, "botfiles/bots/", "_c.c")) {
    data.bot_packages.emplace(*name, package);
  }
  const auto script = Between(path, "scripts/", "");
  if (script && script->ends_with(".bot") && !Contains(*script, "/")) {
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

std::string_view WithoutQuotes(std::string_view token) {
  if (token.starts_with('"')) token.remove_prefix(1);
  if (token.ends_with('"')) token.remove_suffix(1);
  return token;
}

std::string_view Behind(std::string_view token, std::string_view text) {
  return text.substr(
      static_cast<std::size_t>(token.data() + token.size() - text.data()));
}

/// The game's scripts include the files that use the macros of a bot.
bool MentionsOwnedWeights(const GameFiles& files) {
  for (const std::string_view name : {"fw_items.c", "fuzi.c"}) {
    const auto bytes = files.Read("botfiles/" + std::string(name));
    if (bytes && Contains(*bytes, "GWW_")) return true;
  }
  return false;
}

}  // namespace

std::set<std::string, std::less<>> NamesInDescriptions(std::string_view bytes) {
  std::set<std::string, std::less<>> names;
  CommentStripper comments;
  LineReader lines(bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    std::string_view rest = comments.Strip(*line);
    for (std::string_view key = FirstToken(rest); !key.empty();
         key = FirstToken(rest)) {
      rest = Behind(key, rest);
      if (key == "{" || key == "}") continue;
      const std::string_view value = FirstToken(rest);
      if (!value.empty()) rest = Behind(value, rest);
      if (EqualIgnoringCase(WithoutQuotes(key), "name")) {
        names.insert(ToLower(WithoutQuotes(value)));
      }
    }
  }
  return names;
}

GameData ReadGameData(const GameFiles& files) {
  GameData data;
  for (const auto& [path, package] : files.entries()) {
    TakePath(path, package, data);
  }
  const auto list = files.Read("scripts/bots.txt");
  if (list && list->size() < kTooLargeList) {
    data.names_taken = NamesInDescriptions(*list);
  }
  if (const auto words = files.Read("botfiles/rnd.c")) {
    data.words = WordLists::Parse(*words);
  }
  data.has_weapon_script = files.Read("botfiles/fw_weap.c").has_value();
  data.has_item_script = files.Read("botfiles/fw_items.c").has_value();
  data.uses_owned_weights = MentionsOwnedWeights(files);
  return data;
}

}  // namespace fragsmith
