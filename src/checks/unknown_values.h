#ifndef FRAGSMITH_CHECKS_UNKNOWN_VALUES_H_
#define FRAGSMITH_CHECKS_UNKNOWN_VALUES_H_

#include <vector>

#include "checks/file_checks.h"
#include "checks/finding.h"
#include "model/bot.h"

namespace fragsmith {

/// Takes out what is said of a bot that was read from these files where the
/// game reads something else, or nothing: values of a level that the game
/// throws away or that another file gives, and all of a file with an error
/// among the findings of the files.
void DropUnknownValues(const BotFileSet& files, const IncludeLookup& game,
                       const std::vector<Finding>& in_files,
                       std::vector<Finding>& of_bot);

/// Files may give weights in another form than a bot here has them. They are
/// all 0 then, which says nothing of the files.
void DropUnreadWeights(const Bot& bot, std::vector<Finding>& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_UNKNOWN_VALUES_H_
