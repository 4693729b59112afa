#include "session/save_bot.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/weight_file.h"
#include "chat/chat_file.h"
#include "install/packages/package_writer.h"
#include "model/characteristic_catalogue.h"
#include "session/identity_rules.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// One file of the set, by its name and place in the game's layout.
struct SetFile {
  BotFile file;
  std::string_view folder;
  ParameterId name_field;
  std::string (*write)(const Bot& bot, const Author& author);
};

/// In the order in which they are written and packed.
constexpr std::array<SetFile, 5> kFileSet = {{
    {BotFile::kCharacteristics, kBotFilesFolder, kCharacteristicFileField,
     WriteCharacteristicFile},
    {BotFile::kWeaponWeights, kBotFilesFolder, kWeaponFileField,
     WriteWeaponWeightFile},
    {BotFile::kItemWeights, kBotFilesFolder, kItemFileField,
     WriteItemWeightFile},
    {BotFile::kChat, kBotFilesFolder, kChatFileField, WriteChatFile},
    {BotFile::kDescription, kScriptsFolder, kDescriptionFileField,
     WriteDescriptionFile},
}};

const SetFile& InSet(BotFile file) {
  return *std::find_if(kFileSet.begin(), kFileSet.end(),
                       [file](const SetFile& one) { return one.file == file; });
}

std::optional<Error> MakeFolder(const fs::path& folder) {
  std::error_code reason;
  if (IsFolder(folder)) return std::nullopt;
  fs::create_directory(folder, reason);
  if (!reason) return std::nullopt;
  return Error{
      .what = Localized("The folder cannot be made: %1.", {reason.message()}),
      .file = Utf8FromPath(folder),
      .line = 0,
      .advice = Localized("Choose another folder.")};
}

/// The bytes of the files by their kind: the new ones, and for those that are
/// left alone what lies there.
using FileBytes = std::map<BotFile, std::string>;

Result<void> MakeBotPackage(const Bot& bot, const SavePlan& plan,
                            FileBytes bytes, SavedBot& saved) {
  for (const auto& [file, path] : plan.left_alone) {
    Result<std::string> old = ReadFile(path, kMaxBotFileBytes);
    if (!old) return Failure(old.error());
    bytes.insert_or_assign(file, *std::move(old));
  }
  std::vector<PackageEntry> entries;
  entries.reserve(std::size(kFileSet));
  for (const SetFile& file : kFileSet) {
    entries.push_back(
        {std::string(file.folder) + "/" + bot.Text(file.name_field),
         std::move(bytes[file.file])});
  }
  Result<void> packed = WritePackage(*plan.package, entries);
  if (!packed) return packed;
  saved.written.push_back(*plan.package);
  const Result<std::string> package = ReadFile(*plan.package);
  if (package) {
    saved.package = OriginFile{.path = *plan.package,
                               .fingerprint = FingerprintOf(*package)};
  }
  return {};
}

void SavePackage(const Bot& bot, const SavePlan& plan, FileBytes bytes,
                 Prompts& prompts, SavedBot& saved) {
  saved.counts_package = true;
  const Result<void> made = MakeBotPackage(bot, plan, std::move(bytes), saved);
  Message message = {
      .title = std::string(kProgramTitle),
      .text = Utf8FromPath(*plan.package) + " created succesfully"};
  if (!made) {
    saved.error = made.error();
    message.text = Describe(made.error());
  }
  prompts.Show(message);
}

}  // namespace

std::string BytesOf(BotFile file, const Bot& bot, const Author& author) {
  return InSet(file).write(bot, author);
}

fs::path FileNameOf(BotFile file, const Bot& bot) {
  return PathFromGameText(bot.Text(InSet(file).name_field));
}

fs::path PackageNameOf(const Bot& bot) {
  return PathFromGameText(BotPackageName(bot.Name()));
}

SavePlan PlanOf(const Bot& bot, const SaveTarget& target) {
  SavePlan plan;
  const auto& [folder, options] = target;
  if (options.uses_layout) {
    for (const char* const name : {"botfiles", "botfiles/bots", "scripts"}) {
      plan.folders.push_back((folder / name).make_preferred());
    }
  }
  for (const SetFile& file : kFileSet) {
    fs::path path = folder;
    if (options.uses_layout) path /= fs::path(file.folder).make_preferred();
    plan.files.emplace(file.file, path / FileNameOf(file.file, bot));
  }
  if (options.makes_package) plan.package = folder / PackageNameOf(bot);
  return plan;
}

SavedBot SaveFiles(const Bot& bot, const SavePlan& plan, const Author& author,
                   Prompts& prompts) {
  SavedBot saved;
  if (const std::optional<Message> refusal = NameRefusal(bot.Name())) {
    saved.error = Error{.what = refusal->text,
                        .file = {},
                        .line = 0,
                        .advice = Localized("Give the bot another name.")};
    return saved;
  }
  for (const fs::path& folder : plan.folders) {
    saved.error = MakeFolder(folder);
    if (saved.error) return saved;
  }
  FileBytes bytes;
  for (const SetFile& file : kFileSet) {
    const auto known = plan.contents.find(file.file);
    // What goes into a list of bots is no file that a package could take.
    const auto target = plan.files.find(file.file);
    const bool is_own =
        known != plan.contents.end() &&
        (target == plan.files.end() ||
         EndsWithIgnoringCase(BytesFromPath(target->second.filename()),
                              FileSuffix(file.file)));
    bytes.emplace(file.file, is_own ? known->second : file.write(bot, author));
  }
  for (const SetFile& file : kFileSet) {
    const auto target = plan.files.find(file.file);
    if (target == plan.files.end()) continue;
    const auto known = plan.contents.find(file.file);
    const std::string& content =
        known == plan.contents.end() ? bytes[file.file] : known->second;
    const Result<void> done = SaveFile(target->second, content);
    if (!done) {
      saved.error = done.error();
      return saved;
    }
    saved.written.push_back(target->second);
    saved.files.emplace(file.file,
                        OriginFile{.path = target->second,
                                   .fingerprint = FingerprintOf(content)});
  }
  if (plan.package) SavePackage(bot, plan, std::move(bytes), prompts, saved);
  return saved;
}

SavedBot SaveBot(const Bot& bot, const fs::path& folder, SaveOptions options,
                 const Author& author, Prompts& prompts) {
  return SaveFiles(bot, PlanOf(bot, {folder, options}), author, prompts);
}

Author AuthorOf(const ProgramSettings& settings) {
  return {settings.UserName, settings.Email, settings.Http};
}

}  // namespace fragsmith
