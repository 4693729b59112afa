#ifndef FRAGSMITH_SUPPORT_SYSTEM_CONSOLE_H_
#define FRAGSMITH_SUPPORT_SYSTEM_CONSOLE_H_

namespace fragsmith {

/// To be called first: what is printed is UTF-8, and the same bytes everywhere.
void PrepareConsole();

/// True when standard error is a terminal with somebody before it.
bool IsErrorTerminal();

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_SYSTEM_CONSOLE_H_
