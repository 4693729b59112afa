#include <algorithm>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "checks/bot_checks.h"
#include "checks/location_checks.h"
#include "cli/bot_source.h"
#include "cli/command.h"
#include "cli/terminal.h"
#include "support/code_page.h"

namespace fragsmith {
namespace {

using Json = nlohmann::ordered_json;

struct CheckOptions {
  BotSource source;
  bool as_json = false;
  bool shows_all = false;
};

/// Where the place of a finding is shown.
using PlaceOf = std::function<FilePlace(const BotPlace& place)>;

/// A finding with the number of others of its kind that it stands for.
struct ShownFinding {
  const Finding* finding;
  int more = 0;
};

/// Warnings and hints of a kind are shown once; errors each for itself.
std::vector<ShownFinding> Fold(const std::vector<Finding>& findings,
                               bool shows_all) {
  std::vector<ShownFinding> shown;
  for (const Finding& finding : findings) {
    const auto same = std::find_if(
        shown.begin(), shown.end(), [&](const ShownFinding& other) {
          return other.finding->id == finding.id &&
                 other.finding->severity == finding.severity;
        });
    if (shows_all || finding.severity == Severity::kError ||
        same == shown.end()) {
      shown.push_back({&finding});
    } else {
      ++same->more;
    }
  }
  return shown;
}

/// "FILE:LINE", without a line where it is none.
std::string PlaceText(const FilePlace& place) {
  return place.line > 0 ? place.file + ":" + std::to_string(place.line)
                        : place.file;
}

void PrintText(const std::vector<ShownFinding>& findings, const PlaceOf& where,
               std::ostream& out) {
  for (const auto& [shown, more] : findings) {
    const Finding& finding = *shown;
    std::string line = PlaceText(where(finding.place)) + ": " +
                       std::string(SeverityWord(finding.severity)) + ": ";
    const std::string chat_place = ChatPlaceText(finding.place);
    if (!chat_place.empty()) line += chat_place + ": ";
    line += finding.text;
    if (more > 0) {
      line += " (" + std::to_string(more) + " more like this: --all)";
    }
    line += " [" + std::string(finding.id) + "]";
    out << Printable(line) << '\n';
  }
}

Json InJson(const Finding& finding, const FilePlace& where) {
  const BotPlace& place = finding.place;
  Json json = {{"file", where.file},
               {"severity", SeverityWord(finding.severity)},
               {"id", finding.id},
               {"text", finding.text}};
  if (where.line > 0) json["line"] = where.line;
  if (const auto* const parameter = std::get_if<ParameterId>(&place)) {
    json["parameter"] = parameter->number();
  }
  if (const auto* const chat = std::get_if<ChatPlace>(&place)) {
    json["chatType"] = IndexOf(chat->type);
    if (chat->line) json["chatLine"] = chat->line->index();
  }
  json["mends"] = Json::array();
  for (const Mend& mend : finding.mends) json["mends"].push_back(mend.title);
  return json;
}

void PrintJson(const std::vector<ShownFinding>& findings, const PlaceOf& where,
               std::ostream& out) {
  Json json = Json::array();
  for (const auto& [finding, more] : findings) {
    json.push_back(InJson(*finding, where(finding->place)));
    if (more > 0) json.back()["more"] = more;
  }
  out << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
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

ExitStatus Print(const std::vector<Finding>& findings, const PlaceOf& where,
                 const CheckOptions& options, CommandContext& context) {
  const std::vector<ShownFinding> shown = Fold(findings, options.shows_all);
  if (options.as_json) {
    PrintJson(shown, where, context.out);
  } else {
    PrintText(shown, where, context.out);
  }
  return StatusOf(findings);
}

ExitStatus RunCheck(const CheckOptions& options, CommandContext& context) {
  const std::optional<InstalledGame> game =
      ReadInstalledGame(GameFolderOf(options.source, context));
  const InstalledGame* const known = game ? &*game : nullptr;
  if (IsOfFiles(options.source)) {
    const BotLocationOutcome outcome = FindBot(options.source, context);
    if (!outcome.found) return outcome.refusal;
    const LocationCheck check(*outcome.found, options.source.no_description,
                              known);
    const Bot bot = check.Read();
    PlacesInFiles places = check.Places();
    return Print(
        check.OfAll(bot),
        [&](const BotPlace& place) { return places.Of(bot, place); }, options,
        context);
  }
  const BotSourceOutcome outcome = ReadBotOrDocument(options.source, context);
  if (!outcome.bot) return outcome.refusal;
  const Bot& bot = outcome.bot->loaded.bot;
  std::vector<Finding> findings =
      CheckBot(bot, known == nullptr ? nullptr : &known->data);
  findings.push_back(HowToAdd(bot.Name(), kNameField));
  return Print(
      findings,
      [&](const BotPlace& place) {
        return FilePlace{.file = Utf8FromGameText(FileOfPlace(bot, place))};
      },
      options, context);
}

}  // namespace

void AddCheckCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "check",
      "Tell what the game will make of a bot; exit status 0 clean or hints, "
      "3 warnings, 1 errors",
      context);
  auto options = std::make_shared<CheckOptions>();
  options->source.is_for_game = true;
  AddBotSource(command, options->source);
  AddGameFolder(command, options->source);
  // Files are judged by what the game reads in any case.
  AddAsGame(command, options->source.as_game);
  command.add_flag("--all", options->shows_all,
                   "Print each finding, and not one of each kind alone");
  command.add_flag("--json", options->as_json, "Print JSON");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunCheck(*options, context); };
  });
}

}  // namespace fragsmith
