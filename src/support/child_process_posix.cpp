#ifndef _WIN32

#include <fcntl.h>
#include <spawn.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "support/child_process_system.h"

// Not every system declares it.
extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace fragsmith::system {
namespace {

/// Programs that outlived our interest. One that has ended stays a zombie
/// until it is waited for.
std::vector<std::intptr_t>& LeftAlone() {
  static std::vector<std::intptr_t> handles;
  return handles;
}

std::error_code AsError(int number) {
  return {number, std::generic_category()};
}

/// How the child begins: its standard streams shut, no signal blocked or
/// ignored because we do so.
class SpawnSettings {
 public:
  SpawnSettings() {
    ::posix_spawn_file_actions_init(&actions_);
    ::posix_spawnattr_init(&attributes_);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;
  ~SpawnSettings() {
    ::posix_spawnattr_destroy(&attributes_);
    ::posix_spawn_file_actions_destroy(&actions_);
  }

  int Prepare() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
      const int flags = stream == STDIN_FILENO ? O_RDONLY : O_WRONLY;
      const int failed = ::posix_spawn_file_actions_addopen(
          &actions_, stream, "/dev/null", flags, 0);
      if (failed != 0) return failed;
    }
    sigset_t none;
    sigset_t pipe;
    ::sigemptyset(&none);
    ::sigemptyset(&pipe);
    ::sigaddset(&pipe, SIGPIPE);
    ::posix_spawnattr_setsigmask(&attributes_, &none);
    ::posix_spawnattr_setsigdefault(&attributes_, &pipe);
    return ::posix_spawnattr_setflags(
        &attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }

  const posix_spawn_file_actions_t* actions() const { return &actions_; }
  const posix_spawnattr_t* attributes() const { return &attributes_; }

 private:
  posix_spawn_file_actions_t actions_{};
  posix_spawnattr_t attributes_{};
};

}  // namespace

std::error_code StartProcess(const std::filesystem::path& program,
                             const std::vector<std::string>& arguments,
                             std::intptr_t& handle) {
  std::erase_if(LeftAlone(),
                [](std::intptr_t left) { return !IsProcessRunning(left); });
  std::vector<std::string> texts = {program.string()};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);

  SpawnSettings settings;
  int failed = settings.Prepare();
  pid_t process = 0;
  if (failed == 0) {
    failed = ::posix_spawn(&process, program.c_str(), settings.actions(),
                           settings.attributes(), pointers.data(), environ);
  }
  if (failed != 0) return AsError(failed);
  handle = process;
  return {};
}

bool IsProcessRunning(std::intptr_t handle) {
  const auto process = static_cast<pid_t>(handle);
  pid_t ended = -1;
  do {
    ended = ::waitpid(process, nullptr, WNOHANG);
  } while (ended < 0 && errno == EINTR);
  return ended == 0;
}

void LeaveProcess(std::intptr_t handle) { LeftAlone().push_back(handle); }

}  // namespace fragsmith::system

#endif  // _WIN32
