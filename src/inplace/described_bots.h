#ifndef FRAGSMITH_INPLACE_DESCRIBED_BOTS_H_
#define FRAGSMITH_INPLACE_DESCRIBED_BOTS_H_

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "model/bot.h"
#include "session/bot_origin.h"
#include "session/save_bot.h"

namespace fragsmith {

/// A list of bots holds others beside this one, and has another name.
bool IsList(const OriginFile& file);

/// True where a description holds the bot whose files are called so.
bool IsDescribed(std::string_view description, std::string_view called);

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

/// What is to be said of another description, beside the one that the plan
/// writes, that has the bot's name too: both, and which of them the game takes;
/// UTF-8, empty without one.
std::string NameDescribedTwice(const SavePlan& plan, const Bot& bot);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_DESCRIBED_BOTS_H_
