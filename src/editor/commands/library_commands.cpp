#include "editor/commands/library_commands.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>

#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/shown_path.h"
#include "game/given_files.h"
#include "install/program/game_folder.h"
#include "model/file_names.h"
#include "session/bot_file.h"
#include "session/bot_sources.h"
#include "session/save_again.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// What the description of the bot beside its other files says.
std::optional<KnownBot> DescriptionBeside(const fs::path& beside,
                                          const std::string& name) {
  for (const fs::path& folder :
       {beside, beside.parent_path().parent_path() / "scripts"}) {
    const std::optional<fs::path> path =
        FindFile(folder, name + std::string(kDescriptionEnd));
    if (!path) continue;
    const Result<std::string> bytes = ReadFile(*path, kMaxBotFileBytes);
    if (!bytes) continue;
    const auto bots = BotsInDescriptions(*bytes);
    if (!bots.empty()) return bots.begin()->second;
  }
  return std::nullopt;
}

}  // namespace

LibraryCommands::LibraryCommands(BotCommands& commands, CurrentBot& current,
                                 ProgramState& state, FaceStore& faces,
                                 QWidget& window)
    : QObject(&window),
      commands_(commands),
      current_(current),
      state_(state),
      faces_(faces),
      window_(window) {}

void LibraryCommands::Describe(const KnownBot& known, LibraryBot& bot) const {
  if (!known.fun_name.empty()) bot.fun_name = ToQString(known.fun_name);
  if (known.model.empty()) return;
  const std::size_t slash = known.model.find('/');
  const std::string skin = slash == std::string::npos
                               ? std::string("default")
                               : known.model.substr(slash + 1);
  bot.model = ToQString(known.model);
  const ModelCatalogue& models = state_.lists.models;
  const auto model_index = models.FindModel(known.model.substr(0, slash));
  if (!model_index) return;
  const ModelEntry& model = models.models()[*model_index];
  const auto skin_index = models.FindSkin(*model_index, skin);
  if (!skin_index) return;
  bot.skin = &model.Skins[*skin_index];
  bot.model = ToQString(model.Name + "/" + bot.skin->Name);
}

void LibraryCommands::AddBotsOfList(const GameData& game,
                                    std::vector<Entry>& entries) const {
  const std::vector<BotListEntry>& bots = state_.lists.bots.entries();
  for (std::size_t index = 0; index < bots.size(); ++index) {
    const BotListEntry& bot = bots[index];
    // The list has the standard bots whether they are there or not.
    if (!game.bot_packages.contains(ToLower(bot.Name))) continue;
    Entry entry = {.shown = {.name = ToQString(bot.Name),
                             .fun_name = ToQString(bot.Name),
                             .model = {},
                             .where = ToQString(bot.PK3File)},
                   .source = index};
    const auto known = game.known_bots.find(ToLower(bot.Name));
    if (known != game.known_bots.end()) Describe(known->second, entry.shown);
    entries.push_back(std::move(entry));
  }
}

void LibraryCommands::AddBotsIn(const fs::path& folder,
                                std::vector<Entry>& entries) const {
  for (const fs::path& file : ListFiles(folder, kCharacterEnd)) {
    const std::optional<std::string> name = BotNameOfFile(file);
    if (!name) continue;
    Entry entry = {.shown = {.name = ToQString(*name),
                             .fun_name = ToQString(*name),
                             .model = {},
                             .where = ShownPath(folder)},
                   .source = RecentBot{folder / file, {}}};
    if (const auto known = DescriptionBeside(folder, *name)) {
      Describe(*known, entry.shown);
    }
    entries.push_back(std::move(entry));
  }
}

std::vector<LibraryCommands::Entry> LibraryCommands::Find(
    const GameData* game) {
  std::vector<Entry> entries;
  if (game != nullptr) AddBotsOfList(*game, entries);
  FolderPlaces places = commands_.Places();
  std::vector<fs::path> folders = std::move(places.recent);
  folders.insert(folders.begin(), places.working);
  for (auto folder = folders.begin(); folder != folders.end(); ++folder) {
    if (std::find(folders.begin(), folder, *folder) == folder) {
      AddBotsIn(*folder, entries);
    }
  }
  for (const RecentBot& bot : commands_.recent().Present()) {
    const bool is_of_list = std::ranges::any_of(entries, [&](const Entry& has) {
      return std::holds_alternative<std::size_t>(has.source) &&
             has.shown.where == ShownPath(bot.path.filename()) &&
             has.shown.name == ToQString(bot.name);
    });
    if (bot.name.empty() || is_of_list) continue;
    entries.push_back({.shown = {.name = ToQString(bot.name),
                                 .fun_name = ToQString(bot.name),
                                 .model = {},
                                 .where = ShownPath(bot.path)},
                       .source = bot});
  }
  return entries;
}

