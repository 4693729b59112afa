#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "chat/vocabulary.h"
#include "cli/bot_source.h"
#include "cli/command.h"
#include "cli/terminal.h"
#include "inplace/bot_edits.h"
#include "inplace/described_bots.h"
#include "inplace/edit_in_place.h"
#include "inplace/file_reading.h"
#include "session/document_edits.h"
#include "session/save_bot.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

struct EditOptions {
  BotSource source;
  std::vector<std::string> sets;
  std::string document;
  bool is_dry_run = false;
};

constexpr std::string_view kNoDocument = "{}";

/// "PATH=VALUE"; nothing where there is no "=".
std::optional<ValueAtPath> ValueIn(const std::string& text) {
  const std::size_t sign = text.find('=');
  if (sign == std::string::npos || sign == 0) return std::nullopt;
  return ValueAtPath{text.substr(0, sign), text.substr(sign + 1)};
}

/// The bot as it is to be, but for what was refused and told.
struct WishedBot {
  Bot bot;
  bool is_whole = true;
};

/// A document may well be of another bot, and all else in it can be used.
void TakeOutRefused(const std::string& document, EditedBot& edited) {
  std::erase_if(edited.texts, [&](const auto& text) {
    const std::optional<Message> refusal = BoxRefusal(text.first, text.second);
    if (!refusal) return false;
    edited.refused.push_back({.what = QuotedName(text.first) + " cannot be \"" +
                                      ShownText(text.second) + "\". " +
                                      refusal->text,
                              .file = document,
                              .line = 0,
                              .advice = {}});
    return true;
  });
}

/// Nothing, told, where there can be none.
std::optional<WishedBot> EditedBotOf(const EditOptions& options,
                                     const std::vector<ValueAtPath>& values,
                                     const Bot& bot, CommandContext& context) {
  std::string json(kNoDocument);
  if (!options.document.empty()) {
    Result<std::string> bytes = ReadDocumentBytes(options.document, context);
    if (!bytes) {
      Fail(context, bytes.error());
      return std::nullopt;
    }
    json = *std::move(bytes);
  }
  Notes notes;
  Result<EditedBot> edited =
      EditByDocument(bot, json, options.document, values, notes);
  PrintNotes(context, notes);
  if (!edited) {
    Fail(context, edited.error());
    return std::nullopt;
  }
  if (!options.document.empty()) TakeOutRefused(options.document, *edited);
  if (CheckAllIn(edited->texts, edited->bot, context.prompts)) {
    return std::nullopt;
  }
  for (const Error& error : edited->refused) Fail(context, error);
  return WishedBot{std::move(edited->bot), edited->refused.empty()};
}

/// The bot as the edit finds it. A value that is set to what a load shows, but
/// not to what the game has, is a change of the game's.
Bot BotBefore(const LoadedBot& loaded, const std::vector<ValueAtPath>& values,
              const Bot& after) {
  Bot as_game = loaded.bot;
  for (const auto& [id, value] : loaded.plain_values) as_game.Put(id, value);
  Notes untold;
  const Result<EditedBot> edited =
      EditByDocument(as_game, kNoDocument, {}, values, untold);
  Bot before = loaded.bot;
  if (!edited) return before;
  for (const auto& [id, value] : loaded.plain_values) {
    const bool is_set = FactOf(edited->bot.Parameter(id)) != FactOf(value);
    const bool is_shown =
        FactOf(after.Parameter(id)) == FactOf(loaded.bot.Parameter(id));
    if (is_set && is_shown) before.Put(id, value);
  }
  return before;
}

/// A package that is not the bot's own is left as its author made it.
std::optional<Error> FaultOfPackage(const SourceBot& source, const Bot& after) {
  if (!source.location || source.location->package.empty()) {
    return std::nullopt;
  }
  const std::filesystem::path& package = source.location->package;
  const std::string name = Utf8FromPath(package.filename());
  const std::string own = Utf8FromPath(PackageNameOf(source.loaded.bot));
  const std::string later = Utf8FromPath(PackageNameOf(after));
  if (EqualIgnoringCase(name, own) && !EqualIgnoringCase(name, later)) {
    return Error{.what = "Under its new name the bot's own package would be " +
                         later + ".",
                 .file = Utf8FromPath(package),
                 .line = 0,
                 .advice = "Load the bot, and make it anew under that name."};
  }
  if (EqualIgnoringCase(name, own)) return std::nullopt;
  return Error{.what = "The package is not this bot's own, " + own + ".",
               .file = Utf8FromPath(package),
               .line = 0,
               .advice = "Take the bot's files out of it, and edit these."};
}

void TellRefusals(const BotEdits& edits, CommandContext& context) {
  for (const auto& [kind, edit] : edits.files) {
    for (const RefusedChange& refused : edit.refused) {
      Fail(context, refused.error);
    }
    if (edit.outcome != FileEdit::Outcome::kNotEditable) continue;
    Fail(context, edit.reason);
    if (edit.losses.empty()) continue;
    context.err << "A file written anew would lose or change:\n";
    for (const std::string& loss : edit.losses) {
      context.err << "  " << Printable(loss) << '\n';
    }
  }
  for (const std::string& name : edits.homeless) {
    Fail(context, {.what = name + " stands in none of the bot's files.",
                   .file = {},
                   .line = 0,
                   .advice = {}});
  }
}

