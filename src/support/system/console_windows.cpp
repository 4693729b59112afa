#ifdef _WIN32

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <initializer_list>

#include "support/system/console.h"

namespace fragsmith {

void PrepareConsole() {
  ::SetConsoleOutputCP(CP_UTF8);
  // Line ends stay as they are written.
  for (const int stream : {1, 2}) ::_setmode(stream, _O_BINARY);
}

bool IsErrorTerminal() {
  constexpr int kStandardError = 2;
  return ::_isatty(kStandardError) != 0;
}

}  // namespace fragsmith

#endif  // _WIN32
