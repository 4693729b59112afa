#ifndef _WIN32

#include <unistd.h>

#include "support/system/console.h"

namespace fragsmith {

Console::Console() = default;
Console::~Console() = default;

bool IsErrorTerminal() { return ::isatty(STDERR_FILENO) != 0; }

}  // namespace fragsmith

#endif  // _WIN32
