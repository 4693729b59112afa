#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "botfiles/header_comment.h"
#include "checks/bot_checks.h"
#include "checks/identity_checks.h"
#include "cli/bot_source.h"
#include "cli/command.h"
#include "cli/terminal.h"
#include "game/game_lookup.h"
#include "game/stand_ins.h"
#include "inplace/described_bots.h"
#include "inplace/game_macro_files.h"
#include "inplace/save_in_place.h"
#include "session/save_again.h"
#include "session/save_bot.h"
#include "support/files.h"

namespace fragsmith {
namespace {

struct MakeOptions {
  std::string document;
  std::string folder;
  SaveOptions save;
  bool game_macros = false;
  std::string game_folder;
};

/// Looks after what others have where the plan writes: other bots and files
/// are a refusal, files made by hand are kept beside. All that is told.
Result<void> SpareOthers(const Bot& bot, const SavePlan& plan,
                         CommandContext& context) {
  const auto refuse = [](std::string what, const std::filesystem::path& file) {
    return Failure({.what = std::move(what),
                    .file = Utf8FromPath(file),
                    .line = 0,
                    .advice = "Choose another folder, or take the file away "
                              "first."});
  };
  if (const std::string bots = BotsThatGo(plan, bot); !bots.empty()) {
    return refuse(
        "The file describes other bots, which would go: " + bots + ".",
        plan.files.at(BotFile::kDescription));
  }
  if (plan.package) {
    const std::size_t others = OtherFilesIn(*plan.package, bot);
    if (others > 0) return refuse(WhatGoes(others), *plan.package);
  }
  for (const std::filesystem::path& path : NeverRead(plan, bot, {}, {})) {
    if (path == plan.package) continue;
    const Result<std::string> bytes = ReadFile(path);
    if (!bytes) return Failure(bytes.error());
    // One that was made here is made again by the same command.
    if (HeaderLineCount(*bytes) > 0) continue;
    const Result<std::filesystem::path> kept = KeepBackup(path, *bytes);
    if (!kept) return Failure(kept.error());
    context.prompts.Show(
        {.title = std::string(kProgramTitle),
         .text = "'" + Utf8FromPath(path) +
                 "' was not made by Fragsmith. It is kept as '" +
                 Utf8FromPath(kept->filename()) + "'.",
         .icon = MessageIcon::kInformation});
  }
  if (const std::string twice = NameDescribedTwice(plan, bot); !twice.empty()) {
    context.prompts.Show({.title = std::string(kProgramTitle),
                          .text = twice,
                          .icon = MessageIcon::kInformation});
  }
  return {};
}

/// Names that come back as others when the files are loaded.
void TellNotReadBack(const Bot& bot, CommandContext& context) {
  for (const Finding& finding : CheckBot(bot, nullptr)) {
    if (finding.id != kNotReadBack) continue;
    context.err << Printable(finding.text) << '\n';
  }
}

ExitStatus RunMake(const MakeOptions& options, CommandContext& context) {
  Result<BotDocument> document = ReadDocument(options.document, context);
  if (!document) return Fail(context, document.error());
  ProgramSettings settings = LoadSettingsFor(context);
  if (CheckAllIn(document->texts, document->bot, context.prompts)) {
    return kFailed;
  }
  const std::filesystem::path folder = PathFromBytes(options.folder);
  std::error_code reason;
  std::filesystem::create_directories(folder, reason);
  if (!IsFolder(folder)) {
    return Fail(context, {.what = "There is no such folder, and it cannot be "
                                  "made.",
                          .file = options.folder,
                          .line = 0,
                          .advice = "Choose another folder."});
  }
  const Author author = AuthorOf(settings);
  SavePlan plan = PlanOf(document->bot, {folder, options.save});
  if (options.game_macros) {
    const std::string& named =
        options.game_folder.empty() ? settings.Q3Baseq3 : options.game_folder;
    if (named.empty() || !IsFolder(PathFromBytes(named))) {
      return Fail(context,
                  {.what = "--game-macros needs the folder of a game.",
                   .file = named,
                   .line = 0,
                   .advice = "Give --game, or set the folder in the options."});
    }
    const IncludeLookup game = GameLookUp(PathFromBytes(named));
    constexpr std::string_view kScript = "fw_weap.c";
    if (game(kScript) == StandInGameFile(kScript)) {
      return Fail(context,
                  {.what = "There is no game in this folder.",
                   .file = named,
                   .line = 0,
                   .advice = "Give the folder above the game's packages, that "
                             "of baseq3 or baseoa."});
    }
    WriteGameMacros(OtherMacrosFor({}, game), document->bot, author, {}, plan);
  }
  if (const Result<void> may = SpareOthers(document->bot, plan, context);
      !may) {
    return Fail(context, may.error());
  }
  TellNotReadBack(document->bot, context);
  const SavedBot saved =
      SaveFiles(document->bot, plan, author, context.prompts);
  for (const std::filesystem::path& path : saved.written) {
    context.out << BytesFromPath(path) << '\n';
  }
  if (saved.counts_package) {
    ++settings.Bots;
    const Result<void> done = SaveSettings(context.folders.program, settings);
    if (!done) return Fail(context, done.error());
  }
  if (!saved.error) return kDone;
  // What went wrong with a package was in its box.
  return saved.counts_package ? kFailed : Fail(context, *saved.error);
}

}  // namespace

void AddMakeCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command =
      AddCommand(app, "make",
                 "Write the file set of a bot from a JSON document and print "
                 "the path of each file",
                 context);
  auto options = std::make_shared<MakeOptions>();
  command
      .add_option("FILE", options->document,
                  "The document, or - for standard input")
      ->required();
  command.add_option("--into", options->folder, "Folder to write to")
      ->type_name("DIR")
      ->required();
  command.add_flag("--layout", options->save.uses_layout,
                   "Write into botfiles/bots and scripts below the folder");
  command.add_flag("--pk3", options->save.makes_package,
                   "Pack the files into bot-NAME.pk3 in the folder, too");
  command.add_flag("--game-macros", options->game_macros,
                   "Write the weights under the game's own macros as well, "
                   "where its weight code does not ask for ours");
  command
      .add_option("--game", options->game_folder,
                  "The game's folder, in place of that of the settings")
      ->type_name("GAMEFOLDER");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunMake(*options, context); };
  });
}

}  // namespace fragsmith