std::optional<BotLocation> LibraryCommands::LocationOf(
    const Entry& entry) const {
  if (const auto* const bot = std::get_if<std::size_t>(&entry.source)) {
    const BotListEntry& listed = state_.lists.bots.entries()[*bot];
    std::optional<fs::path> package =
        FindPackage(PathFromBytes(state_.settings.Q3Baseq3), listed.PK3File);
    if (!package) return std::nullopt;
    return BotLocation{.name = listed.Name,
                       .folder = {},
                       .package = *std::move(package),
                       .has_description = listed.HasBotScript};
  }
  const auto& bot = std::get<RecentBot>(entry.source);
  if (!bot.name.empty()) {
    return BotLocation{.name = bot.name, .folder = {}, .package = bot.path};
  }
  const fs::path folder = bot.path.parent_path();
  return BotLocation{.name = BotNameOfFile(bot.path).value_or(""),
                     .folder = folder,
                     .package = {},
                     .uses_layout = GivenFiles::IsInGame(folder)};
}

FindingCounts LibraryCommands::Check(const Entry& entry,
                                     const InstalledGame* game) const {
  const std::optional<BotLocation> location = LocationOf(entry);
  if (!location) return FindingCounts();
  // As the window tells it once the bot is open.
  const LocationCheck check(*location, false, game);
  const Bot bot = check.Read();
  std::vector<Finding> findings = check.InFilesAlone(bot);
  const std::vector<Finding> in_memory = check.InMemory(bot, true);
  findings.insert(findings.end(), in_memory.begin(), in_memory.end());
  return FindingCounts(findings);
}

bool LibraryCommands::IsOpen(const fs::path& package) const {
  return std::ranges::any_of(
      current_.origin().home->files, [&package](const auto& file) {
        std::error_code reason;
        return !file.second.is_on_disk() &&
               fs::equivalent(file.second.path, package, reason);
      });
}

frmLibrary::Removal LibraryCommands::Remove(const Entry& entry) {
  const std::optional<BotLocation> location = LocationOf(entry);
  if (!location) return {};
  const fs::path& package = location->package;
  const QString name = ShownPath(package.filename());
  const QString kept = tr("%1 was not removed.").arg(name);
  Bot bot;
  bot.Put(kNameField, location->name);
  if (!IsPackageOf(package, bot)) {
    state_.prompts.Show(
        {.title = std::string(kProgramTitle),
         .text = Localized(
             "'%1' has other files than those of %2 in it, or cannot be read. "
             "Only packages that hold a bot and nothing else are removed here.",
             {Utf8FromPath(package), Utf8FromGameText(location->name)}),
         .icon = MessageIcon::kExclamation});
    return {.text = kept};
  }
  std::string question = Localized(
      "Do you want to remove '%1' from the disk? %2 is then not in the game "
      "any "
      "more.",
      {Utf8FromPath(package), Utf8FromGameText(location->name)});
  if (IsOpen(package)) {
    question += " " + Localized(
                          "It stays open in the window, unsaved; what "
                          "its author wrote in its files beside its "
                          "values, such as comments, goes with them.");
  }
  if (!state_.prompts.Confirm(std::string(kProgramTitle), question)) {
    return {.text = kept};
  }
  std::error_code reason;
  if (!fs::remove(package, reason)) {
    state_.prompts.Show(
        {.title = std::string(kProgramTitle),
         .text = reason ? Localized("'%1' cannot be removed: %2.",
                                    {Utf8FromPath(package), reason.message()})
                        : Localized("'%1' cannot be removed.",
                                    {Utf8FromPath(package)}),
         .icon = MessageIcon::kExclamation});
    return {.text = kept};
  }
  current_.ForgetGonePackages();
  return {.is_done = true,
          .text = tr("%1 was removed from %2.")
                      .arg(name, ShownPath(package.parent_path()))};
}

void LibraryCommands::Show(const InstalledGame* game) {
  std::vector<Entry> entries = Find(game == nullptr ? nullptr : &game->data);
  std::vector<LibraryBot> shown;
  shown.reserve(entries.size());
  for (const Entry& entry : entries) {
    shown.push_back(entry.shown);
    const std::optional<BotLocation> location = LocationOf(entry);
    shown.back().has_own_package =
        location &&
        EqualIgnoringCase(BytesFromPath(location->package.filename()),
                          BotPackageName(location->name));
  }
  QString removed;
  frmLibrary dialog(
      std::move(shown),
      {.check =
           [&](std::size_t index) { return Check(entries.at(index), game); },
       .remove =
           [&](std::size_t index) {
             frmLibrary::Removal removal = Remove(entries.at(index));
             if (removal.is_done) {
               entries.erase(entries.begin() +
                             static_cast<std::ptrdiff_t>(index));
               removed = removal.text;
             }
             return removal;
           }},
      faces_, &window_);
  if (dialog.exec() == QDialog::Accepted) {
    Do(dialog.WantedAction(), entries.at(dialog.Chosen()).source);
  }
  if (!removed.isEmpty()) emit PackagesRemoved(removed);
}

void LibraryCommands::Do(frmLibrary::Action action, const BotSource& source) {
  switch (action) {
    case frmLibrary::Action::kOpen:
      return commands_.Open(source);
    case frmLibrary::Action::kDuplicate:
      return commands_.Duplicate(source);
    case frmLibrary::Action::kCompare:
      if (const auto bot = commands_.LoadAside(source)) {
        emit CompareWanted(*bot, ToQString(bot->Name()));
      }
  }
}

}  // namespace fragsmith
