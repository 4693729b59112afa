#include "checks/game_checks.h"

#include <cstddef>
#include <numeric>
#include <string>

#include "checks/parameter_words.h"
#include "install/bot_list.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/text.h"

namespace fragsmith {
namespace {

bool IsStandardBot(const std::string& name) {
  static const BotList kStandard = BotList::Standard();
  return kStandard.Find(name).has_value();
}

}  // namespace

void CheckGameIsKnown(const CheckContext& context, FindingList& findings) {
  if (context.game != nullptr) return;
  findings.Add(FindingPlace{.file = {}},
               "No game folder is set, so nobody has looked whether the "
               "bot's name and model fit the installed game and which word "
               "lists it has. Set the folder of the game in the options.");
}

void CheckNameIsTaken(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  const bool is_in_game = context.game != nullptr &&
                          context.game->names_taken.contains(ToLower(name));
  if (!is_in_game && !IsStandardBot(name)) return;
  findings.Add(kNameIndex,
               "The game has a bot " + QuotedText(name) +
                   " of its own and keeps that one: this bot will not appear. "
                   "Choose a new name.");
}

void CheckFilesAreShadowed(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr) return;
  const std::string name = context.bot.Name();
  const auto found = context.game->bot_packages.find(ToLower(name));
  if (found == context.game->bot_packages.end()) return;
  const std::string own = "bot-" + name + ".pk3";
  if (ToLower(found->second) <= ToLower(own)) return;
  findings.Add(kNameIndex,
               "The package " + QuotedText(found->second) +
                   " of your game has bot files of the same names, and the "
                   "game takes those before the ones of " +
                   QuotedText(own) +
                   ", since of several packages the last one by name counts. "
                   "Choose a new name.");
}

void CheckDescriptionCount(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr) return;
  constexpr std::size_t kMostBytes = 1022;
  const std::string own = ToLower(context.bot.Text(kDescriptionFileField));
  const auto& files = context.game->description_files;
  const std::size_t bytes = std::accumulate(
      files.begin(), files.end(), files.contains(own) ? 0 : own.size() + 1,
      [](std::size_t sum, const std::string& name) {
        return sum + name.size() + 1;
      });
  if (bytes <= kMostBytes) return;
  findings.Add(kNameIndex,
               "Your game has so many bots that the names of their .bot files "
               "do not fit into the 1022 characters that it has for them (" +
                   std::to_string(bytes) +
                   " with this bot): some of them will be missing, maybe this "
                   "one. Take packages of other bots away.");
}

void CheckModelIsInstalled(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr || context.game->models.empty()) return;
  const std::string model = ToLower(context.bot.Text(kModelField));
  const std::string skin = ToLower(context.bot.Text(kSkinField));
  if (model.empty()) return;
  if (!context.game->models.contains(model)) {
    findings.Add(kModelField,
                 "The packages of your game have no model " +
                     QuotedText(model) +
                     ": the game shows the bot as another model. It plays all "
                     "the same.");
  } else if (!skin.empty() &&
             !context.game->skins.contains(model + "/" + skin)) {
    findings.Add(kSkinField,
                 "The packages of your game have no skin " + QuotedText(skin) +
                     " for the model " + QuotedText(model) +
                     ": the game shows the bot as another model. It plays all "
                     "the same.");
  }
}

}  // namespace fragsmith
