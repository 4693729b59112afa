#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "cli/command.h"
#include "cli/terminal.h"
#include "install/program/game_folder.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/system/console.h"

namespace fragsmith {
namespace {

struct ScanOptions {
  std::string folder;
  bool as_json = false;
};

void PrintJson(const BaseLists& lists, std::ostream& out) {
  using Json = nlohmann::ordered_json;
  Json json = {{"models", Json::array()}, {"bots", Json::array()}};
  for (const ModelEntry& model : lists.models.models()) {
    Json skins = Json::array();
    for (const SkinEntry& skin : model.Skins) {
      skins.push_back({{"name", Utf8FromGameText(skin.Name)},
                       {"package", Utf8FromGameText(skin.PK3File)},
                       {"original", skin.IsOriginal},
                       {"icon", Utf8FromGameText(skin.IconFile)}});
    }
    json["models"].push_back({{"name", Utf8FromGameText(model.Name)},
                              {"package", Utf8FromGameText(model.PK3File)},
                              {"original", model.IsOriginal},
                              {"skins", std::move(skins)}});
  }
  for (const BotListEntry& bot : lists.bots.entries()) {
    json["bots"].push_back({{"name", Utf8FromGameText(bot.Name)},
                            {"package", Utf8FromGameText(bot.PK3File)},
                            {"standard", bot.IsStandard},
                            {"script", bot.HasBotScript},
                            {"status", BotStatus(bot)}});
  }
  out << json.dump(2) << '\n';
}

void PrintText(const BaseLists& lists, std::ostream& out) {
  out << "Models (" << lists.models.models().size() << "), with their skins ("
      << lists.models.CountSkins() << "):\n";
  for (const ModelEntry& model : lists.models.models()) {
    out << "  " << Printable(Utf8FromGameText(model.Name)) << ':';
    for (const SkinEntry& skin : model.Skins) {
      out << ' ' << Printable(Utf8FromGameText(skin.Name));
    }
    out << '\n';
  }
  out << "Bots (" << lists.bots.entries().size()
      << "), with their package and whether it has a description:\n";
  for (const BotListEntry& bot : lists.bots.entries()) {
    out << "  " << Printable(Utf8FromGameText(BotListLine(bot))) << '\n';
  }
}

ExitStatus RunScan(const ScanOptions& options, CommandContext& context) {
  const std::filesystem::path packages =
      PackageFolder(PathFromBytes(options.folder));
  if (!IsFolder(packages)) {
    return Fail(context, {.what = "There is no such folder.",
                          .file = Utf8FromPath(packages),
                          .line = 0,
                          .advice = "Give the folder of the game, the one "
                                    "above its baseq3."});
  }
  BaseLists lists = LoadListsFor(context);
  ProgramSettings settings;
  settings.Q3Baseq3 = options.folder;
  const bool shows_progress = IsErrorTerminal();
  const auto progress = [&](std::size_t done, std::size_t total) {
    if (shows_progress) {
      context.err << "\rReading packages: " << done << " of " << total
                  << (done == total ? "\n" : "") << std::flush;
    }
    return true;
  };
  CatalogueSelection selection;
  Notes notes;
  const std::optional<ScanSummary> summary =
      CheckBaseq3(settings, lists, selection, context.prompts, progress, notes);
  PrintNotes(context, notes);
  if (!summary) return kFailed;
  context.err << Printable(Describe(*summary)) << '\n';
  if (options.as_json) {
    PrintJson(lists, context.out);
  } else {
    PrintText(lists, context.out);
  }
  return kDone;
}

}  // namespace

void AddScanCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "scan",
      "List the models, skins and bots of a game's folder and its packages",
      context);
  auto options = std::make_shared<ScanOptions>();
  command
      .add_option("GAMEFOLDER", options->folder,
                  "The game's folder, the one above its baseq3")
      ->required();
  command.add_flag("--json", options->as_json, "Print JSON");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunScan(*options, context); };
  });
}

}  // namespace fragsmith
