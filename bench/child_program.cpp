#include "bench/child_program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace fragsmith::bench {

bool RunProgram(std::vector<std::string> arguments) {
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  for (const int output : {STDOUT_FILENO, STDERR_FILENO}) {
    ::posix_spawn_file_actions_addopen(&actions, output, "/dev/null", O_WRONLY,
                                       0);
  }
  pid_t child = 0;
  const int failed = ::posix_spawnp(&child, pointers.front(), &actions, nullptr,
                                    pointers.data(), environ);
  ::posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  return failed == 0 && ::waitpid(child, &status, 0) == child &&
         WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace fragsmith::bench
