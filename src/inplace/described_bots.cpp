#include "inplace/described_bots.h"

#include <algorithm>
#include <cstddef>
#include <system_error>
#include <vector>

#include "botfiles/description_blocks.h"
#include "botfiles/description_file.h"
#include "botfiles/game_text.h"
#include "botfiles/left_out.h"
#include "game/description_reader.h"
#include "inplace/named_files.h"
#include "inplace/origin_files.h"
#include "install/packages/package.h"
#include "model/characteristic_catalogue.h"
#include "model/file_names.h"
#include "session/listed_description.h"
#include "session/save_again.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// The description of another name that has the bot, where its own would lie;
/// the one that has it under this name where one is given.
std::optional<OriginFile> ListBeside(const OriginFile& character,
                                     const std::string& called,
                                     const std::string& name) {
  if (character.is_on_disk()) {
    const std::optional<fs::path> path =
        FindListedBeside(character.path, called, name);
    return path ? std::optional(OriginFile{.path = *path}) : std::nullopt;
  }
  Notes ignored;
  std::vector<std::string> entries = ListPackageEntries(character.path, ignored)
                                         .value_or(std::vector<std::string>());
  const std::string folder = std::string(kScriptsFolder) + '/';
  const std::string_view suffix = FileSuffix(BotFile::kDescription);
  const std::string own = folder + called + std::string(suffix);
  std::erase_if(entries, [&](const std::string& entry) {
    return !ToLower(entry).starts_with(folder) ||
           !EndsWithIgnoringCase(entry, suffix) ||
           EqualIgnoringCase(entry, own);
  });
  // The game reads the list first.
  entries.emplace(entries.begin(), kBotListPath);
  for (const std::string& entry : entries) {
    OriginFile file = {.path = character.path, .entry = entry};
    const Result<std::string> bytes = BytesAt(file);
    if (bytes && IsDescribed(*bytes, called, name)) return file;
  }
  return std::nullopt;
}

/// Takes back what was read of another bot of the same files.
void ForgetDescription(LoadedBot& loaded) {
  const std::string shown = ShownAt(loaded.files.at(BotFile::kDescription));
  loaded.notes.Remove(shown);
  const Bot fresh;
  for (const ParameterId id : {kFunNameField, kRailColorField, kModelField,
                               kSkinField, kArenaLordField}) {
    loaded.plain_values.erase(id);
    // That of a standard bot stands in no file.
    if (id == kArenaLordField && !loaded.has_arena_lord) continue;
    loaded.bot.Put(id, fresh.Parameter(id));
  }
}

}  // namespace

bool IsList(const OriginFile& file, std::string_view called) {
  const std::string name = NameAt(file);
  const std::string_view suffix = FileSuffix(BotFile::kDescription);
  return EqualIgnoringCase(name, kBotList) ||
         (EndsWithIgnoringCase(name, suffix) &&
          !EqualIgnoringCase(name, std::string(called) + std::string(suffix)));
}

bool IsListOf(const OriginFile& file, const BotHome& home) {
  const std::string called = CalledBy(home.files);
  if (!IsList(file, called)) return false;
  const Result<std::string> bytes = BytesAt(file);
  if (!bytes) return !file.is_on_disk() || IsFile(file.path);
  return IsDescribed(*bytes, called);
}

std::optional<fs::path> ListWithoutBot(const SavePlan& plan,
                                       const BotHome& home) {
  const auto known = home.files.find(BotFile::kDescription);
  const auto target = plan.files.find(BotFile::kDescription);
  if (known == home.files.end() || !known->second.is_on_disk() ||
      !IsList(known->second, CalledBy(home.files)) ||
      target == plan.files.end() || IsFile(target->second) ||
      HasNewName(plan, home) || IsListOf(known->second, home)) {
    return std::nullopt;
  }
  return known->second.path;
}

std::string BotsThatGo(const SavePlan& plan, const Bot& bot) {
  const auto target = plan.files.find(BotFile::kDescription);
  if (target == plan.files.end()) return {};
  const Result<std::string> old = ReadFile(target->second, kMaxBotFileBytes);
  if (!old) return {};
  std::vector<DescriptionBlock> kept;
  if (const auto content = plan.contents.find(BotFile::kDescription);
      content != plan.contents.end()) {
    kept = ReadDescriptionBlocks(content->second).blocks;
  }
  const std::string character = InBots(bot.Text(kCharacteristicFileField));
  NameList names;
  for (const DescriptionBlock& block : ReadDescriptionBlocks(*old).blocks) {
    const std::string name = block.Text("name");
    const bool is_own = name.empty() || EqualIgnoringCase(name, bot.Name()) ||
                        EqualIgnoringCase(block.Text("aifile"), character);
    const bool is_kept =
        is_own || std::ranges::any_of(kept, [&](const DescriptionBlock& one) {
          return EqualIgnoringCase(one.Text("name"), name);
        });
    if (!is_kept) names.Add("\"" + ShownText(name) + "\"");
  }
  return names.empty() ? std::string() : names.Text();
}

