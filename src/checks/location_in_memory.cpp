// What is told of the bot in memory where its files are known.

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "chat/chat_line.h"
#include "chat/vocabulary.h"
#include "checks/bot_checks.h"
#include "checks/installation_checks.h"
#include "checks/location_checks.h"
#include "checks/names_of_game.h"
#include "checks/unknown_values.h"
#include "game/chat_message.h"
#include "game/game_macros.h"
#include "game/stand_ins.h"
#include "game/weight_reader.h"
#include "inplace/game_values.h"
#include "inplace/game_weights.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// True where the file gives the game all that it asks for and a bot has.
bool GivesMacros(const std::optional<GameFile>& file,
                 const std::optional<GameMacros>& wanted) {
  if (!wanted) return true;
  if (!file) return false;
  Complaints untold;
  const std::vector<OwnMacro> given =
      ReadGameWeights(*file, StandInGameFile, untold).macros;
  return std::ranges::all_of(wanted->macros, [&](const auto& macro) {
    return !macro.parameter ||
           std::ranges::count(given, macro.name, &OwnMacro::name) > 0;
  });
}

}  // namespace

std::vector<Finding> LocationCheck::InMemory(const Bot& bot,
                                             bool is_as_in_files) const {
  std::vector<Finding> findings =
      CheckBot(bot, game_ == nullptr ? nullptr : &game_->data);
  const bool gives_macros = GivesGameMacros();
  std::erase_if(findings, [&](const Finding& finding) {
    return (gives_macros && finding.id == "weights-of-other-macros") ||
           IsNamedWithZero(finding, bot) || IsMacro(finding, bot);
  });
  DropUnreadWeights(bot, findings);
  AddUnnumbered(bot, findings);
  AddUnreadLines(bot, findings);
  if (!is_as_in_files) return findings;
  // A new package of the bot would have another name than where it lies.
  std::erase_if(findings, [this](const Finding& finding) {
    return finding.id == kFilesShadowed ||
           (on_disk_.is_in_bot_list && finding.id == "name-taken");
  });
  const GamePackage* const shadowing =
      game_ == nullptr
          ? nullptr
          : ShadowingPackage(game_->data, location_.name, Package());
  if (shadowing != nullptr) {
    findings.push_back({.id = kFilesShadowed,
                        .severity = Severity::kWarning,
                        .place = kNameField,
                        .text = ShadowedText(shadowing->name, Package()->name),
                        .mends = {}});
  }
  return findings;
}

void LocationCheck::AddUnnumbered(const Bot& bot,
                                  std::vector<Finding>& findings) const {
  if (!unnumbered_) {
    unnumbered_.emplace();
    for (const BotFileMember& row : kBotFileMembers) {
      const std::optional<GameFile>& file = on_disk_.files.*row.member;
      if (!file || (row.file != BotFile::kWeaponWeights &&
                    row.file != BotFile::kItemWeights)) {
        continue;
      }
      const std::vector<ParameterId> found = WeightsWithoutNumber(
          row.file, file->bytes,
          [this](std::string_view path) { return LookUp(path); });
      unnumbered_->insert(unnumbered_->end(), found.begin(), found.end());
    }
  }
  for (const ParameterId id : *unnumbered_) {
    if (IsAboveZero(bot.Parameter(id))) continue;
    findings.push_back(
        {.id = "weight-set-elsewhere",
         .severity = Severity::kHint,
         .place = id,
         .text = Localized("The 0 of %1 is none of the bot's values: from its "
                           "file the weight code of the game takes no number "
                           "for it, or no single one.",
                           {QuotedName(id)}),
         .mends = {}});
  }
}

const std::map<ChatTypeId, std::vector<std::string>>&
LocationCheck::UnreadLines() const {
  if (unread_lines_) return *unread_lines_;
  unread_lines_.emplace();
  const std::optional<GameFile>& chat = on_disk_.files.chat;
  if (!chat) return *unread_lines_;
  LoadedBot load;
  ReadBotFile(BotFile::kChat, WholeBot{}, chat->bytes, location_.name,
              chat->name, load);
  Bot in_game = load.bot;
  TakeGameChats(
      chat->bytes, [this](std::string_view path) { return LookUp(path); },
      in_game);
  for (const ChatTypeId type : kAllChatTypes) {
    const std::vector<std::string>& lines = in_game.ChatLines(type);
    if (load.bot.ChatLines(type).empty() && !lines.empty()) {
      unread_lines_->emplace(type, lines);
    }
  }
  return *unread_lines_;
}

void LocationCheck::AddUnreadLines(const Bot& bot,
                                   std::vector<Finding>& findings) const {
  Bot in_game = bot;
  for (const auto& [type, lines] : UnreadLines()) {
    if (bot.ChatLines(type).empty()) in_game.SetChatLines(type, lines);
  }
  if (in_game == bot) return;
  const auto is_of_empty_types = [](const Finding& finding) {
    return finding.id == "chat-without-lines";
  };
  std::erase_if(findings, is_of_empty_types);
  std::ranges::copy_if(
      CheckBot(in_game, game_ == nullptr ? nullptr : &game_->data),
      std::back_inserter(findings), is_of_empty_types);
}

bool LocationCheck::GivesGameMacros() const {
  return game_ != nullptr &&
         GivesMacros(on_disk_.files.weapon_weights,
                     game_->data.weapon_macros) &&
         GivesMacros(on_disk_.files.item_weights, game_->data.item_macros);
}

/// A word that the chat file defines itself is no word list.
bool LocationCheck::IsMacro(const Finding& finding, const Bot& bot) const {
  const std::optional<GameFile>& chat = on_disk_.files.chat;
  if (finding.id != "chat-list-missing" || !chat) return false;
  const auto& place = std::get<ChatPlace>(finding.place);
  const ChatMessage message = ReadChatMessage(
      ChatLineToFile(place.type, bot.ChatLine(place.type, place.line.value())));
  return std::any_of(message.items.begin(), message.items.end(),
                     [&chat](const ChatItem& item) {
                       return item.kind == ChatItem::Kind::kWord &&
                              Contains(chat->bytes,
                                       "#define " + item.text + " ");
                     });
}

/// A file may name the first line of a group with a 0 that it loses when the
/// bot is saved: TAUNT0. The game has that line, if not the bare one.
bool LocationCheck::IsNamedWithZero(const Finding& finding,
                                    const Bot& bot) const {
  const std::optional<GameFile>& chat = on_disk_.files.chat;
  if (finding.id != "chat-list-missing" || game_ == nullptr || !chat) {
    return false;
  }
  const auto& place = std::get<ChatPlace>(finding.place);
  const ChatMessage message = ReadChatMessage(
      ChatLineToFile(place.type, bot.ChatLine(place.type, place.line.value())));
  const std::string name = message.items.front().text + "0";
  return message.items.size() == 1 && game_->data.words.Find(name) != nullptr &&
         Contains(chat->bytes, name);
}

}  // namespace fragsmith
