#include "session/load_from_package.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "support/code_page.h"
#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// One file of the bot inside the package, with backslashes.
std::string PathInPackage(BotFile file, const std::string& name) {
  const std::string_view folder =
      file == BotFile::kDescription ? "scripts\\" : "botfiles\\bots\\";
  return std::string(folder) + name + std::string(FileSuffix(file));
}

std::string BareName(const std::string& path_in_package) {
  return path_in_package.substr(path_in_package.find_last_of("/\\") + 1);
}

std::vector<BotFile> FilesToRead(const PackagedBot& wanted) {
  const bool is_one = wanted.LoType >= 0 && wanted.LoType <= 4;
  if (is_one) return {static_cast<BotFile>(wanted.LoType)};
  std::vector<BotFile> files = {BotFile::kCharacteristics, BotFile::kChat,
                                BotFile::kItemWeights, BotFile::kWeaponWeights};
  if (wanted.withScript) files.push_back(BotFile::kDescription);
  return files;
}

/// Takes files out of one package.
class PackageReader {
 public:
  PackageReader(const PackagedBot& wanted, const UnzipTool& tool,
                fs::path folder, Prompts& prompts)
      : wanted_(wanted),
        tool_(tool),
        folder_(std::move(folder)),
        prompts_(prompts) {}

  /// False when the file could not be had; the user was told.
  bool Read(BotFile file, LoadScope scope, LoadedBot& loaded) {
    const std::string path = PathInPackage(file, wanted_.name);
    if (!ExtractFromPackage(tool_, wanted_.package, path, folder_, prompts_)) {
      // A tool that took too long has had its message already.
      return false;
    }
    const std::optional<fs::path> extracted = FindFile(folder_, BareName(path));
    if (!extracted) return Refuse();
    const Result<std::string> bytes = ReadFile(*extracted, kMostBotFileBytes);
    std::error_code ignored;
    fs::remove(*extracted, ignored);
    if (!bytes) return Refuse();
    ReadBotFile(file, scope, *bytes, wanted_.name, Shown(path), loaded);
    return true;
  }

  bool Refuse() {
    prompts_.Show({.title = "Load failed!",
                   .text = "Bot loading failed",
                   .icon = MessageIcon::kExclamation});
    return false;
  }

 private:
  std::string Shown(std::string path) const {
    std::replace(path.begin(), path.end(), '\\', '/');
    return Utf8FromPath(wanted_.package.filename()) + "/" +
           Utf8FromGameText(path);
  }

  const PackagedBot& wanted_;
  const UnzipTool& tool_;
  fs::path folder_;
  Prompts& prompts_;
};

}  // namespace

std::optional<LoadedBot> LoadBotFromPackage(
    const PackagedBot& wanted, const Bot& current, const UnzipTool& tool,
    TemporaryFolder& temporary, const LoadEnvironment& environment) {
  const Result<fs::path> folder = temporary.GetTempFolder();
  PackageReader reader(wanted, tool, folder.value_or(fs::path()),
                       environment.prompts);
  if (!folder) {
    reader.Refuse();
    return std::nullopt;
  }
  const std::vector<BotFile> files = FilesToRead(wanted);
  const bool is_whole = files.size() > 1;
  LoadedBot loaded;
  if (!is_whole) loaded.bot = current;
  for (const BotFile file : files) {
    if (!reader.Read(file,
                     is_whole ? LoadScope::kWholeBot : LoadScope::kOneFile,
                     loaded)) {
      return std::nullopt;
    }
  }
  const StandardBotNames standard = StandardNamesOf(environment.bots);
  if (is_whole && wanted.loads_description) {
    if (wanted.withScript) {
      FillStandardIdentity(loaded.bot, loaded.has_arena_lord, standard);
    } else {
      SetStandardIdentity(loaded.bot, standard);
    }
  }
  UseCatalogueSpelling(loaded.bot, environment.models);
  return loaded;
}

}  // namespace fragsmith
