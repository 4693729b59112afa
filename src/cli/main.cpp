#include <exception>
#include <iostream>

#include "cli/command_line.h"
#include "cli/terminal.h"
#include "install/time_zone.h"
#include "support/program_arguments.h"

int main(int count, char** arguments) try {
  std::ios::sync_with_stdio(false);
  fragsmith::PrepareTerminal();
  fragsmith::PrepareTimeZone();
  return fragsmith::RunCommandLine(
      fragsmith::ProgramArguments(count, arguments), std::cin, std::cout,
      std::cerr);
} catch (const std::exception& failure) {
  std::cerr << "fragsmith-cli: " << failure.what() << '\n';
  return 1;
}
