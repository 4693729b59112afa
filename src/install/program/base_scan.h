#ifndef FRAGSMITH_INSTALL_PROGRAM_BASE_SCAN_H_
#define FRAGSMITH_INSTALL_PROGRAM_BASE_SCAN_H_

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "install/program/bot_list.h"
#include "install/program/model_catalogue.h"
#include "install/program/settings_file.h"
#include "support/notes.h"
#include "support/prompts.h"

namespace fragsmith {

/// Called before each package with the number of those that are done and of
/// all. False cancels the scan.
using ScanProgress = std::function<bool(std::size_t done, std::size_t total)>;

/// What a scan fills.
struct BaseLists {
  ModelCatalogue models;
  BotList bots;
};

/// Adds the skins, told by their icons, and the bots of a package's table of
/// contents: one path for each line. The package name and the paths are game
/// text.
void ParsePackageListing(std::string_view listing,
                         std::string_view package_name, BaseLists& lists,
                         Prompts& prompts, Notes& notes);

/// Reads all packages of the game's folder but the game's own. False when it
/// was cancelled; the lists are then half filled.
bool ScanBaseq3(const std::filesystem::path& gameFolder, BaseLists& lists,
                Prompts& prompts, const ScanProgress& progress, Notes& notes);

/// What a scan found that is not the game's own. A skin is "Model/Skin"; all
/// names are game text.
struct ScanSummary {
  std::size_t models = 0;
  std::size_t skins = 0;
  std::size_t bots = 0;
  /// Those that the lists did not have before, and those that they lost.
  std::vector<std::string> added;
  std::vector<std::string> gone;
};

/// The summary in sentences, UTF-8; of many names the first.
std::string Describe(const ScanSummary& summary);

/// Brings the lists up to date with the packages in the game's folder; the
/// selection follows its model and skin. After it both lists are sorted and
/// the settings know of the scan. Nothing when the game's folder is not set or
/// has no baseq3, which is shown, or the scan was cancelled: nothing has
/// changed then.
std::optional<ScanSummary> CheckBaseq3(
    ProgramSettings& settings, BaseLists& lists, CatalogueSelection& selection,
    Prompts& prompts, const ScanProgress& progress, Notes& notes);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_BASE_SCAN_H_
