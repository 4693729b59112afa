#include "session/load_bot.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/game_text.h"
#include "botfiles/weight_file.h"
#include "chat/chat_file.h"
#include "model/characteristic_catalogue.h"
#include "session/identity_rules.h"
#include "session/listed_description.h"
#include "session/load_losses.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// How messages call the files.
std::string_view MessageName(BotFile file) {
  switch (file) {
    case BotFile::kDescription:
      return "bot";
    case BotFile::kCharacteristics:
      return "characteristics";
    case BotFile::kChat:
      return "chat";
    case BotFile::kItemWeights:
      return "item weight";
    case BotFile::kWeaponWeights:
      return "weapon weight";
  }
  return {};
}

void Inform(Prompts& prompts, std::string title, std::string text) {
  prompts.Show({std::move(title), std::move(text), MessageIcon::kInformation});
}

void Take(const ReadReport& report, const std::string& shown,
          LoadedBot& loaded) {
  loaded.notes.Append(report.notes);
  NoteMissingIncludes(report, shown, loaded.notes);
  for (const auto& [parameter, value] : report.plain_values) {
    loaded.plain_values.insert_or_assign(parameter, value);
  }
}

/// A name that could not be saved again gives way to the files' own.
void EnsureName(const std::string& name, const std::string& shown,
                LoadedBot& loaded) {
  const std::string read = loaded.bot.Name();
  if (!NameRefusal(read)) return;
  loaded.bot.Put(kNameField, name);
  const std::string called = Utf8FromGameText(name);
  loaded.notes.Add(
      {shown, 0,
       read.empty()
           ? Localized("The file gives the bot no name; the bot is called %1 "
                       "after its file.",
                       {called})
           : Localized("\"%1\" cannot be a name; the bot is called %2 after "
                       "its file.",
                       {ShownText(read), called})});
}

void ReadCharacteristics(const LoadedPart& part, std::string_view bytes,
                         const std::string& name, const std::string& shown,
                         LoadedBot& loaded) {
  Bot& bot = loaded.bot;
  const bool is_whole = std::holds_alternative<WholeBot>(part);
  // A new bot has a name already; that of the file is wanted. An empty one is
  // never refused.
  if (is_whole) (void)bot.SetParameter(kNameField, std::string());
  const ReadReport report = ReadCharacteristicFile(
      bytes, shown, is_whole ? ReadIdentity::kYes : ReadIdentity::kNo, bot);
  Take(report, shown, loaded);
  NoteMissingLevels(report, shown, loaded.notes);
  if (!is_whole) return;
  EnsureName(name, shown, loaded);
  NoteOtherNames(report, bot, shown, loaded.notes);
  loaded.author_line = {shown, 3, AuthorLine(bytes)};
  if (HeaderSaysMore(bytes)) {
    loaded.notes.Add(
        {.file = shown,
         .line = 2,
         .text = Localized(
             "The version and the comment in the head of the file are not read "
             "back; type them in again before you save.")});
  }
}

/// The bytes of the file of that name in the folder; a file that is missing
/// or cannot be read is told.
struct FoundFile {
  fs::path path;
  std::string bytes;
};

std::optional<FoundFile> Find(BotFile file, const std::string& name,
                              const fs::path& folder, LoadedBot& loaded,
                              Prompts& prompts) {
  const std::string title = "Error during load";
  const std::optional<fs::path> path =
      FindFile(folder, name + std::string(FileSuffix(file)));
  if (!path) {
    Inform(prompts, title,
           "Unable to find " + std::string(MessageName(file)) + " file for " +
               Utf8FromGameText(name) + ".");
    return std::nullopt;
  }
  Result<std::string> bytes = ReadFile(*path, kMaxBotFileBytes);
  if (!bytes) {
    Inform(prompts, title, Describe(bytes.error()));
    loaded.unread.emplace(file, bytes.error());
    return std::nullopt;
  }
  return FoundFile{*path, std::move(*bytes)};
}

/// The same of a file that has that very name, as most have: it is there once
/// it can be read.
std::optional<FoundFile> FindExact(BotFile file, const std::string& name,
                                   const fs::path& folder) {
  const std::string file_name = name + std::string(FileSuffix(file));
  if (!kCaseCounts || !IsFileName(file_name)) return std::nullopt;
  fs::path path = folder / PathFromGameText(file_name);
  Result<std::string> bytes = ReadFile(path, kMaxBotFileBytes);
  if (!bytes) return std::nullopt;
  return FoundFile{std::move(path), std::move(*bytes)};
}

