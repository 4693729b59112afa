#ifndef FRAGSMITH_CLI_MATCH_SOURCE_H_
#define FRAGSMITH_CLI_MATCH_SOURCE_H_

#include <optional>
#include <string>
#include <vector>

#include "cli/bot_source.h"
#include "cli/command.h"
#include "model/bot.h"
#include "trial/match_bots.h"

namespace fragsmith {

/// A bot, or how the program ends without. The user was told.
struct MatchBotOutcome {
  std::optional<MatchBot> bot;
  ExitStatus refusal = kFailed;
};

/// "SOURCE" or "NAME@SOURCE"; nothing for a bot of the installed game.
std::optional<BotSource> MatchSourceOf(const std::string& text);

/// What an argument of a command names: a source as for `check`, with NAME@
/// before it where that holds several bots, a document, or a bot of the
/// installed game.
MatchBotOutcome ReadMatchBot(const std::string& text, CommandContext& context);

/// The bot as a save would write it.
MatchBotOutcome MatchBotOfModel(const Bot& bot, CommandContext& context);

/// The bots in a folder, each as an argument would name it: documents, bots in
/// packages, and bots of loose files.
std::vector<std::string> MatchSourcesIn(const std::string& folder);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_MATCH_SOURCE_H_
