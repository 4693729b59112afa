#include "checks/layout_checks.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "chat/vocabulary.h"
#include "checks/bot_on_disk.h"
#include "game/description_reader.h"
#include "install/program/game_folder.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// What every game has, where none can be asked.
constexpr std::array<std::string_view, 16> kGameFiles = {
    "botfiles/chars.h",
    "botfiles/inv.h",
    "botfiles/match.h",
    "botfiles/match.c",
    "botfiles/syn.h",
    "botfiles/syn.c",
    "botfiles/rnd.c",
    "botfiles/rchat.c",
    "botfiles/teamplay.h",
    "botfiles/items.c",
    "botfiles/weapons.c",
    "botfiles/fw_weap.c",
    "botfiles/fw_items.c",
    "botfiles/bots/default_c.c",
    "botfiles/bots/default_w.c",
    kBotListPath};

std::string FolderOf(const BotFileMember& row) {
  const bool is_description = row.file == BotFile::kDescription;
  return std::string(is_description ? kScriptsFolder : kBotFilesFolder) + "/";
}

/// The given files that could be the game's: those of its folder botfiles, the
/// default character's and the list of bots.
std::vector<std::string> PathsOfGame(const GivenFiles& given) {
  std::vector<std::string> paths = given.PathsLike(kBotFilesPath, "");
  std::erase_if(paths, [](std::string_view path) {
    return path.starts_with("botfiles/bots/") &&
           !path.starts_with("botfiles/bots/default_");
  });
  for (std::string& path : given.PathsLike(kBotListPath, "")) {
    paths.push_back(std::move(path));
  }
  return paths;
}

/// Such as "pak6-misc.pk3".
bool IsOfGame(std::string_view package) {
  return ToLower(package).starts_with("pak") && package.size() > 3 &&
         package[3] >= '0' && package[3] <= '9';
}

/// What the bot has the file for, where it is one of its own.
std::optional<BotFile> KindOf(const GameFile& file, const BotFileSet& files) {
  for (const BotFileMember& row : kBotFileMembers) {
    const std::optional<GameFile>& own = files.*row.member;
    if (own && own->name == file.name) return row.file;
  }
  return std::nullopt;
}

/// Of all bots, or this one's.
bool IsUsed(const GameFile& file, const BotFileSet& files) {
  const bool is_shared = !file.game_path.starts_with(kBotsPath) &&
                         !file.game_path.starts_with(kScriptsPath);
  return is_shared || KindOf(file, files);
}

std::string TextOf(const EntryFault& fault, const std::string& names,
                   bool is_one) {
  using Kind = EntryFault::Kind;
  switch (fault.kind) {
    case Kind::kUnopened:
      return "The game cannot open this package: what it takes for the end of "
             "the archive leads to no table of contents. A comment in the "
             "archive may be the reason, or that it was made in the form for "
             "very large ones. Make the package anew. The game does not add "
             "the bot.";
    case Kind::kUnreadable: {
      std::string text = names + (is_one ? " is packed " : " are packed ");
      text += fault.method;
      text += ", and the game can unpack no such file. Make the package anew, ";
      text += fault.is_locked
                  ? "without a password."
                  : "by the method Deflate, which is the usual one of a .zip.";
      return text;
    }
    case Kind::kTwice:
      return "The package has " + names +
             " twice, and the game takes the last. Remove the other.";
    case Kind::kDamaged:
      return "The package is damaged: " + names +
             (is_one ? " is not what its checksum says."
                     : " are not what their checksums say.") +
             " The game does not look at that and reads what there is. Make "
             "the package anew.";
  }
  return {};
}

constexpr std::string_view IdOf(EntryFault::Kind kind) {
  using Kind = EntryFault::Kind;
  if (kind == Kind::kUnreadable) return "packed-unreadably";
  return kind == Kind::kTwice ? "packed-twice" : "package-damaged";
}

}  // namespace

void AddPackageFaults(const GivenFiles& given, const BotFileSet& files,
                      std::vector<Finding>& findings) {
  using Kind = EntryFault::Kind;
  const std::vector<EntryFault> faults = given.Faults();
  if (!faults.empty() && faults.front().kind == Kind::kUnopened) {
    findings = {{.id = "package-unopened",
                 .severity = Severity::kError,
                 .place = FilePlace{.file = given.package_name()},
                 .text = TextOf(faults.front(), {}, true),
                 .mends = {},
                 .keeps_out = true}};
    return;
  }
  for (const Kind kind : {Kind::kDamaged, Kind::kTwice, Kind::kUnreadable}) {
    std::vector<std::string> names;
    std::vector<FilePlace> places;
    const EntryFault* first = nullptr;
    for (const EntryFault& fault : faults) {
      const std::optional<GameFile> file = given.OpenInAnyCase(fault.name);
      if (fault.kind != kind || !file || !IsUsed(*file, files)) continue;
      first = &fault;
      names.push_back(ShownText(fault.name));
      places.push_back({.file = file->name, .kind = KindOf(*file, files)});
    }
    if (first == nullptr) continue;
    std::ranges::reverse(names);
    const bool is_unreadable = kind == Kind::kUnreadable;
    bool keeps_out = false;
    std::erase_if(findings, [&](const Finding& finding) {
      const auto* const place = std::get_if<FilePlace>(&finding.place);
      const bool follows =
          is_unreadable && place != nullptr &&
          std::ranges::count(places, place->file, &FilePlace::file) > 0;
      keeps_out = keeps_out || (follows && finding.keeps_out);
      return follows;
    });
    findings.insert(
        findings.begin(),
        Finding{
            .id = IdOf(kind),
            .severity = is_unreadable ? Severity::kError : Severity::kWarning,
            .place = std::move(places.back()),
            .text = TextOf(*first, Enumeration(names), names.size() == 1),
            .mends = {},
            .keeps_out = keeps_out});
  }
}

