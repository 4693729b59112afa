#include <algorithm>
#include <iterator>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "chat/chat_line.h"
#include "checks/bot_checks.h"
#include "checks/bot_on_disk.h"
#include "checks/chat_message.h"
#include "checks/game_data.h"
#include "cli/bot_source.h"
#include "cli/command.h"
#include "cli/terminal.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

using Json = nlohmann::ordered_json;

struct CheckOptions {
  BotSource source;
  std::string game_folder;  ///< Empty for that of the settings.
  bool as_json = false;
};

/// The game's files; nothing when no game is known.
std::optional<GameFiles> OpenGame(const CheckOptions& options,
                                  CommandContext& context) {
  const std::string folder = options.game_folder.empty()
                                 ? LoadSettingsFor(context).Q3Baseq3
                                 : options.game_folder;
  if (folder.empty()) return std::nullopt;
  GameFiles files = GameFiles::Open(PathFromBytes(folder));
  if (!files.is_game()) return std::nullopt;
  return files;
}

/// "FILE:LINE", without a line where it is none.
std::string PlaceText(const Bot& bot, const FindingPlace& place) {
  const bool is_on_disk = !place.file.empty();
  std::string text =
      is_on_disk ? place.file : Utf8FromGameText(FileOfPlace(bot, place));
  if (place.line > 0) text += ":" + std::to_string(place.line);
  return text;
}

void PrintText(const Bot& bot, const std::vector<Finding>& findings,
               std::ostream& out) {
  for (const Finding& finding : findings) {
    std::string line = PlaceText(bot, finding.place) + ": " +
                       std::string(SeverityWord(finding.severity)) + ": ";
    const std::string chat_place = ChatPlaceText(finding.place);
    if (!chat_place.empty()) line += chat_place + ": ";
    line += finding.text + " [" + std::string(finding.id) + "]";
    out << Printable(line) << '\n';
  }
}

Json InJson(const Bot& bot, const Finding& finding) {
  const FindingPlace& place = finding.place;
  const bool is_on_disk = !place.file.empty();
  Json json = {{"file", is_on_disk ? place.file
                                   : Utf8FromGameText(FileOfPlace(bot, place))},
               {"severity", SeverityWord(finding.severity)},
               {"id", finding.id},
               {"text", finding.text}};
  if (place.line > 0) json["line"] = place.line;
  if (place.parameter != FindingPlace::kNone) {
    json["parameter"] = place.parameter;
  }
  if (place.chat_type != FindingPlace::kNone) {
    json["chatType"] = place.chat_type;
  }
  if (place.chat_line != FindingPlace::kNone) {
    json["chatLine"] = place.chat_line;
  }
  json["mends"] = Json::array();
  for (const Mend& mend : finding.mends) json["mends"].push_back(mend.title);
  return json;
}

