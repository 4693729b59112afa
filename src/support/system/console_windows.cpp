#ifdef _WIN32

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <initializer_list>
#include <iostream>

#include "support/system/console.h"

namespace fragsmith {

namespace {

/// The user's own; 0 without a console. A handler has no other way to it.
UINT code_page_before = 0;

/// The console is shared with those who started us and outlives us.
BOOL WINAPI Restore(DWORD /*event*/) {
  if (code_page_before != 0) ::SetConsoleOutputCP(code_page_before);
  return FALSE;
}

}  // namespace

Console::Console() {
  code_page_before = ::GetConsoleOutputCP();
  ::SetConsoleOutputCP(CP_UTF8);
  ::SetConsoleCtrlHandler(Restore, TRUE);
  // Line ends stay as they are written.
  for (const int stream : {1, 2}) ::_setmode(stream, _O_BINARY);
}

Console::~Console() {
  std::cout.flush();
  ::SetConsoleCtrlHandler(Restore, FALSE);
  Restore(CTRL_CLOSE_EVENT);
}

bool IsErrorTerminal() {
  constexpr int kStandardError = 2;
  return ::_isatty(kStandardError) != 0;
}

}  // namespace fragsmith

#endif  // _WIN32
