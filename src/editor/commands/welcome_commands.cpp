#include "editor/commands/welcome_commands.h"

#include <QDir>
#include <algorithm>
#include <string>
#include <utility>

#include "editor/toolkit/game_text_conversion.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

GameRoots RootsOfGames() {
  return {.home = PathFromBytes(QDir::homePath().toStdString()),
          .root = PathFromBytes(QDir::rootPath().toStdString()),
          .installed = InstalledPrograms()};
}

}  // namespace

WelcomeCommands::WelcomeCommands(
    WelcomePage& page, BotCommands& commands, ProgramState& state,
    std::function<void(const QString& item)> choose)
    : QObject(&page),
      page_(page),
      commands_(commands),
      state_(state),
      choose_(std::move(choose)) {
  connect(&page_, &WelcomePage::GameChosen, this, &WelcomeCommands::UseGame);
  connect(&page_, &WelcomePage::ScanWanted, this,
          [this] { choose_(QStringLiteral("mnuCheck")); });
  connect(&page_, &WelcomePage::OtherFolderWanted, this,
          [this] { choose_(QStringLiteral("mnuOptions")); });
  connect(&page_, &WelcomePage::KindChosen, this, [this](BotKind kind) {
    choose_(QStringLiteral("mnuNew_") + QString::fromUtf8(TextOf(kind).key));
  });
  connect(&page_, &WelcomePage::BotChosen, &commands_,
          &BotCommands::OpenOfList);
  connect(&page_, &WelcomePage::RecentChosen, &commands_,
          &BotCommands::OpenRecent);
}

void WelcomeCommands::Fill(const GameData* game) {
  std::vector<WelcomePage::ListedBot> bots = BotsOf(game);
  std::vector<WelcomePage::Game> games;
  const std::filesystem::path set = PathFromBytes(state_.settings.Q3Baseq3);
  if (!set.empty()) {
    games.push_back({.name = QString::fromStdString(GameName(set)),
                     .folder = set,
                     .about = AboutGame(bots.size()),
                     .is_set = true,
                     .is_scanned = state_.settings.BaseQ3Check});
  }
  for (const FoundGame& found : FindGames(RootsOfGames())) {
    if (found.folder == set) continue;
    games.push_back({.name = QString::fromStdString(found.name),
                     .folder = found.folder,
                     .about = {},
                     .is_set = false,
                     .is_scanned = false});
  }
  page_.ShowGames(games);
  page_.ShowBots(bots);
  page_.ShowRecent(commands_.recent().Present());
}

QString WelcomeCommands::AboutGame(std::size_t bots) const {
  if (!state_.settings.BaseQ3Check) return tr("Not scanned yet");
  const ModelCatalogue& models = state_.lists.models;
  return tr("%1 models, %2 skins, %3 bots")
      .arg(models.models().size())
      .arg(models.CountSkins())
      .arg(bots);
}

std::vector<WelcomePage::ListedBot> WelcomeCommands::BotsOf(
    const GameData* game) const {
  std::vector<WelcomePage::ListedBot> bots;
  if (game == nullptr) return bots;
  const std::vector<BotListEntry>& entries = state_.lists.bots.entries();
  for (std::size_t index = 0; index < entries.size(); ++index) {
    const BotListEntry& entry = entries[index];
    // The list has the standard bots whether they are there or not.
    if (!game->bot_packages.contains(ToLower(entry.Name))) continue;
    bots.push_back({.name = ToQString(entry.Name),
                    .package = ToQString(entry.PK3File),
                    .index = index});
  }
  return bots;
}

void WelcomeCommands::UseGame(const std::filesystem::path& folder) {
  state_.settings.Q3Baseq3 = BytesFromPath(folder);
  state_.settings.BaseQ3Check = false;
  state_.InitByValues();
  choose_(QStringLiteral("mnuCheck"));
  // A scan that was cancelled has read nothing.
  emit GameSet();
}

}  // namespace fragsmith
