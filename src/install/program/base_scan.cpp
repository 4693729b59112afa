#include "install/program/base_scan.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "install/packages/package.h"
#include "install/program/game_folder.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Boxes about one package; a hostile one could ask for any number of them.
constexpr int kMaxBoxes = 10;

/// The text from that offset up to the next end.
std::optional<std::string_view> Between(std::string_view text,
                                        std::size_t beginning,
                                        std::string_view end) {
  const std::size_t stop = text.find(end, beginning);
  if (stop == std::string_view::npos) return std::nullopt;
  return text.substr(beginning, stop - beginning);
}

/// Reads the table of contents of one package, line by line.
class ListingReader {
 public:
  ListingReader(std::string_view package_name, BaseLists& lists,
                Prompts& prompts, Notes& notes)
      : package_(package_name),
        lists_(lists),
        prompts_(prompts),
        notes_(notes) {}

  void Read(std::string_view line) {
    const bool is_folder = line.ends_with('/');
    if (line.empty() || is_folder) return;
    ReadIcon(line);
    ReadCharacteristicFile(line);
    ReadScript(line);
    ReadBotsTxt(line);
  }

 private:
  void ReadIcon(std::string_view line) {
    if (!Contains(line, "icon")) return;
    const std::optional<std::size_t> folder = Behind(line, "models/players/");
    if (!folder) return;
    const auto model = Between(line, *folder, "/");
    const std::size_t icon = line.find(kIconBeginning);
    if (!model || icon == std::string_view::npos) return;
    const auto skin = Between(line, icon + kIconBeginning.size(), ".");
    if (!skin || !IsStorable(line) || IsKnown(*model, *skin)) return;
    std::string iconFile(line);
    std::replace(iconFile.begin(), iconFile.end(), '/', '\\');
    lists_.models.AddModelSkin(*model, *skin, package_, iconFile);
  }

  /// A skin of the game's own models that another game has under their names.
  bool IsKnown(std::string_view model, std::string_view skin) const {
    const auto found = lists_.models.FindModel(model);
    if (package_ != kGamePackage || !found) return false;
    const auto known = lists_.models.FindSkin(*found, skin);
    return known && lists_.models.models()[*found].Skins[*known].IsOriginal;
  }

  void ReadCharacteristicFile(std::string_view line) {
    if (!Contains(line, kCharacterEnd)) return;
    const std::optional<std::size_t> folder = Behind(line, "botfiles/bots/");
    if (folder) AddBot(Between(line, *folder, kCharacterEnd), scriptSeen_);
  }

  void ReadScript(std::string_view line) {
    if (!Contains(line, kDescriptionEnd)) return;
    const std::optional<std::size_t> folder = Behind(line, "scripts/");
    if (!folder) return;
    // From here on: also bots whose script is another's count as having one.
    scriptSeen_ = true;
    AddBot(Between(line, *folder, kDescriptionEnd), true);
  }

  void ReadBotsTxt(std::string_view line) {
    if (!Contains(line, "/bots.txt")) return;
    const std::string text =
        Utf8FromGameText(package_) + " has an additional 'bots.txt' file!";
    if (++boxes_ > kMaxBoxes) {
      AddNote(text);
      return;
    }
    prompts_.Show({.title = "Bots.txt found!",
                   .text = text,
                   .icon = MessageIcon::kExclamation});
  }

  void AddBot(std::optional<std::string_view> name, bool has_script) {
    if (!name || !IsStorable(*name)) return;
    lists_.bots.AddBot(*name, package_, has_script);
  }

  /// The offset behind the folder, which is looked for ignoring case.
  static std::optional<std::size_t> Behind(std::string_view line,
                                           std::string_view folder) {
    const auto offset = static_cast<std::size_t>(
        std::search(
            line.begin(), line.end(), folder.begin(), folder.end(),
            [](char left, char right) { return ToLower(left) == right; }) -
        line.begin());
    if (offset == line.size()) return std::nullopt;
    return offset + folder.size();
  }

  /// The lists hold their texts in double quotes and cannot hold one.
  bool IsStorable(std::string_view field) {
    if (!Contains(field, "\"") && !Contains(package_, "\"")) return true;
    AddNote(Localized("%1 is skipped: the lists cannot hold a double quote.",
                      {ShownText(field)}));
    return false;
  }

  void AddNote(std::string text) {
    notes_.Add({.file = Utf8FromGameText(package_),
                .line = 0,
                .text = std::move(text)});
  }

  static constexpr std::string_view kIconBeginning = "icon_";

  std::string_view package_;
  BaseLists& lists_;
  Prompts& prompts_;
  Notes& notes_;
  bool scriptSeen_ = false;
  int boxes_ = 0;
};

/// The packages to read, by name, without the game's own, whose contents are
/// known. That one is known by its exact spelling, so a PAK0.PK3 is read like
/// any other, and so is the one of a game of another name.
std::vector<std::filesystem::path> PackagesIn(
    const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> names = ListFiles(folder, kPackageEnd);
  if (!IsStandardPackageFolder(folder)) return names;
  std::erase_if(names, [](const std::filesystem::path& name) {
    return BytesFromPath(name) == kGamePackage;
  });
  return names;
}

void ScanPackage(const std::filesystem::path& path, BaseLists& lists,
                 Prompts& prompts, Notes& notes) {
  const std::optional<std::string> name = GameTextFromPath(path.filename());
  if (!name) {
    notes.Add({.file = Utf8FromPath(path.filename()),
               .line = 0,
               .text = Localized("The package is skipped: its name has "
                                 "characters that the game's texts lack.")});
    return;
  }
  const Result<std::string> listing = ListPackage(path, notes);
  if (listing) {
    ParsePackageListing(*listing, *name, lists, prompts, notes);
    return;
  }
  // The box has only the library's words, the note tells the package.
  prompts.Show({.title = std::string(kProgramTitle),
                .text = listing.error().what,
                .icon = MessageIcon::kNone});
  notes.Add({.file = Utf8FromPath(path.filename()),
             .line = 0,
             .text = listing.error().what});
}

