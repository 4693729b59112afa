#ifndef FRAGSMITH_CLI_BOT_SOURCE_H_
#define FRAGSMITH_CLI_BOT_SOURCE_H_

#include <filesystem>
#include <optional>
#include <string>

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
};

/// A bot as a command got it, with the lists of the program.
struct SourceBot {
  LoadedBot loaded;
  /// What its files are called by (8-bit), and where they are: in a folder or
  /// a package. Both are empty for a document.
  std::string name;
  std::filesystem::path folder;
  std::filesystem::path package;
};

/// The bot, or how the program ends without one. The user was told.
struct BotSourceOutcome {
  std::optional<SourceBot> bot;
  ExitStatus refusal = kFailed;
};

/// Adds the arguments to a command that takes files of bots.
void AddBotSource(CLI::App& command, BotSource& options);

/// Reads a bot out of a folder, by one of its files, or out of a package, and
/// prints the notes of the load.
BotSourceOutcome ReadBotSource(const BotSource& options,
                               const ModelCatalogue& models,
                               const BotList& bots, CommandContext& context);

/// The same, and also from a document: "-" or a file named *.json.
BotSourceOutcome ReadBotOrDocument(const BotSource& options,
                                   CommandContext& context);

/// Reads a document from a file, or from the stream for "-".
Result<BotDocument> ReadDocument(const std::string& name, std::istream& in);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_BOT_SOURCE_H_