std::optional<Finding> FilesTooDeep(const GivenFiles& given,
                                    const std::string& name) {
  if (!given.is_packed()) return std::nullopt;
  for (const BotFileMember& row : kBotFileMembers) {
    const std::string path =
        ToLower(FolderOf(row) + name + std::string(FileSuffix(row.file)));
    const std::vector<std::string> found = given.PathsLike("", "/" + path);
    if (found.empty() || given.OpenInAnyCase(path)) continue;
    std::string_view above = found.front();
    above.remove_suffix(path.size() + 1);
    const std::string folder = Quoted(above);
    std::string text;
    if (above.empty() || above == ".") {
      text = "The names in the package begin with " +
             Quoted(std::string(above) + "/") +
             ", and the game does not find them. Make the package anew, "
             "without that in front of botfiles and scripts.";
    } else {
      text = "The folders botfiles and scripts lie inside a folder ";
      text += folder;
      text += ", and the game looks for them at the top alone. Put what is in ";
      text += folder;
      text += " at the top, without that folder around it.";
    }
    text += " The game does not add the bot.";
    const std::optional<GameFile> file = given.OpenInAnyCase(found.front());
    return Finding{.id = "folder-too-deep",
                   .severity = Severity::kError,
                   .place = FilePlace{.file = file ? file->name : std::string(),
                                      .kind = row.file},
                   .text = std::move(text),
                   .mends = {},
                   .keeps_out = true};
  }
  return std::nullopt;
}

void TellNearbyFiles(const GivenFiles& given, const std::string& name,
                     std::vector<Finding>& findings) {
  constexpr std::string_view kText = ".txt";
  const std::string description =
      ToLower(name) + std::string(FileSuffix(BotFile::kDescription));
  for (Finding& finding : findings) {
    std::string advice;
    const bool lacks_description = finding.id == "no-description";
    if (!lacks_description && finding.id != "file-missing" &&
        finding.id != "not-looked-at") {
      continue;
    }
    const std::string missing =
        ToLower(finding.missing.substr(finding.missing.rfind('/') + 1));
    for (const std::string& path : given.PathsLike("", kText)) {
      const std::string file = path.substr(path.rfind('/') + 1);
      const std::string meant = file.substr(0, file.size() - kText.size());
      if (meant == (lacks_description ? description : missing)) {
        advice = " Remove the .txt from the name of " + Quoted(file) + ".";
      }
    }
    if (lacks_description && advice.empty()) {
      for (const std::string& path : given.PathsLike("", "/" + description)) {
        advice = " Move " + Quoted(path) + " there.";
      }
    }
    finding.text += advice;
  }
}

std::optional<Finding> OthersInDescription(const GivenFiles& given,
                                           const BotFileSet& files) {
  if (!files.description || files.description->game_path == kBotListPath) {
    return std::nullopt;
  }
  const std::string own = ToLower(NameToAdd(files));
  std::vector<std::string> names = {own};
  std::vector<std::string> shown;
  int line = 0;
  Complaints untold;
  for (const DescriptionSet& set :
       ReadGameDescription(*files.description, untold)) {
    const std::string_view name = set.Text("name");
    const std::string path =
        InBotFiles(PathLookedFor(set.Text("aifile"), FileHome::kLoose));
    const bool is_own =
        files.character &&
        EqualIgnoringCase(path, InBotFiles(files.character->game_path));
    if (name.empty() || name == kNoDescriptionValue ||
        std::ranges::count(names, ToLower(name)) > 0 ||
        (!is_own && given.Open(path))) {
      continue;
    }
    names.push_back(ToLower(name));
    shown.push_back(Quoted(name));
    if (line == 0) line = set.Line("name");
  }
  if (own.empty() || shown.empty()) return std::nullopt;
  return Finding{.id = "other-bot",
                 .severity = Severity::kHint,
                 .place = FilePlace{.file = files.description->name,
                                    .line = line,
                                    .kind = BotFile::kDescription},
                 .text = "The file describes " + Enumeration(shown) +
                         " as well. What is said here is about " +
                         Quoted(NameToAdd(files)) +
                         " alone: give the name of another bot to check that.",
                 .mends = {}};
}