/// The skins and bots of add-ons, each by its name.
std::set<std::string> NamesOfAddOns(const BaseLists& lists) {
  std::set<std::string> names;
  for (const ModelEntry& model : lists.models.models()) {
    for (const SkinEntry& skin : model.Skins) {
      if (skin.IsOriginal || skin.PK3File == kUserDefinedPackage) continue;
      names.insert(model.Name + "/" + skin.Name);
    }
  }
  for (const BotListEntry& bot : lists.bots.entries()) {
    if (!bot.IsStandard) names.insert(bot.Name);
  }
  return names;
}

ScanSummary Summarize(const BaseLists& after, const BaseLists& before) {
  ScanSummary summary;
  for (const ModelEntry& model : after.models.models()) {
    const auto skins = std::count_if(
        model.Skins.begin(), model.Skins.end(), [](const SkinEntry& skin) {
          return !skin.IsOriginal && skin.PK3File != kUserDefinedPackage;
        });
    summary.skins += static_cast<std::size_t>(skins);
    summary.models += !model.IsOriginal && skins > 0 ? 1 : 0;
  }
  for (const BotListEntry& bot : after.bots.entries()) {
    summary.bots += bot.IsStandard ? 0 : 1;
  }
  const std::set<std::string> now = NamesOfAddOns(after);
  const std::set<std::string> then = NamesOfAddOns(before);
  std::set_difference(now.begin(), now.end(), then.begin(), then.end(),
                      std::back_inserter(summary.added));
  std::set_difference(then.begin(), then.end(), now.begin(), now.end(),
                      std::back_inserter(summary.gone));
  return summary;
}

}  // namespace

void ParsePackageListing(std::string_view listing,
                         std::string_view package_name, BaseLists& lists,
                         Prompts& prompts, Notes& notes) {
  ListingReader reader(package_name, lists, prompts, notes);
  LineReader lines(listing);
  while (const auto line = lines.Next()) reader.Read(*line);
}

bool ScanBaseq3(const std::filesystem::path& gameFolder, BaseLists& lists,
                Prompts& prompts, const ScanProgress& progress, Notes& notes) {
  const std::filesystem::path folder = PackageFolder(gameFolder);
  const std::vector<std::filesystem::path> names = PackagesIn(folder);
  for (std::size_t done = 0; done < names.size(); ++done) {
    if (progress && !progress(done, names.size())) return false;
    ScanPackage(folder / names[done], lists, prompts, notes);
  }
  return !progress || progress(names.size(), names.size());
}

std::string Describe(const ScanSummary& summary) {
  const auto count = [](std::size_t number, std::string_view one,
                        std::string_view several) {
    return Localized(number == 1 ? one : several, {std::to_string(number)});
  };
  const auto names = [](const std::vector<std::string>& all) {
    constexpr std::size_t kMaxNames = 20;
    std::string text;
    for (std::size_t at = 0; at < std::min(all.size(), kMaxNames); ++at) {
      text += (at == 0 ? "" : ", ") + Utf8FromGameText(all[at]);
    }
    if (all.size() <= kMaxNames) return text;
    return Localized("%1 and %2 more",
                     {text, std::to_string(all.size() - kMaxNames)});
  };
  std::string text = Localized(
      "Add-ons: %1, %2, %3.",
      {count(summary.models, Localizable("%1 model"), Localizable("%1 models")),
       count(summary.skins, Localizable("%1 skin"), Localizable("%1 skins")),
       count(summary.bots, Localizable("%1 bot"), Localizable("%1 bots"))});
  if (!summary.added.empty()) {
    text += " " + Localized("New: %1.", {names(summary.added)});
  }
  if (!summary.gone.empty()) {
    text += " " + Localized("Gone: %1.", {names(summary.gone)});
  }
  return text;
}

std::optional<ScanSummary> CheckBaseq3(
    ProgramSettings& settings, BaseLists& lists, CatalogueSelection& selection,
    Prompts& prompts, const ScanProgress& progress, Notes& notes) {
  const auto refuse = [&prompts](std::string text) {
    prompts.Show({.title = "Can't check folder",
                  .text = std::move(text),
                  .icon = MessageIcon::kExclamation});
    return std::nullopt;
  };
  if (settings.Q3Baseq3.empty()) {
    return refuse(
        "Quake III Arena folder isn't set. Use 'Program/Options' to set it.");
  }
  const std::filesystem::path game = PathFromBytes(settings.Q3Baseq3);
  if (!IsFolder(PackageFolder(game))) {
    return refuse(Localized(
        "There is no folder baseq3 in '%1'. The lists stay as they are.",
        {Utf8FromPath(game)}));
  }
  BaseLists scanned = lists;
  CatalogueSelection moved = selection;
  scanned.bots.ResetBotList();
  scanned.models.PurgeScannedModels(&moved);
  if (!ScanBaseq3(game, scanned, prompts, progress, notes)) {
    return std::nullopt;
  }
  scanned.bots.SortBotList();
  scanned.models.SortCatalogue(&moved);
  ScanSummary summary = Summarize(scanned, lists);
  lists = std::move(scanned);
  selection = moved;
  settings.BaseQ3Check = true;
  return summary;
}

}  // namespace fragsmith
