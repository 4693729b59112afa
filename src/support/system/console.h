#ifndef FRAGSMITH_SUPPORT_SYSTEM_CONSOLE_H_
#define FRAGSMITH_SUPPORT_SYSTEM_CONSOLE_H_

namespace fragsmith {

/// While there is one, what is printed is UTF-8, and the same bytes everywhere;
/// then the console is the user's again. To be made first.
class Console {
 public:
  Console();
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;
  // On Windows it does something.
  // NOLINTNEXTLINE(performance-trivially-destructible)
  ~Console();
};

/// True when standard error is a terminal with somebody before it.
bool IsErrorTerminal();

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_SYSTEM_CONSOLE_H_
