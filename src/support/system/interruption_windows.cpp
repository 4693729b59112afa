#ifdef _WIN32

#include <windows.h>

#include <atomic>

#include "support/system/interruption.h"

namespace fragsmith {
namespace {

std::atomic<bool> has_come = false;
std::atomic<bool> is_over = false;

BOOL WINAPI Remember(DWORD event) {
  has_come = true;
  if (event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT) return TRUE;
  // The console goes away: the program ends when this returns.
  constexpr int kPauses = 100;
  for (int count = 0; count < kPauses && !is_over; ++count) ::Sleep(40);
  return TRUE;
}

}  // namespace

Interruption::Interruption() {
  has_come = false;
  is_over = false;
  ::SetConsoleCtrlHandler(Remember, TRUE);
}

Interruption::~Interruption() {
  ::SetConsoleCtrlHandler(Remember, FALSE);
  is_over = true;
}

bool Interruption::HasCome() { return has_come; }

int Interruption::descriptor() const { return -1; }

}  // namespace fragsmith

#endif  // _WIN32
