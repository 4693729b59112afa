#ifndef FRAGSMITH_SESSION_LOAD_BOT_H_
#define FRAGSMITH_SESSION_LOAD_BOT_H_

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "botfiles/standard_identity.h"
#include "install/bot_list.h"
#include "install/model_catalogue.h"
#include "model/bot.h"
#include "support/notes.h"
#include "support/prompts.h"

namespace fragsmith {

/// The five files of a bot, by the numbers that choose one of them for a load
/// (`LoType`); any other number loads them all.
enum class BotFile {
  kDescription = 0,
  kCharacteristics = 1,
  kChat = 2,
  kItemWeights = 3,
  kWeaponWeights = 4,
};

/// The largest of a bot's files that is read. Real ones have some kilobytes,
/// and a file of nothing but short chat lines takes forty times its size in
/// memory until it is printed.
inline constexpr std::size_t kMostBotFileBytes = std::size_t{4} << 20U;

/// How the name of a bot's file goes on behind the bot's name.
std::string_view FileSuffix(BotFile file);

/// What a load knows of the installation, and whom it tells.
struct LoadEnvironment {
  const ModelCatalogue& models;
  const BotList& bots;
  Prompts& prompts;
};

/// A bot as it was read.
struct LoadedBot {
  Bot bot;
  Notes notes;
  /// By parameter: what the game reads where the bot holds something else.
  std::map<int, Value> plain_values;
  int files_read = 0;
  /// A description was read that speaks of the arena lord.
  bool has_arena_lord = false;
};

/// The name behind which a path of the game's layout begins; compared with
/// its case, on every system with "/".
inline constexpr std::string_view kBotFilesFolder = "botfiles/bots";
inline constexpr std::string_view kScriptsFolder = "scripts";

struct FolderLoadOptions {
  /// The description lies in the scripts folder beside botfiles/bots.
  bool uses_layout = false;
  bool loads_description = true;
};

/// Reads the bot of that name (what stands before "_c.c") from the folder
/// into a new record. A file that is missing is told and left out.
LoadedBot LoadBotFromFolder(const std::string& name,
                            const std::filesystem::path& folder,
                            FolderLoadOptions options,
                            const LoadEnvironment& environment);

/// Reads one file into a bot that is there already, a chat file in the place
/// of its chats. The file's name must end in the suffix of its kind, case and
/// all: otherwise nothing is read and the answer is false. Name, gender,
/// comment and version stay as they are.
bool LoadSingleFile(BotFile file, const std::filesystem::path& path,
                    LoadedBot& loaded, Prompts& prompts);

/// Takes the bytes of one of the files into the bot. For a whole bot the
/// characteristic file gives the identity too; `name` is what the files are
/// called by, `shown` the file in notes.
enum class LoadScope { kWholeBot, kOneFile };
void ReadBotFile(BotFile file, LoadScope scope, std::string_view bytes,
                 const std::string& name, const std::string& shown,
                 LoadedBot& loaded);

/// Gives model and skin the catalogue's spelling where it has them.
void UseCatalogueSpelling(Bot& bot, const ModelCatalogue& models);

/// Puts the plain values in the place of those that were read oddly.
void TakeValuesAsGame(LoadedBot& loaded, const ModelCatalogue& models);

/// Names of the game's own bots in the list.
StandardBotNames StandardNamesOf(const BotList& bots);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_LOAD_BOT_H_
