#include "cli/bot_source.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "checks/bot_on_disk.h"
#include "cli/bot_choice.h"
#include "cli/misspelt_folder.h"
#include "cli/terminal.h"
#include "game/game_lookup.h"
#include "inplace/game_values.h"
#include "install/program/game_folder.h"
#include "session/bot_sources.h"
#include "session/load_from_package.h"
#include "session/save_bot.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/no_prompts.h"
#include "support/temporary_folder.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

BotLocationOutcome InFolder(const fs::path& folder, const std::string& name,
                            const BotSource& options) {
  // The layout is recognised by the folder's whole text.
  BotLocation found;
  found.name = name;
  found.folder = WholePath(folder);
  found.uses_layout = options.uses_layout ||
                      (options.is_for_game && GivenFiles::IsInGame(folder));
  return {.found = std::move(found)};
}

BotLocationOutcome FindInFolder(fs::path folder, const BotSource& options,
                                CommandContext& context) {
  const fs::path inner = folder / PathFromBytes(kBotFilesFolder);
  std::vector<std::string> names = BotNamesIn(folder);
  BotSource inside = options;
  if (names.empty() && IsFolder(inner)) {
    folder = inner;
    names = BotNamesIn(folder);
    inside.uses_layout = true;
  }
  const BotLocationOutcome here = InFolder(folder, {}, inside);
  const GivenFiles given = FilesOf(*here.found);
  const std::optional<std::string> wanted = GameTextFromUtf8(options.name);
  const auto is_there = [&given](const std::string& name) {
    const BotFileSet files = ReadBot(given, name).files;
    return std::ranges::any_of(kBotFileMembers, [&files](const auto& row) {
      return (files.*row.member).has_value();
    });
  };
  if (wanted && !wanted->empty() && !FindName(names, *wanted, given) &&
      !FindListed(names, *wanted, given) &&
      (!options.is_for_game || is_there(*wanted))) {
    // A bot may lack its first file; what there is of it is loaded.
    const std::optional<ListedBot> listed = FindUnfinished(*wanted, given);
    BotLocationOutcome outcome =
        InFolder(folder, listed ? listed->file_name : *wanted, inside);
    if (listed) outcome.found->listed_name = listed->name;
    return outcome;
  }
  const BotChoice choice = ChooseBot(names, options, given, context);
  if (!choice.index) return {.found = {}, .refusal = choice.refusal};
  BotLocationOutcome outcome = InFolder(folder, names[*choice.index], inside);
  outcome.found->listed_name = choice.listed_name;
  return outcome;
}

BotLocationOutcome FindInPackage(const fs::path& package,
                                 const BotSource& options,
                                 CommandContext& context) {
  Notes notes;
  const Result<BotList> list = BotsInPackage(package, notes);
  if (!list) return {.found = {}, .refusal = Fail(context, list.error())};
  PrintNotes(context, notes);
  std::vector<BotListEntry> bots = list->entries();
  const GivenFiles given =
      GivenFiles::OfPackage(package).value_or(GivenFiles());
  // A description one folder deeper is no bot of its own.
  std::erase_if(bots, [&given](const BotListEntry& bot) {
    return Contains(bot.Name, "/") &&
           given.OpenInAnyCase(std::string(kScriptsFolder) + "/" + bot.Name +
                               std::string(FileSuffix(BotFile::kDescription)));
  });
  if (options.name.empty()) DropDescriptionsOfOthers(given, bots);
  std::vector<std::string> names;
  names.reserve(bots.size());
  for (const BotListEntry& bot : bots) names.push_back(bot.Name);
  const std::optional<std::string> wanted = GameTextFromUtf8(options.name);
  BotLocation found;
  found.package = WholePath(package);
  if (options.is_for_game && wanted && !wanted->empty() &&
      !FindName(names, *wanted, given) && !FindListed(names, *wanted, given)) {
    if (auto listed = FindUnfinished(*wanted, given)) {
      found.name = std::move(listed->file_name);
      found.listed_name = std::move(listed->name);
      return {.found = std::move(found)};
    }
  }
  const BotChoice choice = ChooseBot(names, options, given, context);
  if (!choice.index) return {.found = {}, .refusal = choice.refusal};
  found.name = bots[*choice.index].Name;
  found.has_description = bots[*choice.index].HasBotScript;
  found.listed_name = choice.listed_name;
  return {.found = std::move(found)};
}

