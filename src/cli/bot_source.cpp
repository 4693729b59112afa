#include "cli/bot_source.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "cli/terminal.h"
#include "session/bot_sources.h"
#include "session/load_from_package.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/temporary_folder.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// The bot that is meant among those of a source, by its place, or how the
/// program ends without one.
struct Choice {
  std::optional<std::size_t> place;
  ExitStatus refusal = kFailed;
};

std::optional<std::size_t> FindName(const std::vector<std::string>& names,
                                    const std::string& wanted) {
  auto found = std::find(names.begin(), names.end(), wanted);
  if (found == names.end()) {
    found = std::find_if(names.begin(), names.end(),
                         [&wanted](const std::string& name) {
                           return EqualIgnoringCase(name, wanted);
                         });
  }
  if (found == names.end()) return std::nullopt;
  return static_cast<std::size_t>(found - names.begin());
}

void PrintNames(const std::vector<std::string>& names,
                CommandContext& context) {
  for (const std::string& name : names) {
    context.err << Printable(Utf8FromGameText(name)) << '\n';
  }
}

Choice Choose(const std::vector<std::string>& names, const BotSource& options,
              CommandContext& context) {
  if (names.empty()) {
    Fail(context, {.what = "There are no bot files.",
                   .file = options.source,
                   .line = 0,
                   .advice = "The files of a bot end in _c.c, _w.c, _i.c and "
                             "_t.c."});
    return {};
  }
  if (options.name.empty()) {
    if (names.size() == 1) return {.place = 0};
    context.err << "There is more than one bot; give the name of one:\n";
    PrintNames(names, context);
    return {.place = {}, .refusal = kWrongUsage};
  }
  const std::optional<std::string> wanted = GameTextFromUtf8(options.name);
  const std::optional<std::size_t> place =
      wanted ? FindName(names, *wanted) : std::nullopt;
  if (!place) {
    context.err << "There is no bot " << Printable(options.name)
                << "; there are:\n";
    PrintNames(names, context);
  }
  return {.place = place};
}

/// What a load knows, with the arguments of the command.
struct Reading {
  const BotSource& options;
  const LoadEnvironment& environment;
  CommandContext& context;
};

BotSourceOutcome Found(SourceBot bot, CommandContext& context) {
  PrintNotes(context, bot.loaded.notes);
  return {.bot = std::move(bot)};
}

BotSourceOutcome ReadFrom(const fs::path& folder, const std::string& name,
                          const Reading& reading) {
  // The layout is recognised by the folder's whole text.
  const fs::path whole = fs::absolute(folder).lexically_normal();
  LoadedBot loaded = LoadBotFromFolder(
      name, whole,
      {reading.options.uses_layout, !reading.options.no_description},
      reading.environment);
  if (loaded.files_read == 0) return {};
  return Found({std::move(loaded), name, whole, {}}, reading.context);
}

BotSourceOutcome ReadFolder(const fs::path& folder, const Reading& reading) {
  const std::vector<std::string> names = BotNamesIn(folder);
  const std::optional<std::string> wanted =
      GameTextFromUtf8(reading.options.name);
  if (wanted && !wanted->empty() && !FindName(names, *wanted)) {
    // A bot may lack its first file; what there is of it is loaded.
    return ReadFrom(folder, *wanted, reading);
  }
  const Choice choice = Choose(names, reading.options, reading.context);
  if (!choice.place) return {.bot = {}, .refusal = choice.refusal};
  return ReadFrom(folder, names[*choice.place], reading);
}

