#include "session/save_bot.h"

#include <array>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/weight_file.h"
#include "chat/chat_file.h"
#include "install/package.h"
#include "model/characteristic_catalogue.h"
#include "session/identity_checks.h"
#include "session/load_bot.h"
#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// One file of the set, by its name and place in the game's layout.
struct SetFile {
  std::string_view folder;
  int name_field;
  std::string (*write)(const Bot& bot, const Author& author);
};

/// In the order in which they are written and packed.
constexpr std::array<SetFile, 5> kFileSet = {{
    {kBotFilesFolder, kCharacteristicFileField, WriteCharacteristicFile},
    {kBotFilesFolder, kWeaponWeightsIndex, WriteWeaponWeightFile},
    {kBotFilesFolder, kItemWeightsIndex, WriteItemWeightFile},
    {kBotFilesFolder, kChatFileIndex, WriteChatFile},
    {kScriptsFolder, kDescriptionFileField, WriteDescriptionFile},
}};

fs::path TargetOf(const SetFile& file, const Bot& bot, const fs::path& folder,
                  SaveOptions options) {
  fs::path path = folder;
  if (options.uses_layout) path /= fs::path(file.folder).make_preferred();
  return path / PathFromGameText(bot.Text(file.name_field));
}

std::optional<Error> MakeFolder(const fs::path& folder) {
  std::error_code reason;
  if (IsFolder(folder)) return std::nullopt;
  fs::create_directory(folder, reason);
  if (!reason) return std::nullopt;
  return Error{.what = "The folder cannot be made: " + reason.message() + ".",
               .file = Utf8FromPath(folder),
               .line = 0,
               .advice = "Choose another folder."};
}

std::optional<Error> MakeLayout(const fs::path& folder) {
  for (const char* const name : {"botfiles", "botfiles/bots", "scripts"}) {
    const fs::path wanted = (folder / name).make_preferred();
    if (std::optional<Error> error = MakeFolder(wanted)) return error;
  }
  return std::nullopt;
}

void MakeBotPackage(const Bot& bot, const fs::path& folder,
                    std::array<std::string, kFileSet.size()>& bytes,
                    Prompts& prompts, SavedBot& saved) {
  std::vector<PackageEntry> entries;
  for (std::size_t place = 0; place < kFileSet.size(); ++place) {
    const SetFile& file = kFileSet.at(place);
    entries.push_back(
        {std::string(file.folder) + "/" + bot.Text(file.name_field),
         std::move(bytes.at(place))});
  }
  const fs::path path = folder / PathFromGameText("bot-" + bot.Name() + ".pk3");
  const Result<void> packed = WritePackage(path, entries);
  saved.counts_package = true;
  Message message = {.title = std::string(kProgramTitle), .text = {}};
  if (packed) {
    saved.written.push_back(path);
    message.text = Utf8FromPath(path) + " created succesfully";
  } else {
    saved.error = packed.error();
    message.text = Describe(packed.error());
  }
  prompts.Show(message);
}

}  // namespace

SavedBot SaveBot(const Bot& bot, const fs::path& folder, SaveOptions options,
                 const Author& author, Prompts& prompts) {
  SavedBot saved;
  if (const std::optional<Message> refusal = NameRefusal(bot.Name())) {
    saved.error = Error{.what = refusal->text,
                        .file = {},
                        .line = 0,
                        .advice = "Give the bot another name."};
    return saved;
  }
  if (options.uses_layout) {
    saved.error = MakeLayout(folder);
    if (saved.error) return saved;
  }
  std::array<std::string, kFileSet.size()> bytes;
  for (std::size_t place = 0; place < kFileSet.size(); ++place) {
    const SetFile& file = kFileSet.at(place);
    bytes.at(place) = file.write(bot, author);
  }
  for (std::size_t place = 0; place < kFileSet.size(); ++place) {
    fs::path path = TargetOf(kFileSet.at(place), bot, folder, options);
    const Result<void> done = SaveFile(path, bytes.at(place));
    if (!done) {
      saved.error = done.error();
      return saved;
    }
    saved.written.push_back(std::move(path));
  }
  if (options.makes_package) {
    MakeBotPackage(bot, folder, bytes, prompts, saved);
  }
  return saved;
}

std::vector<fs::path> TargetFiles(const Bot& bot, const fs::path& folder,
                                  SaveOptions options) {
  std::vector<fs::path> paths;
  paths.reserve(kFileSet.size());
  for (const SetFile& file : kFileSet) {
    paths.push_back(TargetOf(file, bot, folder, options));
  }
  return paths;
}

Author AuthorOf(const ProgramSettings& settings) {
  return {settings.UserName, settings.Email, settings.Http};
}

}  // namespace fragsmith
