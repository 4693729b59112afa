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
#include "support/localization.h"
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

std::string UnreadableText(const EntryFault& fault, const std::string& names,
                           bool is_one) {
  std::string text = Localized(
      is_one ? Localizable(
                   "%1 is packed %2, and the game can unpack no such file.")
             : Localizable(
                   "%1 are packed %2, and the game can unpack no such file."),
      {names, Localized(fault.method)});
  text += " ";
  text += Localized(
      fault.is_locked
          ? Localizable("Make the package anew, without a password.")
          : Localizable("Make the package anew, by the method Deflate, which "
                        "is the usual one of a .zip."));
  return text;
}

std::string TextOf(const EntryFault& fault, const std::string& names,
                   bool is_one) {
  using Kind = EntryFault::Kind;
  switch (fault.kind) {
    case Kind::kUnopened:
      return Localized(
          "The game cannot open this package: what it takes for the end of the "
          "archive leads to no table of contents. A comment in the archive may "
          "be the reason, or that it was made in the form for very large ones. "
          "Make the package anew. The game does not add the bot.");
    case Kind::kUnreadable:
      return UnreadableText(fault, names, is_one);
    case Kind::kTwice:
      return Localized(
          "The package has %1 twice, and the game takes the last. Remove the "
          "other.",
          {names});
    case Kind::kDamaged:
      return Localized(
          is_one
              ? Localizable("The package is damaged: %1 is not what its "
                            "checksum says. The game does not look at that and "
                            "reads what there is. Make the package anew.")
              : Localizable("The package is damaged: %1 are not what their "
                            "checksums say. The game does not look at that and "
                            "reads what there is. Make the package anew."),
          {names});
  }
  return {};
}

constexpr std::string_view IdOf(EntryFault::Kind kind) {
  using Kind = EntryFault::Kind;
  if (kind == Kind::kUnreadable) return "packed-unreadably";
  return kind == Kind::kTwice ? "packed-twice" : "package-damaged";
}

/// Of the game's files that the bot's take the place of.
std::string HiddenText(const std::vector<std::string>& paths) {
  if (paths.empty()) return {};
  return Localized(
      paths.size() == 1
          ? Localizable("%1 takes the place of the game's own file, for all "
                        "bots of the game. What this bot alone needs belongs "
                        "into a file of another name.")
          : Localizable("%1 take the place of the game's own files, for all "
                        "bots of the game. What this bot alone needs belongs "
                        "into a file of another name."),
      {Enumeration(paths)});
}

/// Of those that the game takes its own in place of.
std::string PassedOverText(const std::vector<std::string>& paths) {
  if (paths.empty()) return {};
  return Localized(
      paths.size() == 1
          ? Localizable("%1 is never read: the game takes its own, out of a "
                        "package whose name comes later. What the bot needs "
                        "belongs into a file of another name. In the player's "
                        "own folder, such as ~/.q3a/baseq3, this package comes "
                        "before the game's, whatever its name.")
          : Localizable("%1 are never read: the game takes its own, out of a "
                        "package whose name comes later. What the bot needs "
                        "belongs into a file of another name. In the player's "
                        "own folder, such as ~/.q3a/baseq3, this package comes "
                        "before the game's, whatever its name."),
      {Enumeration(paths)});
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
    const bool is_name_alone = above.empty() || above == ".";
    std::string text = Localized(
        is_name_alone
            ? Localizable(
                  "The names in the package begin with %1, and the game does "
                  "not find them. Make the package anew, without that in front "
                  "of botfiles and scripts. The game does not add the bot.")
            : Localizable("The folders botfiles and scripts lie inside a "
                          "folder %1, and the game looks for them at the top "
                          "alone. Put what is in %1 at the top, without that "
                          "folder around it. The game does not add the bot."),
        {is_name_alone ? Quoted(std::string(above) + "/") : Quoted(above)});
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
        advice =
            Localized("Remove the .txt from the name of %1.", {Quoted(file)});
      }
    }
    if (lacks_description && advice.empty()) {
      for (const std::string& path : given.PathsLike("", "/" + description)) {
        advice = Localized("Move %1 there.", {Quoted(path)});
      }
    }
    if (!advice.empty()) finding.text += " " + advice;
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
  return Finding{
      .id = "other-bot",
      .severity = Severity::kHint,
      .place = FilePlace{.file = files.description->name,
                         .line = line,
                         .kind = BotFile::kDescription},
      .text =
          Localized("The file describes %1 as well. What is said here is about "
                    "%2 alone: give the name of another bot to check that.",
                    {Enumeration(shown), Quoted(NameToAdd(files))}),
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
  std::string text = HiddenText(hidden);
  if (!hidden.empty() && !passed_over.empty()) text += " ";
  text += PassedOverText(passed_over);
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
  return Finding{
      .id = "package-in-wrong-folder",
      .severity = Severity::kWarning,
      .place = FilePlace{.file = Utf8FromPath(package.filename())},
      .text = Localized("The package lies in '%1', where the game does not "
                        "look. Move it to '%2'.",
                        {Utf8FromPath(lies_in), Utf8FromPath(wanted)}),
      .mends = {}};
}

void TellWhatHides(const BotFileSet& files, const IncludeLookup& given_first,
                   Finding& hiding, const std::vector<Finding>& findings) {
  const auto keeps_out = [](const std::vector<Finding>& all) {
    return std::ranges::any_of(all, &Finding::keeps_out);
  };
  if (keeps_out(findings) || !keeps_out(CheckFiles(files, given_first))) return;
  hiding.severity = Severity::kWarning;
  hiding.text +=
      " " + Localized("There the game does not add the bot with it.");
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
  hiding.text +=
      " " + Localized(place != nullptr
                          ? Localizable("Without it this bot is good; with it "
                                        "the game stumbles in %1. Remove it.")
                          : Localizable("Without it this bot is good; with it "
                                        "the game stumbles. Remove it."),
                      {place != nullptr ? FilePlaceText(*place) : ""});
  if (hiding.keeps_out) {
    hiding.text += " " + Localized("The game does not add the bot.");
  }
  std::erase_if(findings, is_error);
}

}  // namespace fragsmith