void TakeListedIdentity(LoadedBot& loaded, const ModelCatalogue& models) {
  const auto character = loaded.files.find(BotFile::kCharacteristics);
  if (character == loaded.files.end()) return;
  const std::string called = CalledBy(loaded.files);
  const std::string name = loaded.bot.Name();
  std::optional<OriginFile> list;
  const auto own = loaded.files.find(BotFile::kDescription);
  const bool has_own = own != loaded.files.end();
  const bool is_own =
      has_own &&
      IsDescribed(BytesAt(own->second).value_or(std::string()), called, name);
  if (is_own) list = own->second;
  if (!list) list = ListBeside(character->second, called, name);
  if (!list && !has_own) list = ListBeside(character->second, called, {});
  if (!list) return;
  const Result<std::string> bytes = BytesAt(*list);
  if (!bytes) return;
  if (has_own) ForgetDescription(loaded);
  list->fingerprint = FingerprintOf(*bytes);
  if (is_own) {
    own->second.fingerprint = list->fingerprint;
    ReadBotFile(BotFile::kDescription, WholeBot{}, *bytes, called,
                ShownAt(*list), loaded);
    UseCatalogueSpelling(loaded.bot, models);
    return;
  }
  const DescriptionReport report =
      ReadDescriptionFile(*bytes, ShownAt(*list), loaded.bot, called);
  for (const auto& [id, value] : report.plain_values) {
    loaded.plain_values.insert_or_assign(id, value);
  }
  // What is said of the whole file is said for a save, which leaves the list.
  for (const Note& note : report.notes.list()) {
    if (note.kind == NoteKind::kOddValue) loaded.notes.Add(note);
  }
  loaded.has_arena_lord = report.has_arena_lord;
  UseCatalogueSpelling(loaded.bot, models);
  loaded.notes.Add({ShownAt(*list), 0,
                    Localized("The bot has no description of its own; its "
                              "model, fun name and the rest are those of this "
                              "file.")});
  loaded.files.insert_or_assign(BotFile::kDescription, *std::move(list));
}

namespace {

/// How many bots of the name a description has, as the game reads it.
std::ptrdiff_t CountOfName(const std::string& file, const std::string& bytes,
                           const std::string& name) {
  Complaints untold;
  const std::vector<DescriptionSet> sets =
      ReadGameDescription({file, file, bytes}, untold);
  return std::ranges::count_if(sets, [&name](const DescriptionSet& set) {
    return EqualIgnoringCase(set.Text("name"), name);
  });
}

}  // namespace

std::string NameDescribedTwice(const SavePlan& plan, const Bot& bot) {
  const auto target = plan.files.find(BotFile::kDescription);
  if (target == plan.files.end()) return {};
  const std::string own = Utf8FromPath(target->second.filename());
  if (const auto content = plan.contents.find(BotFile::kDescription);
      content != plan.contents.end() &&
      CountOfName({}, content->second, bot.Name()) > 1) {
    return Localized(
        "'%1' then describes two bots \"%2\": the game takes the "
        "first and passes over the other.",
        {own, ShownText(bot.Name())});
  }
  fs::path other;
  bool is_list = false;
  std::error_code ignored;
  for (fs::directory_iterator entry(target->second.parent_path(), ignored), end;
       !ignored && !is_list && entry != end; entry.increment(ignored)) {
    const fs::path& path = entry->path();
    const std::string name = BytesFromPath(path.filename());
    const bool is_read =
        EqualIgnoringCase(name, kBotList) ||
        EndsWithIgnoringCase(name, FileSuffix(BotFile::kDescription));
    if (!is_read || path == target->second) continue;
    const Result<std::string> bytes = ReadFile(path, kMaxBotFileBytes);
    if (!bytes || CountOfName(name, *bytes, bot.Name()) == 0) continue;
    other = path;
    is_list = EqualIgnoringCase(name, kBotList);
  }
  if (other.empty()) return {};
  return Localized("'%1' describes a bot \"%2\" too.",
                   {Utf8FromPath(other), ShownText(bot.Name())}) +
         " " +
         Localized(is_list
                       ? Localizable("The game takes that one, as it reads the "
                                     "list first, and never the one of '%1'.")
                       : Localizable("Of that one and the one of '%1' the game "
                                     "takes the one that it reads first, which "
                                     "may be either."),
                   {own});
}

}  // namespace fragsmith
