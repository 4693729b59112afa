#include "session/load_from_package.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "install/packages/package.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

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

std::string WithSlashes(std::string path_in_package) {
  std::replace(path_in_package.begin(), path_in_package.end(), '\\', '/');
  return path_in_package;
}

std::vector<BotFile> FilesToRead(const PackagedBot& wanted) {
  if (const auto* const one = std::get_if<BotFile>(&wanted.LoType)) {
    return {*one};
  }
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
        prompts_(prompts) {
    Notes odd_entries;
    names_ = ListPackageEntries(wanted.package, odd_entries)
                 .value_or(std::vector<std::string>());
  }

  /// False when the file could not be had; the user was told.
  bool Read(BotFile file, LoadedBot& loaded) {
    const std::string path = PathInPackage(file, wanted_.name);
    const Extraction extraction =
        ExtractFromPackage(tool_, wanted_.package, path, folder_, prompts_);
    if (extraction.end == ExtractionEnd::kNotStarted) {
      return Refuse(extraction.reason);
    }
    // A tool that took too long has had its message already.
    if (extraction.end != ExtractionEnd::kEnded) return false;
    const std::optional<fs::path> extracted = FindFile(folder_, BareName(path));
    if (!extracted) {
      return Refuse(SpellingOf(path)
                        ? Localized("The unzip tool did not take '%1' out of "
                                    "the package. If it is so with every bot, "
                                    "check the WinZip folder in "
                                    "Program/Options.",
                                    {Shown(path)})
                        : std::string());
    }
    Result<std::string> bytes = ReadFile(*extracted, kMaxBotFileBytes);
    std::error_code ignored;
    fs::remove(*extracted, ignored);
    if (!bytes) {
      bytes.error().file = Shown(path);
      return Refuse(Describe(bytes.error()));
    }
    const std::string entry = SpellingOf(path).value_or(WithSlashes(path));
    ReadBotFile(file, wanted_.LoType, *bytes, wanted_.name, Shown(entry),
                loaded);
    loaded.files.insert_or_assign(
        file, OriginFile{.path = wanted_.package,
                         .entry = entry,
                         .fingerprint = FingerprintOf(*bytes)});
    return true;
  }

  /// The reason is empty or made of sentences.
  bool Refuse(const std::string& reason) {
    prompts_.Show({.title = "Load failed!",
                   .text = "Bot loading failed" +
                           (reason.empty() ? reason : ". " + reason),
                   .icon = MessageIcon::kExclamation});
    return false;
  }

 private:
  /// The name as the package has it; of several the last counts.
  std::optional<std::string> SpellingOf(const std::string& path) const {
    const std::string wanted = WithSlashes(path);
    const auto found = std::find_if(
        names_.rbegin(), names_.rend(), [&wanted](const std::string& name) {
          return EqualIgnoringCase(WithSlashes(name), wanted);
        });
    if (found != names_.rend()) return WithSlashes(*found);
    return std::nullopt;
  }

  std::string Shown(const std::string& path) const {
    return Utf8FromPath(wanted_.package.filename()) + "/" +
           Utf8FromGameText(WithSlashes(path));
  }

  const PackagedBot& wanted_;
  const UnzipTool& tool_;
  fs::path folder_;
  Prompts& prompts_;
  std::vector<std::string> names_;
};

}  // namespace

std::optional<LoadedBot> LoadBotFromPackage(
    const PackagedBot& wanted, const Bot& current, const UnzipTool& tool,
    TemporaryFolder& temporary, const LoadEnvironment& environment) {
  const Result<fs::path> folder = temporary.GetTempFolder();
  PackageReader reader(wanted, tool, folder.value_or(fs::path()),
                       environment.prompts);
  if (!folder) {
    reader.Refuse(Describe(folder.error()));
    return std::nullopt;
  }
  const std::vector<BotFile> files = FilesToRead(wanted);
  const bool is_whole = std::holds_alternative<WholeBot>(wanted.LoType);
  LoadedBot loaded;
  loaded.options.loads_description = wanted.loads_description;
  if (!is_whole) loaded.bot = current;
  for (const BotFile file : files) {
    if (!reader.Read(file, loaded)) return std::nullopt;
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
  NoteOtherAuthor(environment.author, loaded);
  return loaded;
}

}  // namespace fragsmith
