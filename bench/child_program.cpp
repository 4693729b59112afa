#include "bench/child_program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace fragsmith::bench {
namespace {

std::string ReadToEnd(int pipe) {
  std::string bytes;
  std::array<char, 65536> piece;
  for (ssize_t read = 0;
       (read = ::read(pipe, piece.data(), piece.size())) > 0;) {
    bytes.append(piece.data(), static_cast<std::size_t>(read));
  }
  return bytes;
}

}  // namespace

std::optional<std::string> RunProgram(std::vector<std::string> arguments) {
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);

  std::array<int, 2> pipe{};
  if (::pipe2(pipe.data(), O_CLOEXEC) != 0) return std::nullopt;
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
  ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null",
                                     O_WRONLY, 0);
  pid_t child = 0;
  const int failed = ::posix_spawnp(&child, pointers.front(), &actions, nullptr,
                                    pointers.data(), environ);
  ::posix_spawn_file_actions_destroy(&actions);
  ::close(pipe[1]);
  std::string output = failed == 0 ? ReadToEnd(pipe[0]) : std::string();
  ::close(pipe[0]);
  int status = 0;
  if (failed != 0 || ::waitpid(child, &status, 0) != child ||
      !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    return std::nullopt;
  }
  return output;
}

}  // namespace fragsmith::bench
