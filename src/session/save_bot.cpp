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
  std::string name;
  std::string bytes;
};

/// In the order in which they are written and packed.
std::array<SetFile, 5> FileSetOf(const Bot& bot, const Author& author) {
  return {{
      {kBotFilesFolder, bot.Text(kCharacteristicFileField),
       WriteCharacteristicFile(bot, author)},
      {kBotFilesFolder, bot.Text(kWeaponWeightsIndex),
       WriteWeaponWeightFile(bot, author)},
      {kBotFilesFolder, bot.Text(kItemWeightsIndex),
       WriteItemWeightFile(bot, author)},
      {kBotFilesFolder, bot.Text(kChatFileIndex), WriteChatFile(bot, author)},
      {kScriptsFolder, bot.Text(kDescriptionFileField),
       WriteDescriptionFile(bot, author)},
  }};
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
                    const std::array<SetFile, 5>& files, Prompts& prompts,
                    SavedBot& saved) {
  std::vector<PackageEntry> entries;
  entries.reserve(files.size());
  for (const SetFile& file : files) {
    entries.push_back({std::string(file.folder) + "/" + file.name, file.bytes});
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
  const std::array<SetFile, 5> files = FileSetOf(bot, author);
  for (const SetFile& file : files) {
    fs::path path = folder;
    if (options.uses_layout) path /= fs::path(file.folder).make_preferred();
    path /= PathFromGameText(file.name);
    const Result<void> done = SaveFile(path, file.bytes);
    if (!done) {
      saved.error = done.error();
      return saved;
    }
    saved.written.push_back(std::move(path));
  }
  if (options.makes_package) {
    MakeBotPackage(bot, folder, files, prompts, saved);
  }
  return saved;
}

Author AuthorOf(const ProgramSettings& settings) {
  return {settings.UserName, settings.Email, settings.Http};
}

}  // namespace fragsmith
