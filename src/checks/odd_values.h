#ifndef FRAGSMITH_CHECKS_ODD_VALUES_H_
#define FRAGSMITH_CHECKS_ODD_VALUES_H_

#include <vector>

#include "checks/finding.h"
#include "model/bot.h"
#include "session/bot_origin.h"

namespace fragsmith {

/// A finding for each value that still stands in the bot as its load read it,
/// and not as the game does. Its mend puts the game's value in.
std::vector<Finding> OddValues(const Bot& bot, const LoadReport& report);

/// The files of the bot have other values than these, and so what is said of
/// them says that first. No mend sets one to anything but the game's value.
void TellOddValues(const Bot& bot, const LoadReport& report,
                   std::vector<Finding>& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_ODD_VALUES_H_
