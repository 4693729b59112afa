#include "session/load_bot.h"

#include <optional>
#include <utility>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/header_comment.h"
#include "botfiles/weight_file.h"
#include "chat/chat_file.h"
#include "model/characteristic_catalogue.h"
#include "session/identity_checks.h"
#include "support/code_page.h"
#include "support/files.h"
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

void Take(const ReadReport& report, LoadedBot& loaded) {
  loaded.notes.Append(report.notes);
  for (const auto& [parameter, value] : report.plain_values) {
    loaded.plain_values.insert_or_assign(parameter, value);
  }
}

/// A name that could not be saved again gives way to the files' own.
void EnsureName(const std::string& name, const std::string& shown,
                LoadedBot& loaded) {
  const std::string read = loaded.bot.Name();
  if (!NameRefusal(read)) return;
  (void)loaded.bot.SetParameter(kNameIndex, name);
  const std::string what = read.empty()
                               ? "The file gives the bot no name"
                               : "\"" + ShownText(read) + "\" cannot be a name";
  loaded.notes.Add({shown, 0,
                    what + "; the bot is called " + Utf8FromGameText(name) +
                        " after its file."});
}

/// The bytes of the file of that name in the folder; a file that is missing
/// or cannot be read is told.
struct FoundFile {
  fs::path path;
  std::string bytes;
};

std::optional<FoundFile> Find(BotFile file, const std::string& name,
                              const fs::path& folder, Prompts& prompts) {
  const std::string title = "Error during load";
  const std::optional<fs::path> path =
      FindFile(folder, name + std::string(FileSuffix(file)));
  if (!path) {
    Inform(prompts, title,
           "Unable to find " + std::string(MessageName(file)) + " file for " +
               Utf8FromGameText(name) + ".");
    return std::nullopt;
  }
  Result<std::string> bytes = ReadFile(*path, kMostBotFileBytes);
  if (!bytes) {
    Inform(prompts, title, Describe(bytes.error()));
    return std::nullopt;
  }
  return FoundFile{*path, std::move(*bytes)};
}

bool Load(BotFile file, const std::string& name, const fs::path& folder,
          LoadedBot& loaded, Prompts& prompts) {
  const std::optional<FoundFile> found = Find(file, name, folder, prompts);
  if (!found) return false;
  ReadBotFile(file, LoadScope::kWholeBot, found->bytes, name,
              Utf8FromPath(found->path), loaded);
  return true;
}

/// The scripts folder beside the botfiles/bots that the folder's text holds.
std::optional<fs::path> ScriptsFolderOf(const fs::path& folder) {
  const std::string text = BytesFromPath(folder.generic_u8string());
  const std::size_t place = text.find(kBotFilesFolder);
  if (place == std::string::npos) return std::nullopt;
  return PathFromBytes(text.substr(0, place) + std::string(kScriptsFolder));
}

void LoadDescription(const std::string& name, const fs::path& folder,
                     bool uses_layout, LoadedBot& loaded,
                     const LoadEnvironment& environment) {
  const std::optional<fs::path> place =
      uses_layout ? ScriptsFolderOf(folder) : folder;
  if (!place) {
    Inform(environment.prompts, "Error!",
           "Couldn't load the bot file because the directory structure "
           "doesn't comply with the standard Q3 one...");
  }
  if (!place ||
      !Load(BotFile::kDescription, name, *place, loaded, environment.prompts)) {
    SetStandardIdentity(loaded.bot, StandardNamesOf(environment.bots));
  }
}

}  // namespace

std::string_view FileSuffix(BotFile file) {
  switch (file) {
    case BotFile::kDescription:
      return ".bot";
    case BotFile::kCharacteristics:
      return "_c.c";
    case BotFile::kChat:
      return "_t.c";
    case BotFile::kItemWeights:
      return "_i.c";
    case BotFile::kWeaponWeights:
      return "_w.c";
  }
  return {};
}

