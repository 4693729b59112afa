#include "cli/terminal.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace fragsmith {

bool IsErrorTerminal() {
  constexpr int kStandardError = 2;
#ifdef _WIN32
  return ::_isatty(kStandardError) != 0;
#else
  return ::isatty(kStandardError) != 0;
#endif
}

}  // namespace fragsmith
