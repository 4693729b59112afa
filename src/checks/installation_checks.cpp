#include "checks/installation_checks.h"

#include <cstddef>
#include <numeric>
#include <string>

#include "chat/vocabulary.h"
#include "game/limits.h"
#include "install/program/bot_list.h"
#include "model/characteristic_catalogue.h"
#include "model/file_names.h"
#include "session/bot_file.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Only where no game is known, as others than the original have other bots.
bool IsStandardBot(const CheckContext& context, const std::string& name) {
  static const BotList kStandard = BotList::Standard();
  return (context.game == nullptr || context.game->known_bots.empty()) &&
         kStandard.Find(name).has_value();
}

}  // namespace

void CheckGameIsKnown(const CheckContext& context, FindingList& findings) {
  if (context.game != nullptr) return;
  findings.Add(WholeBot{},
               Localized("No game folder is set, or there is no game in it, so "
                         "nobody has looked whether the bot's name and model "
                         "fit the installed game and which word lists it has. "
                         "Set the folder of the game in the options."));
}

void CheckNameIsTaken(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  const KnownBot* const winner =
      context.game == nullptr
          ? nullptr
          : BotThatWins(*context.game, name,
                        {.path = std::string(kScriptsPath) + name +
                                 std::string(kDescriptionEnd),
                         .package = GamePackage{BotPackageName(name)}});
  if (winner != nullptr && !winner->is_of_list()) {
    // A description of this very bot that is called otherwise than we do.
    if (EqualIgnoringCase(winner->character, CharacterPath(name))) return;
    findings.Add(kNameField, NameTakenText(name, ShownPlace(*winner)));
  } else if (winner != nullptr || IsStandardBot(context, name)) {
    findings.Add(kNameField,
                 Localized("The game has a bot %1 of its own and keeps that "
                           "one: this bot will not appear. Choose a new name.",
                           {Quoted(name)}));
  }
}

std::string NameTakenText(std::string_view name, const std::string& where) {
  return Localized(
      "The game has a bot %1 already, in %2, and adds that one in place of "
      "this bot. Choose another name.",
      {Quoted(name), where});
}

std::string ShadowedText(const std::string& winner, const std::string& own) {
  return Localized(
      "The package %1 of your game has bot files of the same names, and the "
      "game takes those before the ones of %2, since of several packages the "
      "last one by name counts. Choose a new name.",
      {Quoted(winner), Quoted(own)});
}

void CheckFilesAreShadowed(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr) return;
  const std::string name = context.bot.Name();
  const auto found = context.game->bot_packages.find(ToLower(name));
  if (found == context.game->bot_packages.end()) return;
  const std::string own = BotPackageName(name);
  if (!found->second.WinsOver(GamePackage{own})) return;
  findings.Add(kNameField, ShadowedText(found->second.name, own));
}

void CheckDescriptionCount(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr) return;
  const std::string own = ToLower(context.bot.Text(kDescriptionFileField));
  const auto& files = context.game->description_files;
  const std::size_t bytes = std::accumulate(
      files.begin(), files.end(), files.contains(own) ? 0 : own.size() + 1,
      [](std::size_t sum, const std::string& name) {
        return sum + name.size() + 1;
      });
  if (bytes <= limits::kMaxDescriptionNames) return;
  findings.Add(
      kNameField,
      Localized("Your game has so many bots that the names of their .bot files "
                "do not fit into the %1 characters that it has for them (%2 "
                "with this bot): some of them will be missing, maybe this one. "
                "Take packages of other bots away.",
                {std::to_string(limits::kMaxDescriptionNames),
                 std::to_string(bytes)}));
}

void CheckModelIsInstalled(const CheckContext& context, FindingList& findings) {
  if (context.game == nullptr || context.game->models.empty()) return;
  const std::string model = ToLower(context.bot.Text(kModelField));
  const std::string skin = ToLower(context.bot.Text(kSkinField));
  if (model.empty()) return;
  if (!context.game->models.contains(model)) {
    findings.Add(
        kModelField,
        Localized("The packages of your game have no model %1: the game shows "
                  "the bot as another model. It plays all the same. Choose a "
                  "model that your game has, or put its package there.",
                  {Quoted(model)}));
  } else if (!skin.empty() &&
             !context.game->skins.contains(model + "/" + skin)) {
    findings.Add(
        kSkinField,
        Localized("The packages of your game have no skin %1 for the model %2: "
                  "the game shows the bot as another model. It plays all the "
                  "same. Choose a skin that your game has.",
                  {Quoted(skin), Quoted(model)}));
  }
}

}  // namespace fragsmith
