#ifndef _WIN32

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <thread>

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

/// How the child begins: its standard streams shut or led into a file, no
/// signal blocked or ignored because we do so.
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

  int Prepare(const std::filesystem::path& output) {
    constexpr mode_t kOwnerOnly = 0600;
    const char* const file = output.empty() ? "/dev/null" : output.c_str();
    const int flags =
        output.empty() ? O_WRONLY : O_WRONLY | O_CREAT | O_TRUNC | O_APPEND;
    int failed = ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO,
                                                    "/dev/null", O_RDONLY, 0);
    if (failed == 0) {
      failed = ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO,
                                                  file, flags, kOwnerOnly);
    }
    if (failed == 0) {
      failed = ::posix_spawn_file_actions_adddup2(&actions_, STDOUT_FILENO,
                                                  STDERR_FILENO);
    }
    if (failed != 0) return failed;
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
                             const std::filesystem::path& output,
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
  int failed = settings.Prepare(output);
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

void WaitForProcess(std::intptr_t handle, std::chrono::milliseconds longest) {
#ifdef SYS_pidfd_open
  const auto descriptor = static_cast<int>(
      ::syscall(SYS_pidfd_open, static_cast<pid_t>(handle), 0));
  if (descriptor >= 0) {
    pollfd end = {.fd = descriptor, .events = POLLIN, .revents = 0};
    ::poll(&end, 1, static_cast<int>(longest.count()));
    ::close(descriptor);
    return;
  }
#endif
  // Where nothing tells of the end, a short nap.
  constexpr std::chrono::milliseconds kNap(2);
  std::this_thread::sleep_for(std::min(kNap, longest));
}

bool AskProcessToEnd(std::intptr_t handle) {
  return ::kill(static_cast<pid_t>(handle), SIGTERM) == 0;
}

void EndProcess(std::intptr_t handle) {
  const auto process = static_cast<pid_t>(handle);
  ::kill(process, SIGKILL);
  while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
  }
}

void LeaveProcess(std::intptr_t handle) { LeftAlone().push_back(handle); }

}  // namespace fragsmith::system

#endif  // _WIN32
