#ifndef FRAGSMITH_CLI_TERMINAL_H_
#define FRAGSMITH_CLI_TERMINAL_H_

namespace fragsmith {

/// True when standard error is a terminal with somebody before it.
bool IsErrorTerminal();

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_TERMINAL_H_
