#include <exception>
#include <iostream>

#include "cli/command_line.h"
#include "support/system/console.h"
#include "support/system/program_arguments.h"
#include "support/system/time_zone.h"

int main(int count, char** arguments) try {
  std::ios::sync_with_stdio(false);
  const fragsmith::Console console;
  fragsmith::PrepareTimeZone();
  return fragsmith::RunCommandLine(
      fragsmith::ProgramArguments(count, arguments), std::cin, std::cout,
      std::cerr);
} catch (const std::exception& failure) {
  std::cerr << "fragsmith-cli: " << failure.what() << '\n';
  return 1;
}