BotSourceOutcome ReadPackage(const fs::path& package, const Reading& reading) {
  CommandContext& context = reading.context;
  Notes notes;
  const Result<BotList> list = BotsInPackage(package, notes);
  if (!list) return {.bot = {}, .refusal = Fail(context, list.error())};
  PrintNotes(context, notes);
  const std::vector<BotListEntry>& bots = list->entries();
  std::vector<std::string> names;
  names.reserve(bots.size());
  for (const BotListEntry& bot : bots) names.push_back(bot.Name);
  const Choice choice = Choose(names, reading.options, context);
  if (!choice.place) return {.bot = {}, .refusal = choice.refusal};

  TemporaryFolder temporary;
  const std::optional<fs::path> own = FindOwnUnzipFolder(FindProgramPlace());
  const UnzipTool tool = {
      .folder = own ? *own : PathFromBytes(LoadSettingsFor(context).WinZipDir),
      .keep_going = {}};
  const BotListEntry& bot = bots[*choice.place];
  const bool loads_description = !reading.options.no_description;
  const fs::path whole = fs::absolute(package);
  std::optional<LoadedBot> loaded =
      LoadBotFromPackage({.package = whole,
                          .name = bot.Name,
                          .withScript = loads_description && bot.HasBotScript,
                          .loads_description = loads_description},
                         Bot(), tool, temporary, reading.environment);
  if (loaded) return Found({std::move(*loaded), bot.Name, {}, whole}, context);
  context.prompts.Show(
      {.title = "Operation cancelled!",
       .text = "Bot " + Utf8FromGameText(bot.Name) + " not loaded.",
       .icon = MessageIcon::kInformation});
  return {};
}

/// Reads one byte more than a document may have, so that a longer one shows.
std::string ReadStream(std::istream& in) {
  std::string bytes;
  constexpr std::size_t kPiece = 65536;
  std::string piece(kPiece, '\0');
  while (in && bytes.size() <= kMostDocumentBytes) {
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

BotSourceOutcome ReadBotSource(const BotSource& options,
                               const ModelCatalogue& models,
                               const BotList& bots, CommandContext& context) {
  const LoadEnvironment environment = {models, bots, context.prompts};
  const Reading reading = {options, environment, context};
  const fs::path source = PathFromBytes(options.source);
  if (IsFolder(source)) return ReadFolder(source, reading);
  const std::string file = BytesFromPath(source.filename());
  if (IsFile(source) && EndsWithIgnoringCase(file, ".pk3")) {
    return ReadPackage(source, reading);
  }
  const std::optional<std::string> name = BotNameOfFile(source);
  if (IsFile(source) && name) {
    return ReadFrom(fs::absolute(source).parent_path(), *name, reading);
  }
  Fail(context,
       {.what = IsFile(source) ? "This is neither a *_c.c file nor a *.pk3 "
                                 "package."
                               : "There is no such file or folder.",
        .file = options.source,
        .line = 0,
        .advice = "Give a folder of bot files, one *_c.c file or a package."});
  return {};
}

BotSourceOutcome ReadBotOrDocument(const BotSource& options,
                                   CommandContext& context) {
  const std::string& source = options.source;
  if (source != "-" && !EndsWithIgnoringCase(source, ".json")) {
    const BaseLists lists = LoadListsFor(context);
    return ReadBotSource(options, lists.models, lists.bots, context);
  }
  Result<BotDocument> document = ReadDocument(source, context.in);
  if (!document) {
    return {.bot = {}, .refusal = Fail(context, document.error())};
  }
  SourceBot bot;
  bot.loaded.bot = std::move(document->bot);
  for (const auto& [field, text] : document->texts) {
    // What the boxes refuse is in the bot all the same: it is to be seen.
    if (!CheckBox(field, text, bot.loaded.bot, context.prompts)) {
      (void)bot.loaded.bot.SetParameter(field, text);
    }
  }
  return {.bot = std::move(bot)};
}

Result<BotDocument> ReadDocument(const std::string& name, std::istream& in) {
  const bool is_stream = name == "-";
  const Result<std::string> bytes =
      is_stream ? Result<std::string>(ReadStream(in))
                : ReadFile(PathFromBytes(name), kMostDocumentBytes);
  if (!bytes) return Failure(bytes.error());
  Result<BotDocument> document = ReadBotDocument(*bytes);
  if (!document) {
    document.error().file = is_stream ? "standard input" : name;
  }
  return document;
}

}  // namespace fragsmith
