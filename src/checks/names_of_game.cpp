#include "checks/names_of_game.h"

#include <string>

#include "game/game_path.h"
#include "install/program/bot_list.h"
#include "model/file_names.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {

const GamePackage* ShadowingPackage(const GameData& game, std::string_view name,
                                    const std::optional<GamePackage>& package) {
  const auto found = game.bot_packages.find(ToLower(name));
  const bool has_other = package && found != game.bot_packages.end() &&
                         found->second.WinsOver(*package);
  return has_other ? &found->second : nullptr;
}

void TakeNamesOfGame(const GameData& game,
                     const std::optional<GamePackage>& package, bool hides_list,
                     BotFileSet& files) {
  if (!files.description) return;
  const DescriptionSource own = {.path = files.description->game_path,
                                 .package = package};
  for (const auto& [name, known] : game.known_bots) {
    const KnownBot* const winner = BotThatWins(game, name, own);
    if (winner == nullptr || (hides_list && winner->is_of_list())) continue;
    const bool is_of_bot = ShadowingPackage(game, BotOfPath(winner->character),
                                            package) == nullptr;
    files.names_taken.emplace(
        name,
        WinningDescription{.shown_path = ShownPlace(*winner),
                           .character = is_of_bot ? winner->character : ""});
  }
}

void TakeStandardNames(bool is_packed, BotFileSet& files) {
  if (!files.description) return;
  const BotList standard = BotList::Standard();
  for (const BotListEntry& bot : standard.entries()) {
    const std::string name = ToLower(bot.Name);
    // Of files of one name the game takes its own before a bot's package.
    files.names_taken.emplace(
        name,
        WinningDescription{.shown_path = Localized("its own list of bots"),
                           .character = is_packed ? "" : CharacterPath(name)});
  }
}

}  // namespace fragsmith
