#include "editor/commands/library_commands.h"

#include <QDir>
#include <algorithm>
#include <string>
#include <utility>

#include "editor/dialogs/library_dialog.h"
#include "editor/toolkit/game_text_conversion.h"
#include "model/file_names.h"
#include "session/bot_sources.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

QString Shown(const fs::path& path) {
  return QDir::toNativeSeparators(QString::fromStdString(Utf8FromPath(path)));
}

/// What the description of the bot beside its other files says.
std::optional<KnownBot> DescriptionBeside(const fs::path& folder,
                                          const std::string& name) {
  for (const fs::path& place :
       {folder, folder.parent_path().parent_path() / "scripts"}) {
    const std::optional<fs::path> path =
        FindFile(place, name + std::string(kDescriptionEnd));
    if (!path) continue;
    const Result<std::string> bytes = ReadFile(*path);
    if (!bytes) continue;
    const auto bots = BotsInDescriptions(*bytes);
    if (!bots.empty()) return bots.begin()->second;
  }
  return std::nullopt;
}

}  // namespace

LibraryCommands::LibraryCommands(BotCommands& commands, ProgramState& state,
                                 FaceStore& faces, QWidget& window)
    : QObject(&window),
      commands_(commands),
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
                             .where = Shown(folder)},
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
             has.shown.where == Shown(bot.path.filename()) &&
             has.shown.name == ToQString(bot.name);
    });
    if (bot.name.empty() || is_of_list) continue;
    entries.push_back({.shown = {.name = ToQString(bot.name),
                                 .fun_name = ToQString(bot.name),
                                 .model = {},
                                 .where = Shown(bot.path)},
                       .source = bot});
  }
  return entries;
}

void LibraryCommands::Show(const GameData* game) {
  const std::vector<Entry> entries = Find(game);
  std::vector<LibraryBot> shown;
  shown.reserve(entries.size());
  for (const Entry& entry : entries) shown.push_back(entry.shown);
  frmLibrary dialog(std::move(shown), faces_, &window_);
  if (dialog.exec() != QDialog::Accepted) return;
  const BotSource& source = entries.at(dialog.Chosen()).source;
  switch (dialog.WantedAction()) {
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
