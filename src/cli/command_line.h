#ifndef FRAGSMITH_CLI_COMMAND_LINE_H_
#define FRAGSMITH_CLI_COMMAND_LINE_H_

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace fragsmith {

/// The whole command line program, given its arguments without its name; gives
/// its exit status: 0 done, 1 refused or failed, 2 wrong usage; 3 for a check
/// with warnings alone.
int RunCommandLine(std::vector<std::string> arguments, std::istream& in,
                   std::ostream& out, std::ostream& err);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_COMMAND_LINE_H_
