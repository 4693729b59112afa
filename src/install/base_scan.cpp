#include "install/base_scan.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "install/game_folder.h"
#include "install/package.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Boxes about one package; a hostile one could ask for any number of them.
constexpr int kMostBoxes = 10;

/// The text from that place up to the next end.
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
    if (!skin || !IsStorable(line)) return;
    std::string iconFile(line);
    std::replace(iconFile.begin(), iconFile.end(), '/', '\\');
    lists_.models.AddModelSkin(*model, *skin, package_, iconFile);
  }

  void ReadCharacteristicFile(std::string_view line) {
    constexpr std::string_view kEnd = "_c.c";
    if (!Contains(line, kEnd)) return;
    const std::optional<std::size_t> folder = Behind(line, "botfiles/bots/");
    if (folder) AddBot(Between(line, *folder, kEnd), scriptSeen_);
  }

  void ReadScript(std::string_view line) {
    constexpr std::string_view kEnd = ".bot";
    if (!Contains(line, kEnd)) return;
    const std::optional<std::size_t> folder = Behind(line, "scripts/");
    if (!folder) return;
    // From here on: also bots whose script is another's count as having one.
    scriptSeen_ = true;
    AddBot(Between(line, *folder, kEnd), true);
  }

  void ReadBotsTxt(std::string_view line) {
    if (!Contains(line, "/bots.txt")) return;
    const std::string text =
        Utf8FromGameText(package_) + " has an additional 'bots.txt' file!";
    if (++boxes_ > kMostBoxes) {
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

  /// The place behind the folder, which is looked for ignoring case.
  static std::optional<std::size_t> Behind(std::string_view line,
                                           std::string_view folder) {
    const auto place = static_cast<std::size_t>(
        std::search(
            line.begin(), line.end(), folder.begin(), folder.end(),
            [](char left, char right) { return ToLower(left) == right; }) -
        line.begin());
    if (place == line.size()) return std::nullopt;
    return place + folder.size();
  }

  /// The lists hold their texts in double quotes and cannot hold one.
  bool IsStorable(std::string_view field) {
    if (!Contains(field, "\"") && !Contains(package_, "\"")) return true;
    AddNote(ShownText(field) +
            " is skipped: the lists cannot hold a double quote.");
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

/// The packages to read, by name, without the game's own. That one is known by
/// its exact spelling, so a PAK0.PK3 is read like any other.
std::vector<std::filesystem::path> PackagesIn(
    const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> names = ListFiles(folder, ".pk3");
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
               .text = "The package is skipped: its name has characters that "
                       "the game's texts lack."});
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

bool CheckBaseq3(ProgramSettings& settings, BaseLists& lists,
                 CatalogueSelection& selection, Prompts& prompts,
                 const ScanProgress& progress, Notes& notes) {
  if (settings.Q3Baseq3.empty()) {
    prompts.Show({.title = "Can't check folder",
                  .text = "Quake III Arena folder isn't set. Use "
                          "'Program/Options' to set it.",
                  .icon = MessageIcon::kExclamation});
    return false;
  }
  BaseLists scanned = lists;
  CatalogueSelection moved = selection;
  scanned.bots.ResetBotList();
  scanned.models.PurgeScannedModels(&moved);
  if (!ScanBaseq3(PathFromBytes(settings.Q3Baseq3), scanned, prompts, progress,
                  notes)) {
    return false;
  }
  scanned.bots.SortBotList();
  scanned.models.SortCatalogue(&moved);
  lists = std::move(scanned);
  selection = moved;
  settings.BaseQ3Check = true;
  return true;
}

}  // namespace fragsmith