/// Another description may have the bot, and then none is missing.
bool IsListed(const std::string& name, const fs::path& folder) {
  return !FindFile(folder,
                   name + std::string(FileSuffix(BotFile::kDescription))) &&
         FindListed(folder, name);
}

using FoundFiles = std::vector<std::pair<BotFile, FoundFile>>;

void Remember(const FoundFiles& files, LoadedBot& loaded) {
  std::vector<std::string_view> bytes;
  bytes.reserve(files.size());
  for (const auto& [file, found] : files) bytes.push_back(found.bytes);
  const std::vector<std::uint64_t> fingerprints = FingerprintsOf(bytes);
  for (std::size_t at = 0; at < files.size(); ++at) {
    const auto& [file, found] = files[at];
    loaded.files.insert_or_assign(
        file, OriginFile{.path = found.path, .fingerprint = fingerprints[at]});
  }
}

bool Load(BotFile file, const std::string& name, const fs::path& folder,
          LoadedBot& loaded, FoundFiles& files, Prompts& prompts) {
  std::optional<FoundFile> found = FindExact(file, name, folder);
  if (!found && file == BotFile::kDescription && IsListed(name, folder)) {
    return false;
  }
  if (!found) found = Find(file, name, folder, loaded, prompts);
  if (!found) return false;
  ReadBotFile(file, WholeBot{}, found->bytes, name, Utf8FromPath(found->path),
              loaded);
  files.emplace_back(file, std::move(*found));
  return true;
}

void LoadDescription(const std::string& name, const fs::path& folder,
                     bool uses_layout, LoadedBot& loaded, FoundFiles& files,
                     const LoadEnvironment& environment) {
  std::optional<fs::path> description_folder = folder;
  if (uses_layout) {
    description_folder = LayoutRootOf(folder);
    if (description_folder) *description_folder /= kScriptsFolder;
  }
  if (!description_folder) {
    Inform(environment.prompts, "Error!",
           "Couldn't load the bot file because the directory structure "
           "doesn't comply with the standard Q3 one...");
  }
  if (!description_folder ||
      !Load(BotFile::kDescription, name, *description_folder, loaded, files,
            environment.prompts)) {
    SetStandardIdentity(loaded.bot, StandardNamesOf(environment.bots));
  }
}

}  // namespace

void ReadBotFile(BotFile file, const LoadedPart& part, std::string_view bytes,
                 const std::string& name, const std::string& shown,
                 LoadedBot& loaded) {
  const bool is_whole = std::holds_alternative<WholeBot>(part);
  Bot& bot = loaded.bot;
  if (WithoutByteOrderMark(bytes).size() < bytes.size()) {
    loaded.notes.Add(
        {.file = shown,
         .line = 1,
         .text = Localized("The file begins with a byte order mark. "
                           "The game passes over it on PCs; a file "
                           "made anew has none.")});
  }
  if (HasOldLineEnds(bytes)) {
    loaded.notes.Add(
        {.file = shown,
         .line = 1,
         .text = Localized(
             "The lines end as on old Macintosh computers: for the game the "
             "file is all one line. A file made anew has the usual ends.")});
  }
  switch (file) {
    case BotFile::kDescription: {
      const DescriptionReport report =
          ReadDescriptionFile(bytes, shown, bot, name);
      loaded.has_arena_lord = report.has_arena_lord;
      Take(report, shown, loaded);
      if (is_whole) NoteOtherNames(report, bot, shown, loaded.notes);
      return;
    }
    case BotFile::kCharacteristics:
      return ReadCharacteristics(part, bytes, name, shown, loaded);
    case BotFile::kChat: {
      if (!is_whole) bot.ClearChats();
      const ReadReport report = ReadChatFile(bytes, shown, bot);
      Take(report, shown, loaded);
      NoteMissingTypes(report, shown, loaded.notes);
      if (is_whole) NoteOtherNames(report, bot, shown, loaded.notes);
      return;
    }
    case BotFile::kItemWeights: {
      const ReadReport report = ReadItemWeightFile(bytes, shown, bot);
      Take(report, shown, loaded);
      return NoteMissingWeights(report, kItemWeightRange, shown, loaded.notes);
    }
    case BotFile::kWeaponWeights: {
      const ReadReport report = ReadWeaponWeightFile(bytes, shown, bot);
      Take(report, shown, loaded);
      return NoteMissingWeights(report, kWeaponWeightRange, shown,
                                loaded.notes);
    }
  }
}