void ReadBotFile(BotFile file, LoadScope scope, std::string_view bytes,
                 const std::string& name, const std::string& shown,
                 LoadedBot& loaded) {
  const bool is_whole = scope == LoadScope::kWholeBot;
  Bot& bot = loaded.bot;
  ++loaded.files_read;
  switch (file) {
    case BotFile::kDescription: {
      const DescriptionReport report = ReadDescriptionFile(bytes, shown, bot);
      loaded.has_arena_lord = report.has_arena_lord;
      return Take(report, loaded);
    }
    case BotFile::kCharacteristics:
      // A new bot has a name already; that of the file is wanted.
      if (is_whole) (void)bot.SetParameter(kNameIndex, std::string());
      Take(ReadCharacteristicFile(
               bytes, shown, is_whole ? ReadIdentity::kYes : ReadIdentity::kNo,
               bot),
           loaded);
      if (is_whole) EnsureName(name, shown, loaded);
      if (is_whole && HeaderSaysMore(bytes)) {
        loaded.notes.Add(
            {.file = shown,
             .line = 2,
             .text = "The version and the comment in the head of the file are "
                     "not read back; type them in again before you save."});
      }
      return;
    case BotFile::kChat:
      if (!is_whole) bot.ClearChats();
      return loaded.notes.Append(ReadChatFile(bytes, shown, bot));
    case BotFile::kItemWeights:
      return Take(ReadItemWeightFile(bytes, shown, bot), loaded);
    case BotFile::kWeaponWeights:
      return Take(ReadWeaponWeightFile(bytes, shown, bot), loaded);
  }
}

bool LoadSingleFile(BotFile file, const fs::path& path, LoadedBot& loaded,
                    Prompts& prompts) {
  const std::optional<std::string> text = GameTextFromPath(path.filename());
  const std::string_view suffix = FileSuffix(file);
  if (!text || !text->ends_with(suffix)) return false;
  const std::string name = text->substr(0, text->size() - suffix.size());
  const std::optional<FoundFile> found =
      Find(file, name, path.parent_path(), prompts);
  if (!found) return false;
  ReadBotFile(file, LoadScope::kOneFile, found->bytes, name,
              Utf8FromPath(found->path), loaded);
  return true;
}

LoadedBot LoadBotFromFolder(const std::string& name, const fs::path& folder,
                            FolderLoadOptions options,
                            const LoadEnvironment& environment) {
  LoadedBot loaded;
  for (const BotFile file : {BotFile::kCharacteristics, BotFile::kItemWeights,
                             BotFile::kWeaponWeights, BotFile::kChat}) {
    Load(file, name, folder, loaded, environment.prompts);
  }
  if (options.loads_description) {
    LoadDescription(name, folder, options.uses_layout, loaded, environment);
  }
  UseCatalogueSpelling(loaded.bot, environment.models);
  return loaded;
}

void UseCatalogueSpelling(Bot& bot, const ModelCatalogue& models) {
  const std::optional<std::size_t> model =
      models.FindModel(bot.Text(kModelField));
  if (!model) return;
  const ModelEntry& entry = models.models()[*model];
  (void)bot.SetParameter(kModelField, entry.Name);
  const std::optional<std::size_t> skin =
      models.FindSkin(*model, bot.Text(kSkinField));
  if (skin) (void)bot.SetParameter(kSkinField, entry.Skins[*skin].Name);
}

void TakeValuesAsGame(LoadedBot& loaded, const ModelCatalogue& models) {
  for (const auto& [parameter, value] : loaded.plain_values) {
    const bool is_name = parameter == kNameIndex;
    if (is_name && NameRefusal(ToText(value))) continue;
    (void)loaded.bot.SetParameter(parameter, value);
  }
  loaded.plain_values.clear();
  UseCatalogueSpelling(loaded.bot, models);
}

StandardBotNames StandardNamesOf(const BotList& bots) {
  StandardBotNames names;
  for (const BotListEntry& entry : bots.entries()) {
    if (entry.IsStandard) names.insert(entry.Name);
  }
  return names;
}

}  // namespace fragsmith