/// Reads the bot that was found there; nothing, told, when it cannot be.
std::optional<LoadedBot> Load(const BotLocation& location,
                              const BotSource& options,
                              const LoadEnvironment& environment,
                              CommandContext& context) {
  if (location.package.empty()) {
    LoadedBot loaded = LoadBotFromFolder(
        location.name, location.folder,
        {location.uses_layout, !options.no_description}, environment);
    if (loaded.files.empty()) return std::nullopt;
    return loaded;
  }
  TemporaryFolder temporary;
  UnzipTool tool = {.folder = context.folders.unzip_tool};
  if (tool.folder.empty()) {
    tool.folder = PathFromBytes(LoadSettingsFor(context).WinZipDir);
  }
  const bool loads_description = !options.no_description;
  std::optional<LoadedBot> loaded = LoadBotFromPackage(
      {.package = location.package,
       .name = location.name,
       .withScript = loads_description && location.has_description,
       .loads_description = loads_description},
      Bot(), tool, temporary, environment);
  if (!loaded) {
    context.prompts.Show(
        {.title = "Operation cancelled!",
         .text = "Bot " + Utf8FromGameText(location.name) + " not loaded.",
         .icon = MessageIcon::kInformation});
  }
  return loaded;
}

/// Reads one byte more than a document may have, so that a longer one shows.
std::string ReadStream(std::istream& in) {
  std::string bytes;
  constexpr std::size_t kPiece = 65536;
  std::string piece(kPiece, '\0');
  while (in && bytes.size() <= kMaxDocumentBytes) {
    in.read(piece.data(), static_cast<std::streamsize>(piece.size()));
    bytes.append(piece, 0, static_cast<std::size_t>(in.gcount()));
  }
  return bytes;
}

}  // namespace

void AddBotSource(CLI::App& command, BotSource& options) {
  command
      .add_option("SOURCE", options.source,
                  "A folder of bot files, one *_c.c file, or a package")
      ->required();
  command.add_option("NAME", options.name,
                     "Which bot, where there is more than one");
  command.add_flag("--layout", options.uses_layout,
                   "Look for the description in the scripts folder beside "
                   "botfiles/bots");
  command.add_flag("--no-description", options.no_description,
                   "Leave the description file alone");
}

void AddGameFolder(CLI::App& command, BotSource& options) {
  command
      .add_option("--game", options.game_folder,
                  "The game's folder, in place of that of the settings")
      ->type_name("GAMEFOLDER");
}

fs::path GameFolderOf(const BotSource& options, CommandContext& context) {
  if (!options.game_folder.empty()) return PathFromBytes(options.game_folder);
  NoPrompts silent;
  ProgramSettings settings;
  LoadSettings(context.folders.program, settings, silent);
  return PathFromBytes(settings.Q3Baseq3);
}

IncludeLookup GameLookUpFor(const BotSource& options,
                            const std::optional<BotLocation>& location,
                            CommandContext& context) {
  const fs::path game = GameFolderOf(options, context);
  std::optional<fs::path> players;
  if (location) players = PlayersFolderOf(*location, PackageFolder(game));
  return GameLookUp(game, players.value_or(fs::path()));
}

void AddAsGame(CLI::App& command, bool& as_game) {
  command.add_flag("--as-game", as_game,
                   "Take oddly written values as the game reads them");
}

bool IsOfFiles(const BotSource& options) {
  return options.source != "-" &&
         !EndsWithIgnoringCase(options.source, ".json");
}

