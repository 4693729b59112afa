#ifndef _WIN32

#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>
#include <utility>

#include "support/system/child_process_system.h"

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

/// A pipe on which the child tells why it could not become the program; the
/// program itself has none of it.
class Report {
 public:
  Report() {
    if (::pipe(ends_.data()) != 0) ends_ = {-1, -1};
    for (int& end : ends_) {
      // Out of the way of the standard streams.
      const int raised = ::fcntl(end, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
      ::close(end);
      end = raised;
    }
  }
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;
  ~Report() { std::ranges::for_each(ends_, ::close); }

  bool is_open() const { return ends_[0] >= 0 && ends_[1] >= 0; }
  void Tell(int error) const {
    // Nobody is there to hear of a failure.
    (void)!::write(ends_[1], &error, sizeof error);
  }
  /// Waits until the child has become the program; 0 when it has.
  int Hear() {
    ::close(std::exchange(ends_[1], -1));
    int error = 0;
    ssize_t count = 0;
    do {
      count = ::read(ends_[0], &error, sizeof error);
    } while (count < 0 && errno == EINTR);
    return count == sizeof error ? error : 0;
  }

 private:
  std::array<int, 2> ends_ = {-1, -1};
};

/// Makes a copy of our process the program: its standard streams shut or led
/// into a file, no signal blocked or ignored because we do so. One whose output
/// we read is the first of a group, so that all that it starts ends with it.
/// Other threads may hold any lock here: system calls alone are safe.
[[noreturn]] void BecomeProgram(const char* program, char* const* arguments,
                                const char* output, pid_t parent,
                                const Report& report) {
  int flags = O_WRONLY;
  if (output != nullptr) {
    flags |= O_CREAT | O_TRUNC | O_APPEND;
    ::setpgid(0, 0);
#ifdef __linux__
    // Nobody would stop it if we were killed. The signal comes with the end of
    // the thread that started it, which is that of the program for all we
    // start.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
    if (::getppid() != parent) ::_exit(EXIT_FAILURE);
  }
  constexpr mode_t kOwnerOnly = 0600;
  const int in = ::open("/dev/null", O_RDONLY);
  const int out =
      ::open(output != nullptr ? output : "/dev/null", flags, kOwnerOnly);
  if (in >= 0 && out >= 0 && ::dup2(in, STDIN_FILENO) >= 0 &&
      ::dup2(out, STDOUT_FILENO) >= 0 && ::dup2(out, STDERR_FILENO) >= 0) {
    for (const int end : {in, out}) {
      if (end > STDERR_FILENO) ::close(end);
    }
    ::signal(SIGPIPE, SIG_DFL);
    sigset_t none;
    ::sigemptyset(&none);
    ::pthread_sigmask(SIG_SETMASK, &none, nullptr);
    ::execve(program, arguments, environ);
  }
  report.Tell(errno);
  ::_exit(EXIT_FAILURE);
}

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

  Report report;
  if (!report.is_open()) return AsError(errno);
  // No handler of ours is to run in the copy.
  sigset_t all;
  sigset_t before;
  ::sigfillset(&all);
  ::pthread_sigmask(SIG_SETMASK, &all, &before);
  const pid_t parent = ::getpid();
  const pid_t process = ::fork();
  if (process == 0) {
    BecomeProgram(program.c_str(), pointers.data(),
                  output.empty() ? nullptr : output.c_str(), parent, report);
  }
  int failed = process < 0 ? errno : 0;
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  if (process > 0) failed = report.Hear();
  if (failed == 0) {
    handle = process;
    return {};
  }
  if (process > 0) ::waitpid(process, nullptr, 0);
  return AsError(failed);
}

bool IsProcessRunning(std::intptr_t handle) {
  const auto process = static_cast<pid_t>(handle);
  siginfo_t end = {};
  const int failed = ::waitid(P_PID, static_cast<id_t>(process), &end,
                              WEXITED | WNOHANG | WNOWAIT);
  if (failed == 0 && end.si_pid == 0) return true;
  // Until it is waited for, no other group can have its number.
  EndProcess(handle);
  return false;
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
  ::kill(-process, SIGKILL);
  ::kill(process, SIGKILL);
  while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
  }
}

void LeaveProcess(std::intptr_t handle) { LeftAlone().push_back(handle); }

}  // namespace fragsmith::system

#endif  // _WIN32
