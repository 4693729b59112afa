#include "checks/location_checks.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <string_view>
#include <utility>

#include "checks/bot_checks.h"
#include "checks/file_checks.h"
#include "checks/layout_checks.h"
#include "checks/names_of_game.h"
#include "checks/unknown_values.h"
#include "game/description_reader.h"
#include "game/stand_ins.h"
#include "inplace/game_values.h"
#include "install/packages/package.h"
#include "model/file_names.h"
#include "session/load_bot.h"
#include "session/save_bot.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/no_prompts.h"
#include "support/text.h"

namespace fragsmith {
namespace {

bool IsToldByFiles(std::string_view id) {
  const Check* const check = FindCheck(id);
  return check != nullptr && check->is_told_by_files;
}

bool IsError(const Finding& finding) {
  return finding.severity == Severity::kError;
}

}  // namespace

std::optional<InstalledGame> ReadInstalledGame(
    const std::filesystem::path& game_folder) {
  if (game_folder.empty()) return std::nullopt;
  GameFiles files = GameFiles::Open(game_folder);
  if (!files.is_game()) return std::nullopt;
  GameData data = ReadGameData(files);
  return InstalledGame{std::move(files), std::move(data)};
}

namespace {

std::shared_ptr<const InstalledGame> WithPlayersFolder(
    const BotLocation& location, const InstalledGame* game) {
  if (game == nullptr) return nullptr;
  std::optional<std::filesystem::path> folder =
      PlayersFolderOf(location, game->files.folder());
  if (!folder) return nullptr;
  GameFiles files = game->files;
  files.AddPlayersFolder(*std::move(folder), location.package.filename());
  GameData data = ReadGameData(files);
  return std::make_shared<InstalledGame>(
      InstalledGame{std::move(files), std::move(data)});
}

}  // namespace

LocationCheck::LocationCheck(const BotLocation& location,
                             bool has_no_description, const InstalledGame* game)
    : location_(location),
      with_players_folder_(WithPlayersFolder(location, game)),
      game_(with_players_folder_ ? with_players_folder_.get() : game),
      given_(FilesOf(location_)),
      hides_list_(
          given_.Open(kBotListPath) &&
          (game_ == nullptr ||
           !GameFileWins(game_->files, Package(), std::string(kBotListPath)))),
      on_disk_(
          ReadBot(given_, location_.name, hides_list_, location_.listed_name)) {
  BotFileSet& files = on_disk_.files;
  if (game_ != nullptr && !hides_list_ && !files.description) TakeListOfGame();
  files.has_no_description = has_no_description;
  files.is_game_known = game_ != nullptr;
  if (has_no_description) files.description.reset();
  if (on_disk_.is_in_bot_list) return;
  if (game_ == nullptr) {
    TakeStandardNames(given_.is_packed(), files);
  } else {
    TakeNamesOfGame(game_->data, Package(), hides_list_, files);
  }
}

/// A bot without a description of its own may stand in the game's list.
void LocationCheck::TakeListOfGame() {
  const std::string path(kBotListPath);
  std::optional<std::string> bytes = game_->files.Read(path);
  if (!bytes) return;
  GameFile list = {.name = PackageOf(path) + "/" + path,
                   .game_path = path,
                   .bytes = *std::move(bytes)};
  if (!SpeaksOf(list, location_.name)) return;
  on_disk_.files.description = std::move(list);
  on_disk_.is_in_bot_list = true;
}

Bot LocationCheck::Read() const {
  NoPrompts silent;
  const ModelCatalogue no_models;
  const BotList bots = BotList::Standard();
  const bool has_description = !on_disk_.files.has_no_description;
  LoadedBot loaded;
  if (!given_.is_packed()) {
    loaded = LoadBotFromFolder(
        location_.name, location_.folder,
        {.uses_layout = location_.uses_layout,
         .loads_description = has_description},
        {.models = no_models, .bots = bots, .prompts = silent});
  } else {
    const BotFileSet& files = on_disk_.files;
    const auto read = [&](const BotFileMember& row) {
      const std::optional<GameFile>& file = files.*row.member;
      const bool is_description = row.file == BotFile::kDescription;
      if (!file || (is_description && on_disk_.is_in_bot_list)) return;
      ReadBotFile(row.file, WholeBot{}, file->bytes, location_.name, file->name,
                  loaded);
      loaded.files.insert_or_assign(
          row.file,
          OriginFile{.path = location_.package,
                     .entry = is_description ? file->game_path
                                             : InBotFiles(file->game_path),
                     .fingerprint = FingerprintOf(file->bytes)});
    };
    // The description stands first there, and is read last.
    std::for_each(std::next(kBotFileMembers.begin()), kBotFileMembers.end(),
                  read);
    read(kBotFileMembers.front());
  }
  const std::string name = loaded.bot.Name();
  const bool is_listed = !location_.listed_name.empty();
  if (is_listed) loaded.bot.Put(kNameField, location_.listed_name);
  TakeGameValues(
      loaded, has_description, no_models,
      [this](std::string_view path) { return LookUp(path); }, is_listed);
  loaded.bot.Put(kNameField, name);
  TakeValuesAsGame(loaded.bot, ReportOf(loaded, loaded.bot), no_models);
  if (on_disk_.files.chat) {
    TakeGameChats(
        on_disk_.files.chat->bytes,
        [this](std::string_view path) { return LookUp(path); }, loaded.bot);
  }
  return std::move(loaded.bot);
}

bool LocationCheck::HasFiles() const {
  return std::ranges::any_of(kBotFileMembers, [this](const auto& row) {
    return (on_disk_.files.*row.member).has_value();
  });
}

std::vector<Finding> LocationCheck::InFiles() const {
  const std::optional<Finding> too_deep = FilesTooDeep(given_, location_.name);
  // Nothing that is said of missing files is news then.
  if (too_deep && !on_disk_.files.character) return {*too_deep};
  std::vector<Finding> findings = Check(on_disk_.files);
  TellNearbyFiles(given_, location_.name, findings);
  // What is said of a bot without files is said of its package.
  for (Finding& finding : findings) {
    auto* const place = std::get_if<FilePlace>(&finding.place);
    if (place != nullptr && place->file.empty()) {
      place->file = given_.package_name();
    }
  }
  AddPackageFaults(given_, on_disk_.files, findings);
  if (auto others = OthersInDescription(given_, on_disk_.files)) {
    findings.push_back(*std::move(others));
  }
  if (too_deep) {
    std::erase_if(findings, &Finding::keeps_out);
    findings.insert(findings.begin(), *too_deep);
  }
  if (std::optional<Finding> hiding =
          InPlaceOfGameFiles(given_, location_.name, Package(),
                             game_ == nullptr ? nullptr : &game_->files)) {
    TellWhatHides(on_disk_.files, WithGivenFirst(), *hiding, findings);
    TakeForCause(on_disk_.files, WithGamesOwn(), *hiding, findings);
    findings.push_back(*std::move(hiding));
  }
  if (game_ != nullptr && given_.is_packed()) {
    if (std::optional<Finding> misplaced =
            PackageInWrongFolder(location_.package, game_->files.folder())) {
      findings.insert(findings.begin(), *std::move(misplaced));
    }
  }
  AddHowToPlay(findings);
  return findings;
}

IncludeLookup LocationCheck::WithGamesOwn() const {
  return [this](std::string_view path) {
    std::optional<std::string> bytes;
    if (!path.starts_with(kBotsPath)) {
      bytes = game_ == nullptr ? StandInGameFile(path)
                               : game_->files.Read(InBotFiles(path));
    }
    return bytes ? bytes : LookUp(path);
  };
}

IncludeLookup LocationCheck::WithGivenFirst() const {
  return [this](std::string_view path) {
    std::optional<GameFile> own = given_.Open(InBotFiles(path));
    return own ? std::move(own->bytes) : LookUp(path);
  };
}

BotFileSet LocationCheck::AsSaved(const Bot& bot) const {
  BotFileSet as_saved = on_disk_.files;
  for (const BotFileMember& row : kBotFileMembers) {
    const std::string name =
        GameTextFromPath(FileNameOf(row.file, bot)).value_or("");
    const bool is_description = row.file == BotFile::kDescription;
    as_saved.*row.member = GameFile{
        .name = name,
        .game_path =
            std::string(is_description ? kScriptsPath : kBotsPath) + name,
        .bytes = BytesOf(row.file, bot, {})};
  }
  return as_saved;
}

std::vector<Finding> LocationCheck::InFilesAlone(const Bot& bot) const {
  std::multiset<std::string_view> of_bot;
  for (const Finding& finding : Check(AsSaved(bot))) of_bot.insert(finding.id);
  std::vector<Finding> findings = InFiles();
  std::erase_if(findings, [&of_bot](const Finding& finding) {
    const auto same = of_bot.find(finding.id);
    if (same == of_bot.end()) return false;
    of_bot.erase(same);
    return true;
  });
  return findings;
}

BrokenFiles LocationCheck::BrokenOnes(const Bot& bot) const {
  const std::vector<Finding> findings = Check(on_disk_.files);
  const std::ptrdiff_t faults = std::ranges::count_if(findings, IsError);
  const BotFileSet as_saved = AsSaved(bot);
  BrokenFiles broken;
  for (const BotFileMember& row : kBotFileMembers) {
    const std::optional<GameFile>& file = on_disk_.files.*row.member;
    if (!file) continue;
    const auto found = std::ranges::find_if(findings, [&](const Finding& one) {
      const auto* const place = std::get_if<FilePlace>(&one.place);
      return IsError(one) && place != nullptr && place->kind == row.file &&
             place->game_path.empty();
    });
    if (found == findings.end()) continue;
    BotFileSet with_one_anew = on_disk_.files;
    (with_one_anew.*row.member)->bytes = (as_saved.*row.member)->bytes;
    if (std::ranges::count_if(Check(with_one_anew), IsError) >= faults) {
      continue;
    }
    const int line = std::get<FilePlace>(found->place).line;
    broken.emplace(
        row.file,
        line > 0 ? Localized("Line %1: %2", {std::to_string(line), found->text})
                 : found->text);
  }
  return broken;
}

std::vector<Finding> LocationCheck::Check(const BotFileSet& files) const {
  std::vector<Finding> findings =
      CheckFiles(files, [this](std::string_view path) { return LookUp(path); });
  // A file that lies here is named as it is here, also where it is known by
  // its path in the game alone.
  for (Finding& finding : findings) {
    auto* const place = std::get_if<FilePlace>(&finding.place);
    if (place == nullptr || place->game_path.empty()) continue;
    if (std::optional<GameFile> own =
            given_.Open(InBotFiles(place->game_path))) {
      place->file = std::move(own->name);
      place->game_path.clear();
    }
  }
  return findings;
}

std::vector<Finding> LocationCheck::OfAll(const Bot& bot) const {
  std::vector<Finding> findings = InFiles();
  // Of files that the game does not find, or in which it sees nothing, no more
  // is to be told.
  const bool is_unreadable =
      std::ranges::count(findings, "packed-unreadably", &Finding::id) > 0;
  if (!HasFiles() || is_unreadable) return findings;
  // How the bot is added stands at the end of all.
  std::vector<Finding> last;
  const auto of_bot = std::find_if(
      findings.begin(), findings.end(), [](const Finding& finding) {
        return finding.id == "loose-files" || finding.id == "how-to-add";
      });
  last.assign(std::make_move_iterator(of_bot),
              std::make_move_iterator(findings.end()));
  findings.erase(of_bot, findings.end());
  std::vector<Finding> in_memory = InMemory(bot, true);
  // The files as they are tell more than the bot that was read from them, and
  // have no 0 that would need an explanation.
  std::erase_if(in_memory, [](const Finding& finding) {
    return IsToldByFiles(finding.id) || finding.id == "weight-set-elsewhere";
  });
  DropUnknownValues(
      on_disk_.files, [this](std::string_view path) { return LookUp(path); },
      findings, in_memory);
  for (std::vector<Finding>* const more : {&in_memory, &last}) {
    findings.insert(findings.end(), std::make_move_iterator(more->begin()),
                    std::make_move_iterator(more->end()));
  }
  return findings;
}

PlacesInFiles LocationCheck::Places() const {
  return {on_disk_.files,
          [this](std::string_view path) { return LookUp(path); }};
}

std::optional<std::string> LocationCheck::LookUp(std::string_view path) const {
  const std::string in_game = InBotFiles(path);
  std::optional<GameFile> own = given_.Open(in_game);
  const bool is_own = own && (game_ == nullptr ||
                              !GameFileWins(game_->files, Package(), in_game));
  if (is_own) return std::move(own->bytes);
  return game_ != nullptr ? game_->files.Read(in_game) : StandInGameFile(path);
}

std::string LocationCheck::PackageOf(const std::string& path) const {
  if (game_ == nullptr) return Localized("not among these files");
  const auto& entries = game_->files.entries();
  const auto found = entries.find(ToLower(path));
  return found == entries.end() ? Localized("the game's")
                                : Utf8FromGameText(found->second.name);
}

/// Nothing for files in a folder.
std::optional<GamePackage> LocationCheck::Package() const {
  if (!given_.is_packed()) return std::nullopt;
  std::optional<std::string> name =
      GameTextFromPath(location_.package.filename());
  if (!name) return std::nullopt;
  return GamePackage{*std::move(name), with_players_folder_ != nullptr};
}

}  // namespace fragsmith