BotLocationOutcome FindBot(const BotSource& options, CommandContext& context) {
  const fs::path source = PathFromBytes(options.source);
  if (options.is_for_game && TellMisspeltFolder(options.source, context))
    return {};
  if (IsFolder(source)) return FindInFolder(source, options, context);
  const std::string file = BytesFromPath(source.filename());
  if (IsFile(source) && EndsWithIgnoringCase(file, kPackageEnd)) {
    return FindInPackage(source, options, context);
  }
  const std::optional<std::string> name = BotNameOfFile(source);
  if (IsFile(source) && name) {
    return InFolder(fs::absolute(source).parent_path(), *name, options);
  }
  if (options.is_for_game) {
    // Any of its files leads to the bot.
    const Result<std::vector<BotLocation>> bots = BotsAt(source);
    if (bots && !bots->empty()) {
      return InFolder(bots->front().folder, bots->front().name, options);
    }
  }
  const bool is_zip = EndsWithIgnoringCase(file, ".zip");
  Fail(context,
       {.what = IsFile(source) ? "This is neither a *_c.c file nor a *.pk3 "
                                 "package."
                               : "There is no such file or folder.",
        .file = options.source,
        .line = 0,
        .advice = is_zip ? "If it is a package, make .pk3 of the end of its "
                           "name: the game reads no other."
                         : "Give a folder of bot files, one *_c.c file or a "
                           "package."});
  return {};
}

BotSourceOutcome ReadBotSource(const BotSource& options,
                               const ModelCatalogue& models,
                               const BotList& bots, CommandContext& context) {
  const BotLocationOutcome outcome = FindBot(options, context);
  if (!outcome.found) return {.bot = {}, .refusal = outcome.refusal};
  // What is wrong with the settings is told where they are needed.
  NoPrompts silent;
  ProgramSettings settings;
  LoadSettings(context.folders.program, settings, silent);
  std::optional<LoadedBot> loaded =
      Load(*outcome.found, options,
           {models, bots, context.prompts, AuthorOf(settings)}, context);
  if (!loaded) return {};
  const std::string& listed_name = outcome.found->listed_name;
  // One that differs in case alone is the bot's own.
  if (!listed_name.empty() &&
      !EqualIgnoringCase(listed_name, loaded->bot.Name())) {
    loaded->bot.Put(kNameField, listed_name);
  }
  TakeGameValues(*loaded, !options.no_description, models,
                 GameLookUpFor(options, outcome.found, context),
                 !listed_name.empty());
  PrintNotes(context, loaded->notes);
  if (options.as_game) {
    TakeValuesAsGame(loaded->bot, ReportOf(*loaded, loaded->bot), models);
  }
  return {.bot = SourceBot{std::move(*loaded), outcome.found}};
}

BotSourceOutcome ReadBotOrDocument(const BotSource& options,
                                   CommandContext& context) {
  const std::string& source = options.source;
  if (IsOfFiles(options)) {
    const BaseLists lists = LoadListsFor(context);
    return ReadBotSource(options, lists.models, lists.bots, context);
  }
  Result<BotDocument> document = ReadDocument(source, context);
  if (!document) {
    return {.bot = {}, .refusal = Fail(context, document.error())};
  }
  SourceBot bot;
  bot.loaded.bot = std::move(document->bot);
  for (const auto& [field, text] : document->texts) {
    if (CheckBox(field, text, bot.loaded.bot, context.prompts)) continue;
    // What the boxes refuse is in the bot all the same: it is to be seen. But a
    // version can only be a number.
    const Result<void> stored = bot.loaded.bot.SetParameter(field, text);
    if (!stored) return {.bot = {}, .refusal = Fail(context, stored.error())};
  }
  return {.bot = std::move(bot)};
}

Result<std::string> ReadDocumentBytes(const std::string& name,
                                      CommandContext& context) {
  return name == "-" ? Result<std::string>(ReadStream(context.in))
                     : ReadFile(PathFromBytes(name), kMaxDocumentBytes);
}

Result<BotDocument> ReadDocument(const std::string& name,
                                 CommandContext& context) {
  const bool is_stream = name == "-";
  const Result<std::string> bytes = ReadDocumentBytes(name, context);
  if (!bytes) return Failure(bytes.error());
  Notes notes;
  Result<BotDocument> document =
      ReadBotDocument(*bytes, is_stream ? "standard input" : name, notes);
  PrintNotes(context, notes);
  return document;
}

}  // namespace fragsmith