void PrintJson(const Bot& bot, const std::vector<Finding>& findings,
               std::ostream& out) {
  Json json = Json::array();
  for (const Finding& finding : findings) {
    json.push_back(InJson(bot, finding));
  }
  out << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

/// Files may give weights in another form than a bot here has them. They are
/// all 0 then, which says nothing of the files.
void DropUnreadWeights(const Bot& bot, std::vector<Finding>& findings) {
  for (const IndexRange& range : {kWeaponWeightRange, kItemWeightRange}) {
    bool has_weight = false;
    for (int index = range.first; index <= range.last; ++index) {
      has_weight = has_weight || IsAboveZero(bot.Parameter(index));
    }
    if (has_weight) continue;
    std::erase_if(findings, [&range](const Finding& finding) {
      return range.Contains(finding.place.parameter);
    });
  }
}

ExitStatus StatusOf(const std::vector<Finding>& findings) {
  const auto has = [&findings](Severity severity) {
    return std::any_of(findings.begin(), findings.end(),
                       [severity](const Finding& finding) {
                         return finding.severity == severity;
                       });
  };
  if (has(Severity::kError)) return kFailed;
  return has(Severity::kWarning) ? kWarned : kDone;
}

/// A file may name the first line of a group with a 0 that it loses when the
/// bot is saved: TAUNT0. The game has that line, if not the bare one.
bool IsNamedWithZero(const Finding& finding, const Bot& bot,
                     const BotOnDisk& on_disk, const GameData* game) {
  if (finding.id != "chat-list-missing" || game == nullptr ||
      !on_disk.files.chat) {
    return false;
  }
  const int type = finding.place.chat_type;
  const ChatMessage message = ReadChatMessage(
      ChatLineToFile(type, bot.ChatLine(type, finding.place.chat_line)));
  const std::string name = message.items.front().text + "0";
  return message.items.size() == 1 && game->words.Find(name) != nullptr &&
         Contains(on_disk.files.chat->bytes, name);
}

bool IsToldByFiles(std::string_view id) {
  return std::any_of(BotChecks().begin(), BotChecks().end(),
                     [id](const Check& check) {
                       return check.id == id && check.is_told_by_files;
                     });
}

/// Of a bot on disk, the files as they are tell more than the bot that was
/// read from them.
void TakeFilesInstead(const SourceBot& source, const BotSource& options,
                      const std::optional<GameFiles>& game,
                      const GameData* data, std::vector<Finding>& findings) {
  // The game takes them out of this very package.
  const std::string own_path = "botfiles/bots/" + ToLower(source.name) + "_c.c";
  const bool is_installed = game && game->entries().contains(own_path) &&
                            GameTextFromPath(source.package.filename()) ==
                                game->entries().at(own_path);
  const bool is_packaged = !source.package.empty();
  const BotOnDisk on_disk =
      is_packaged
          ? ReadBotInPackage(source.package, source.name)
          : ReadBotInFolder(source.folder, source.name, options.uses_layout);
  std::erase_if(findings, [&](const Finding& finding) {
    const bool is_own = (is_installed && finding.id == "files-shadowed") ||
                        (on_disk.is_in_bot_list && finding.id == "name-taken");
    return is_own || IsToldByFiles(finding.id) ||
           IsNamedWithZero(finding, source.loaded.bot, on_disk, data);
  });
  DropUnreadWeights(source.loaded.bot, findings);
  const auto look_up = [&game](std::string_view path) {
    return game ? game->Read("botfiles/" + std::string(path))
                : StandInGameFile(path);
  };
  std::vector<Finding> in_files = CheckFiles(on_disk.files, look_up);
  if (options.no_description) {
    std::erase_if(in_files, [](const Finding& finding) {
      return finding.id == "no-description";
    });
  }
  findings.insert(findings.begin(), std::make_move_iterator(in_files.begin()),
                  std::make_move_iterator(in_files.end()));
  if (!is_packaged) findings.push_back(LooseFilesHint(on_disk));
}

ExitStatus RunCheck(const CheckOptions& options, CommandContext& context) {
  const BotSourceOutcome outcome = ReadBotOrDocument(options.source, context);
  if (!outcome.bot) return outcome.refusal;
  const std::optional<GameFiles> files = OpenGame(options, context);
  std::optional<GameData> game;
  if (files) game = ReadGameData(*files);
  const Bot& bot = outcome.bot->loaded.bot;
  const GameData* const data = game ? &*game : nullptr;
  std::vector<Finding> findings = CheckBot(bot, data);
  const bool is_document = outcome.bot->name.empty();
  if (!is_document) {
    TakeFilesInstead(*outcome.bot, options.source, files, data, findings);
  }
  if (options.as_json) {
    PrintJson(bot, findings, context.out);
  } else {
    PrintText(bot, findings, context.out);
  }
  return StatusOf(findings);
}

}  // namespace

void AddCheckCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "check",
      "Tell what the game will make of a bot; exit status 0 clean or hints, "
      "3 warnings, 1 errors",
      context);
  auto options = std::make_shared<CheckOptions>();
  AddBotSource(command, options->source);
  command
      .add_option("--game", options->game_folder,
                  "The game's folder, in place of that of the settings")
      ->type_name("GAMEFOLDER");
  command.add_flag("--json", options->as_json, "Print JSON");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunCheck(*options, context); };
  });
}

}  // namespace fragsmith
