#include <cstdlib>
#include <exception>
#include <iostream>

#include "install/packages/unzip_command.h"
#include "support/result.h"
#include "support/system/program_arguments.h"
#include "support/system/time_zone.h"

int main(int count, char** arguments) try {
  fragsmith::PrepareTimeZone();
  const fragsmith::Result<void> done =
      fragsmith::RunUnzipCommand(fragsmith::ProgramArguments(count, arguments));
  if (done) return EXIT_SUCCESS;
  std::cerr << fragsmith::Describe(done.error()) << '\n';
  return EXIT_FAILURE;
} catch (const std::exception& failure) {
  std::cerr << failure.what() << '\n';
  return EXIT_FAILURE;
}