bool GameFileWins(const GameFiles& game,
                  const std::optional<GamePackage>& package,
                  const std::string& path) {
  if (!package) return false;
  const auto found = game.entries().find(ToLower(path));
  return found != game.entries().end() && found->second.WinsOver(*package);
}

std::optional<Finding> InPlaceOfGameFiles(
    const GivenFiles& given, const std::string& name,
    const std::optional<GamePackage>& package, const GameFiles* game) {
  std::vector<std::string> hidden;
  std::vector<std::string> passed_over;
  std::string first;
  for (const std::string& path : PathsOfGame(given)) {
    const std::optional<GameFile> own = given.OpenInAnyCase(path);
    if (!own) continue;
    std::optional<std::string> of_game;
    if (game != nullptr) {
      of_game = game->Read(path);
      if (!of_game || *of_game == own->bytes) continue;
    } else if (std::ranges::find(kGameFiles, path) == kGameFiles.end()) {
      continue;
    }
    const bool wins = game == nullptr || !GameFileWins(*game, package, path);
    // The game's own packages replace each other's files.
    if (!wins && IsOfGame(package->name)) continue;
    // A list that nobody reads matters to those that stand in no other.
    if (!wins && path == kBotListPath &&
        (!SpeaksOf(*own, name) ||
         SpeaksOf({.name = {}, .game_path = {}, .bytes = of_game.value_or("")},
                  name))) {
      continue;
    }
    (wins ? hidden : passed_over).push_back(ShownText(path));
    if (first.empty()) first = own->name;
  }
  std::string text;
  if (!hidden.empty()) {
    text = Enumeration(hidden) +
           (hidden.size() == 1 ? " takes the place of the game's own file"
                               : " take the place of the game's own files") +
           ", for all bots of the game. What this bot alone needs belongs into "
           "a file of another name.";
  }
  if (!passed_over.empty()) {
    text += (text.empty() ? "" : " ") + Enumeration(passed_over) +
            (passed_over.size() == 1 ? " is never read" : " are never read") +
            ": the game takes its own, out of a package whose name comes "
            "later. What the bot needs belongs into a file of another name. "
            "In the player's own folder, such as ~/.q3a/baseq3, this package "
            "comes before the game's, whatever its name.";
  }
  if (text.empty()) return std::nullopt;
  return Finding{
      .id = "in-place-of-game-file",
      .severity = hidden.empty() ? Severity::kHint : Severity::kWarning,
      .place = FilePlace{.file = std::move(first)},
      .text = std::move(text),
      .mends = {}};
}

std::optional<Finding> PackageInWrongFolder(
    const std::filesystem::path& package,
    const std::filesystem::path& package_folder) {
  const std::filesystem::path lies_in = WholePath(package).parent_path();
  const std::filesystem::path wanted = WholePath(package_folder);
  const std::filesystem::path from_game =
      lies_in.lexically_relative(wanted.parent_path());
  if (from_game.empty() || *from_game.begin() == "..") return std::nullopt;
  const bool is_of_modification = from_game != "." &&
                                  !from_game.has_parent_path() &&
                                  !IsStandardPackageFolder(lies_in);
  const bool is_below_another =
      from_game.has_parent_path() && *from_game.begin() != wanted.filename();
  if (from_game == wanted.filename() || is_of_modification ||
      is_below_another) {
    return std::nullopt;
  }
  return Finding{.id = "package-in-wrong-folder",
                 .severity = Severity::kWarning,
                 .place = FilePlace{.file = Utf8FromPath(package.filename())},
                 .text = "The package lies in '" + Utf8FromPath(lies_in) +
                         "', where the game does not look. Move it to '" +
                         Utf8FromPath(wanted) + "'.",
                 .mends = {}};
}

void TellWhatHides(const BotFileSet& files, const IncludeLookup& given_first,
                   Finding& hiding, const std::vector<Finding>& findings) {
  const auto keeps_out = [](const std::vector<Finding>& all) {
    return std::ranges::any_of(all, &Finding::keeps_out);
  };
  if (keeps_out(findings) || !keeps_out(CheckFiles(files, given_first))) return;
  hiding.severity = Severity::kWarning;
  hiding.text += " There the game does not add the bot with it.";
}

void TakeForCause(const BotFileSet& files, const IncludeLookup& with_games_own,
                  Finding& hiding, std::vector<Finding>& findings) {
  const auto is_error = [](const Finding& finding) {
    return finding.severity == Severity::kError;
  };
  const auto error = std::ranges::find_if(findings, is_error);
  if (error == findings.end()) return;
  if (std::ranges::any_of(CheckFiles(files, with_games_own), is_error)) return;
  const auto* const place = std::get_if<FilePlace>(&error->place);
  hiding.severity = Severity::kError;
  hiding.keeps_out = std::ranges::any_of(findings, &Finding::keeps_out);
  hiding.text += " Without it this bot is good; with it the game stumbles";
  if (place != nullptr) hiding.text += " in " + FilePlaceText(*place);
  hiding.text += ". Remove it.";
  if (hiding.keeps_out) hiding.text += " The game does not add the bot.";
  std::erase_if(findings, is_error);
}

}  // namespace fragsmith
