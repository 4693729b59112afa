#ifndef FRAGSMITH_CLI_BOT_SOURCE_H_
#define FRAGSMITH_CLI_BOT_SOURCE_H_

#include <filesystem>
#include <optional>
#include <string>

#include "checks/bot_location.h"
#include "cli/command.h"
#include "session/bot_document.h"
#include "session/load_bot.h"

namespace fragsmith {

/// The arguments by which a command is told of a bot.
struct BotSource {
  std::string source;
  std::string name;  ///< Which bot, where there is more than one.
  bool uses_layout = false;
  bool no_description = false;
  /// The game's folder, for what the bot's files include; empty for that of
  /// the settings.
  std::string game_folder = {};
  /// The files are looked at as the game finds them: a folder botfiles/bots
  /// with scripts beside is the game's without being told.
  bool is_for_game = false;
  /// Oddly written values are taken as the game reads them.
  bool as_game = false;
};

/// The files, or how the program ends without. The user was told.
struct BotLocationOutcome {
  std::optional<BotLocation> found;
  ExitStatus refusal = kFailed;
};

/// A bot as a command got it, with the lists of the program.
struct SourceBot {
  LoadedBot loaded;
  /// Nothing for a document.
  std::optional<BotLocation> location;
};

/// The bot, or how the program ends without one. The user was told.
struct BotSourceOutcome {
  std::optional<SourceBot> bot;
  ExitStatus refusal = kFailed;
};

/// Adds the arguments to a command that takes files of bots.
void AddBotSource(CLI::App& command, BotSource& options);

/// The option for the game's folder, for a command that wants it.
void AddGameFolder(CLI::App& command, BotSource& options);

/// The game's folder of the options, else that of the settings.
std::filesystem::path GameFolderOf(const BotSource& options,
                                   CommandContext& context);
/// Looks up what the files of a bot include: in the game, and in the player's
/// own folder where they lie in that.
IncludeLookup GameLookUpFor(const BotSource& options,
                            const std::optional<BotLocation>& location,
                            CommandContext& context);

/// Adds --as-game.
void AddAsGame(CLI::App& command, bool& as_game);

/// Whether the bot is one of files, and not a document.
bool IsOfFiles(const BotSource& options);

/// Looks which bot of a folder, a file or a package is meant. A game's folder
/// stands for the botfiles/bots in it.
BotLocationOutcome FindBot(const BotSource& options, CommandContext& context);

/// Reads a bot out of a folder, by one of its files, or out of a package, and
/// prints the notes of the load.
BotSourceOutcome ReadBotSource(const BotSource& options,
                               const ModelCatalogue& models,
                               const BotList& bots, CommandContext& context);

/// The same, and also from a document: "-" or a file named *.json.
BotSourceOutcome ReadBotOrDocument(const BotSource& options,
                                   CommandContext& context);

/// The bytes of a document from a file, or from the input for "-".
Result<std::string> ReadDocumentBytes(const std::string& name,
                                      CommandContext& context);

/// Reads a document from a file, or from the input for "-", and prints the
/// notes on one of a newer version.
Result<BotDocument> ReadDocument(const std::string& name,
                                 CommandContext& context);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_BOT_SOURCE_H_