/// What is to be known where the description that is edited is then one of two
/// with the bot's name.
Notes NotesOnName(const BotEdits& edits, const Bot& before, const Bot& after) {
  Notes notes;
  const auto found = edits.files.find(BotFile::kDescription);
  if (found == edits.files.end() || !found->second.origin.is_on_disk() ||
      EqualIgnoringCase(before.Name(), after.Name())) {
    return notes;
  }
  SavePlan plan;
  plan.files.emplace(BotFile::kDescription, found->second.origin.path);
  plan.contents.emplace(BotFile::kDescription, found->second.bytes);
  std::string twice = NameDescribedTwice(plan, after);
  if (!twice.empty()) notes.Add({found->second.shown, 0, std::move(twice)});
  return notes;
}

ExitStatus RunEdit(const EditOptions& options, CommandContext& context) {
  std::vector<ValueAtPath> values;
  for (const std::string& text : options.sets) {
    std::optional<ValueAtPath> value = ValueIn(text);
    if (!value) {
      context.err << "fragsmith-cli: --set " << Printable(text)
                  << ": PATH=VALUE is wanted.\n";
      return kWrongUsage;
    }
    values.push_back(std::move(*value));
  }
  if (values.empty() && options.document.empty()) {
    context.err << "fragsmith-cli: Give --set or --from: what is to change.\n";
    return kWrongUsage;
  }
  const std::string& game = options.source.game_folder;
  if (!game.empty() && !IsFolder(PathFromBytes(game))) {
    return Fail(context, {.what = "There is no such game folder.",
                          .file = game,
                          .line = 0,
                          .advice = "Check the name."});
  }
  const BaseLists lists = LoadListsFor(context);
  const BotSourceOutcome outcome =
      ReadBotSource(options.source, lists.models, lists.bots, context);
  if (!outcome.bot) return outcome.refusal;
  const LoadedBot& loaded = outcome.bot->loaded;
  std::optional<WishedBot> wished =
      EditedBotOf(options, values, loaded.bot, context);
  if (!wished) return kFailed;
  Bot& after = wished->bot;
  // A document of another bot may well hold what this one's files cannot.
  const bool takes_part = !options.document.empty();
  if (const auto fault = FaultOfPackage(*outcome.bot, after);
      fault && takes_part && !FaultOfPackage(*outcome.bot, loaded.bot)) {
    Fail(context, *fault);
    after.Put(kNameField, loaded.bot.Name());
    wished->is_whole = false;
  }
  const Bot before = BotBefore(loaded, values, after);
  for (const auto& [kind, fault] : loaded.unread) {
    if (ChangesIn(kind, before, after).empty()) continue;
    return Fail(context, fault);
  }
  const IncludeLookup look_up =
      GameLookUpFor(options.source, outcome.bot->location, context);
  const Notes kept =
      KeepLinesElsewhere(loaded.files, loaded.bot, after, look_up);
  BotEdits edits = takes_part
                       ? EditWhatCanBe(loaded.files, before, after, look_up)
                       : EditBotFiles(loaded.files, before, after, look_up);
  TellRefusals(edits, context);
  if (!edits.IsEditable() && !takes_part) return kFailed;
  const ExitStatus status =
      edits.IsWhole() && wished->is_whole ? kDone : kFailed;
  PrintNotes(context, kept);
  if (!edits.HasEdits()) return status;
  if (const auto fault = FaultOfPackage(*outcome.bot, after)) {
    return Fail(context, *fault);
  }
  for (const auto& [kind, edit] : edits.files) {
    if (edit.outcome == FileEdit::Outcome::kEdited) {
      PrintNotes(context, edit.notes);
    }
  }
  PrintNotes(context, NotesOnName(edits, loaded.bot, after));
  if (options.is_dry_run) {
    const Result<void> fits = CheckPackages(edits);
    if (!fits) return Fail(context, fits.error());
    context.out << DiffOf(edits);
    return status;
  }
  const Result<void> written = WriteEdits(edits);
  if (!written) return Fail(context, written.error());
  for (const auto& [kind, edit] : edits.files) {
    if (edit.outcome != FileEdit::Outcome::kEdited) continue;
    context.out << BytesFromPath(edit.origin.path);
    if (!edit.origin.is_on_disk()) {
      context.out << '/' << Printable(Utf8FromGameText(edit.origin.entry));
    }
    context.out << '\n';
  }
  return status;
}

}  // namespace

void AddEditCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "edit",
      "Change values in the files of a bot and leave all else in them as it "
      "is; exit status 0 done, 1 refused, 2 wrong usage",
      context);
  auto options = std::make_shared<EditOptions>();
  AddBotSource(command, options->source);
  AddGameFolder(command, options->source);
  command
      .add_option("--set", options->sets,
                  "A value by its path in the document, such as "
                  "weaponWeights.W_RAILGUN=150; may be given again")
      ->type_name("PATH=VALUE")
      ->allow_extra_args(false);
  command
      .add_option("--from", options->document,
                  "A document, or - for standard input: what differs from it "
                  "is changed; keys that it lacks stay")
      ->type_name("DOCUMENT");
  command.add_flag("--dry-run", options->is_dry_run,
                   "Print what would change as a unified diff, write nothing");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunEdit(*options, context); };
  });
}

}  // namespace fragsmith
