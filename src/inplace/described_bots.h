#ifndef FRAGSMITH_INPLACE_DESCRIBED_BOTS_H_
#define FRAGSMITH_INPLACE_DESCRIBED_BOTS_H_

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "model/bot.h"
#include "session/bot_origin.h"
#include "session/load_bot.h"
#include "session/save_bot.h"

namespace fragsmith {

/// A description of another name than the bot's files: the list of bots, or one
/// that may have others beside it.
bool IsList(const OriginFile& file, std::string_view called);

/// True for a list that describes the bot, or that is there and tells nothing
/// as it cannot be read.
bool IsListOf(const OriginFile& file, const BotHome& home);

/// The list of bots that described this one at its load and does not any more,
/// so that the plan makes a description of its own; nothing where one lies
/// there already.
std::optional<std::filesystem::path> ListWithoutBot(const SavePlan& plan,
                                                    const BotHome& home);

/// The other bots of a description that are not in it any more once the plan
/// has written over it, each in quotes; UTF-8, empty without any.
std::string BotsThatGo(const SavePlan& plan, const Bot& bot);

/// What is to be said of another bot of the same name, in the description that
/// the plan gives or in one beside it: where they are, and which of them the
/// game takes; UTF-8, empty without one.
std::string NameDescribedTwice(const SavePlan& plan, const Bot& bot);

/// A bot has what the description says of it that has its files and its name,
/// on disk or in its package; without a description of its own also what
/// another one says of its files. That is then a file of the bot.
void TakeListedIdentity(LoadedBot& loaded, const ModelCatalogue& models);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_DESCRIBED_BOTS_H_
