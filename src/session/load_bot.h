#ifndef FRAGSMITH_SESSION_LOAD_BOT_H_
#define FRAGSMITH_SESSION_LOAD_BOT_H_

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <variant>

#include "botfiles/header_comment.h"
#include "botfiles/standard_identity.h"
#include "install/program/bot_list.h"
#include "install/program/model_catalogue.h"
#include "model/bot.h"
#include "model/bot_place.h"
#include "session/bot_file.h"
#include "session/bot_origin.h"
#include "support/notes.h"
#include "support/prompts.h"

namespace fragsmith {

/// What a load reads (`LoType`): all of the bot, or one of its files.
using LoadedPart = std::variant<WholeBot, BotFile>;

/// What a load knows of the installation, and whom it tells.
struct LoadEnvironment {
  const ModelCatalogue& models;
  const BotList& bots;
  Prompts& prompts;
  /// Whom a save names in the head of the files.
  Author author = {};
};

/// A bot as it was read.
struct LoadedBot {
  Bot bot;
  Notes notes;
  /// By parameter: what the game reads where the bot holds something else.
  std::map<ParameterId, Value> plain_values;
  OriginFiles files;                ///< Those that were read.
  std::map<BotFile, Error> unread;  ///< Those that are there and could not be.
  FolderLoadOptions options;
  /// A description was read that speaks of the arena lord.
  bool has_arena_lord = false;
  /// Where and how the head of the characteristic file names the author.
  Note author_line;
};

/// Reads the bot of that name (what stands before "_c.c") from the folder
/// into a new record. A file that is missing is told and left out.
LoadedBot LoadBotFromFolder(const std::string& name,
                            const std::filesystem::path& folder,
                            FolderLoadOptions options,
                            const LoadEnvironment& environment);

/// What in its name keeps a file from being read as one of that kind, as the
/// end of a sentence, without its full stop, for Localized(). Empty where
/// nothing does.
std::string_view FaultOfName(BotFile file, const std::filesystem::path& path);

/// Reads one file into a bot that is there already, a chat file in the place
/// of its chats. The file's name must end in the suffix of its kind, case and
/// all: otherwise nothing is read and the answer is false. Name, gender,
/// comment and version stay as they are.
bool LoadSingleFile(BotFile file, const std::filesystem::path& path,
                    LoadedBot& loaded, Prompts& prompts);

/// Takes the bytes of one of the files into the bot. For a whole bot the
/// characteristic file gives the identity too; `name` is what the files are
/// called by, `shown` the file in notes.
void ReadBotFile(BotFile file, const LoadedPart& part, std::string_view bytes,
                 const std::string& name, const std::string& shown,
                 LoadedBot& loaded);

/// Tells when a save would name another author than the files do.
void NoteOtherAuthor(const Author& author, LoadedBot& loaded);

/// Gives model and skin the catalogue's spelling where it has them.
void UseCatalogueSpelling(Bot& bot, const ModelCatalogue& models);

/// What the load noticed, where its values stand in the bot as it is shown.
LoadReport ReportOf(const LoadedBot& loaded, const Bot& shown);

/// Puts the game's values in the place of those that were read oddly and that
/// nobody has changed since.
void TakeValuesAsGame(Bot& bot, const LoadReport& report,
                      const ModelCatalogue& models);

/// Names of the game's own bots in the list.
StandardBotNames StandardNamesOf(const BotList& bots);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_LOAD_BOT_H_