std::string_view FaultOfName(BotFile file, const fs::path& path) {
  const std::optional<std::string> name = GameTextFromPath(path.filename());
  if (!name) {
    return Localizable("its name has characters that the game does not have");
  }
  return name->ends_with(FileSuffix(file))
             ? std::string_view()
             : Localizable("its name does not end as it should");
}

bool LoadSingleFile(BotFile file, const fs::path& path, LoadedBot& loaded,
                    Prompts& prompts) {
  if (!FaultOfName(file, path).empty()) return false;
  std::string name = *GameTextFromPath(path.filename());
  name.resize(name.size() - FileSuffix(file).size());
  std::optional<FoundFile> found =
      Find(file, name, path.parent_path(), loaded, prompts);
  if (!found) return false;
  ReadBotFile(file, file, found->bytes, name, Utf8FromPath(found->path),
              loaded);
  Remember({{file, std::move(*found)}}, loaded);
  return true;
}

LoadedBot LoadBotFromFolder(const std::string& name, const fs::path& folder,
                            FolderLoadOptions options,
                            const LoadEnvironment& environment) {
  LoadedBot loaded;
  loaded.options = options;
  FoundFiles files;
  for (const BotFile file : {BotFile::kCharacteristics, BotFile::kItemWeights,
                             BotFile::kWeaponWeights, BotFile::kChat}) {
    Load(file, name, folder, loaded, files, environment.prompts);
  }
  if (options.loads_description) {
    LoadDescription(name, folder, options.uses_layout, loaded, files,
                    environment);
  }
  Remember(files, loaded);
  UseCatalogueSpelling(loaded.bot, environment.models);
  NoteOtherAuthor(environment.author, loaded);
  return loaded;
}

void NoteOtherAuthor(const Author& author, LoadedBot& loaded) {
  Note note = loaded.author_line;
  if (note.text.empty() || note.text == AuthorLine(author)) return;
  note.text = Localized(
      "The files name their author (%1); a save names what stands in "
      "the options instead.",
      {ShownText(TrimBlanksAndTabs(note.text))});
  loaded.notes.Add(std::move(note));
}

void UseCatalogueSpelling(Bot& bot, const ModelCatalogue& models) {
  const std::optional<std::size_t> model =
      models.FindModel(bot.Text(kModelField));
  if (!model) return;
  const ModelEntry& entry = models.models()[*model];
  bot.Put(kModelField, entry.Name);
  const std::optional<std::size_t> skin =
      models.FindSkin(*model, bot.Text(kSkinField));
  if (skin) bot.Put(kSkinField, entry.Skins[*skin].Name);
}

LoadReport ReportOf(const LoadedBot& loaded, const Bot& shown) {
  LoadReport report = {.notes = loaded.notes, .odd_values = {}};
  for (const auto& [parameter, value] : loaded.plain_values) {
    const bool is_name = parameter == kNameField;
    if (is_name && NameRefusal(ToText(value))) continue;
    report.odd_values.insert_or_assign(
        parameter,
        OddValue{.read = shown.Parameter(parameter), .plain = value});
  }
  return report;
}

void TakeValuesAsGame(Bot& bot, const LoadReport& report,
                      const ModelCatalogue& models) {
  for (const auto& [parameter, value] : report.odd_values) {
    if (!StandsAsRead(bot, parameter, value)) continue;
    // A draft may hold anything; what the bot refuses stays as it was read.
    (void)bot.SetParameter(parameter, value.plain);
  }
  UseCatalogueSpelling(bot, models);
}

StandardBotNames StandardNamesOf(const BotList& bots) {
  StandardBotNames names;
  for (const BotListEntry& entry : bots.entries()) {
    if (entry.IsStandard) names.insert(entry.Name);
  }
  return names;
}

}  // namespace fragsmith
