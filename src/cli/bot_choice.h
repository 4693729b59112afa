#ifndef FRAGSMITH_CLI_BOT_CHOICE_H_
#define FRAGSMITH_CLI_BOT_CHOICE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "checks/bot_on_disk.h"
#include "cli/bot_source.h"
#include "cli/command.h"
#include "game/given_files.h"

namespace fragsmith {

/// The bot that is meant among those of a source, by its index, or how the
/// program ends without one.
struct BotChoice {
  std::optional<std::size_t> index;
  ExitStatus refusal = kFailed;
  std::string listed_name = {};  ///< As in BotLocation.
  bool shares_files = false;     ///< With another bot of the descriptions.
};

/// The bot whose files are called so, or which the game adds by that name.
std::optional<std::size_t> FindName(const std::vector<std::string>& names,
                                    const std::string& wanted,
                                    const GivenFiles& given);

/// The bot of a description or of the list of bots that has these files, such
/// as one of several that share them.
std::optional<BotChoice> FindListed(const std::vector<std::string>& names,
                                    const std::string& wanted,
                                    const GivenFiles& given);

/// A bot that a description speaks of, though its character file is not there.
std::optional<ListedBot> FindUnfinished(const std::string& wanted,
                                        const GivenFiles& given);

/// The one of these bots that the options ask for; the user is told why there
/// is none.
BotChoice ChooseBot(const std::vector<std::string>& names,
                    const BotSource& options, const GivenFiles& given,
                    CommandContext& context);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_BOT_CHOICE_H_
