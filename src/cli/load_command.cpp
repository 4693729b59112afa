#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/command.h"
#include "install/base_scan.h"
#include "install/package.h"
#include "session/bot_document.h"
#include "session/load_bot.h"
#include "session/load_from_package.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/temporary_folder.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

struct LoadOptions {
  std::string source;
  std::string name;
  bool uses_layout = false;
  bool no_description = false;
  bool as_game = false;
};

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
    context.err << Utf8FromGameText(name) << '\n';
  }
}

Choice Choose(const std::vector<std::string>& names, const LoadOptions& options,
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
    context.err << "There is no bot " << options.name << "; there are:\n";
    PrintNames(names, context);
  }
  return {.place = place};
}

ExitStatus Print(LoadedBot loaded, const LoadOptions& options,
                 const ModelCatalogue& models, CommandContext& context) {
  PrintNotes(context, loaded.notes);
  if (options.as_game) TakeValuesAsGame(loaded, models);
  context.out << WriteBotDocument(loaded.bot);
  return kDone;
}

ExitStatus LoadFrom(const fs::path& folder, const std::string& name,
                    const LoadOptions& options, CommandContext& context) {
  const BaseLists lists = LoadListsFor(context);
  // The layout is recognised by the folder's whole text.
  const fs::path whole = fs::absolute(folder).lexically_normal();
  LoadedBot loaded = LoadBotFromFolder(
      name, whole, {options.uses_layout, !options.no_description},
      {lists.models, lists.bots, context.prompts});
  if (loaded.files_read == 0) return kFailed;
  return Print(std::move(loaded), options, lists.models, context);
}

std::vector<std::string> BotNamesIn(const fs::path& folder) {
  const std::string_view suffix = FileSuffix(BotFile::kCharacteristics);
  std::vector<std::string> names;
  for (const fs::path& file : ListFiles(folder, suffix)) {
    std::optional<std::string> text = GameTextFromPath(file);
    if (!text) continue;
    text->resize(text->size() - suffix.size());
    names.push_back(std::move(*text));
  }
  return names;
}

ExitStatus LoadFolder(const fs::path& folder, const LoadOptions& options,
                      CommandContext& context) {
  const std::vector<std::string> names = BotNamesIn(folder);
  const std::optional<std::string> wanted = GameTextFromUtf8(options.name);
  if (wanted && !wanted->empty() && !FindName(names, *wanted)) {
    // A bot may lack its first file; what there is of it is loaded.
    return LoadFrom(folder, *wanted, options, context);
  }
  const Choice choice = Choose(names, options, context);
  if (!choice.place) return choice.refusal;
  return LoadFrom(folder, names[*choice.place], options, context);
}

/// For work whose boxes are no concern of the user's.
class NoPrompts : public Prompts {
 public:
  void Show(const Message& /*message*/) override {}
  bool Confirm(const std::string& /*title*/,
               const std::string& /*text*/) override {
    return false;
  }
  std::optional<std::string> AskText(const std::string& /*title*/,
                                     const std::string& /*prompt*/) override {
    return std::nullopt;
  }
};

BotList BotsInListing(const std::string& listing, const std::string& package) {
  BaseLists lists;
  NoPrompts prompts;
  Notes notes;
  ParsePackageListing(listing, package, lists, prompts, notes);
  lists.bots.SortBotList();
  return std::move(lists.bots);
}

ExitStatus LoadPackage(const fs::path& package, const LoadOptions& options,
                       CommandContext& context) {
  Notes notes;
  const Result<std::string> listing = ListPackage(package, notes);
  if (!listing) return Fail(context, listing.error());
  PrintNotes(context, notes);
  const std::string package_name =
      GameTextFromPath(package.filename()).value_or(std::string());
  const std::vector<BotListEntry> bots =
      BotsInListing(*listing, package_name).entries();
  std::vector<std::string> names;
  names.reserve(bots.size());
  for (const BotListEntry& bot : bots) names.push_back(bot.Name);
  const Choice choice = Choose(names, options, context);
  if (!choice.place) return choice.refusal;

  const BaseLists lists = LoadListsFor(context);
  TemporaryFolder temporary;
  const std::optional<fs::path> own = FindOwnUnzipFolder(FindProgramPlace());
  const UnzipTool tool = {
      .folder = own ? *own : PathFromBytes(LoadSettingsFor(context).WinZipDir),
      .keep_going = {}};
  const BotListEntry& bot = bots[*choice.place];
  const bool loads_description = !options.no_description;
  std::optional<LoadedBot> loaded = LoadBotFromPackage(
      {.package = fs::absolute(package),
       .name = bot.Name,
       .withScript = loads_description && bot.HasBotScript,
       .loads_description = loads_description},
      Bot(), tool, temporary, {lists.models, lists.bots, context.prompts});
  if (loaded) return Print(std::move(*loaded), options, lists.models, context);
  context.prompts.Show(
      {.title = "Operation cancelled!",
       .text = "Bot " + Utf8FromGameText(bot.Name) + " not loaded.",
       .icon = MessageIcon::kInformation});
  return kFailed;
}

ExitStatus RunLoad(const LoadOptions& options, CommandContext& context) {
  const fs::path source = PathFromBytes(options.source);
  if (IsFolder(source)) return LoadFolder(source, options, context);
  const std::string file = BytesFromPath(source.filename());
  const std::string_view suffix = FileSuffix(BotFile::kCharacteristics);
  if (IsFile(source) && EndsWithIgnoringCase(file, ".pk3")) {
    return LoadPackage(source, options, context);
  }
  const std::optional<std::string> text = GameTextFromPath(source.filename());
  if (IsFile(source) && text && EndsWithIgnoringCase(*text, suffix)) {
    return LoadFrom(fs::absolute(source).parent_path(),
                    text->substr(0, text->size() - suffix.size()), options,
                    context);
  }
  return Fail(context,
              {.what = IsFile(source) ? "This is neither a *_c.c file nor a "
                                        "*.pk3 package."
                                      : "There is no such file or folder.",
               .file = options.source,
               .line = 0,
               .advice = "Give a folder of bot files, one *_c.c file or a "
                         "package."});
}

}  // namespace

void AddLoadCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "load",
      "Print a bot as a JSON document; what was odd in its files goes to "
      "standard error",
      context);
  auto options = std::make_shared<LoadOptions>();
  command
      .add_option("SOURCE", options->source,
                  "A folder of bot files, one *_c.c file, or a package")
      ->required();
  command.add_option("NAME", options->name,
                     "Which bot, where there is more than one");
  command.add_flag("--layout", options->uses_layout,
                   "Look for the description in the scripts folder beside "
                   "botfiles/bots");
  command.add_flag("--no-description", options->no_description,
                   "Leave the description file alone");
  command.add_flag("--as-game", options->as_game,
                   "Take oddly written values as the game reads them");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunLoad(*options, context); };
  });
}

}  // namespace fragsmith
