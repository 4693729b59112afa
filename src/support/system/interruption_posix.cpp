#ifndef _WIN32

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>

#include "support/system/interruption.h"

namespace fragsmith {
namespace {

constexpr std::array kSignals = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE};

volatile std::sig_atomic_t first_signal = 0;

std::array<struct sigaction, kSignals.size()>& OldActions() {
  static std::array<struct sigaction, kSignals.size()> actions;
  return actions;
}

/// What is written to the second can be read from the first.
std::array<int, 2> wake_pipe = {-1, -1};

void Remember(int signal) {
  if (first_signal != 0) return;
  first_signal = signal;
  const int error = errno;
  // The pipe is there for those who wait; nobody has to.
  static_cast<void>(::write(wake_pipe.back(), "", 1) == 1);
  errno = error;
}

void OpenPipe() {
  if (::pipe(wake_pipe.data()) != 0) {
    wake_pipe = {-1, -1};
    return;
  }
  for (const int end : wake_pipe) ::fcntl(end, F_SETFD, FD_CLOEXEC);
}

void ClosePipe() {
  for (int& end : wake_pipe) {
    if (end >= 0) ::close(end);
    end = -1;
  }
}

}  // namespace

Interruption::Interruption() {
  first_signal = 0;
  OpenPipe();
  struct sigaction action = {};
  action.sa_handler = Remember;
  ::sigemptyset(&action.sa_mask);
  for (std::size_t at = 0; at < kSignals.size(); ++at) {
    struct sigaction& old = OldActions().at(at);
    ::sigaction(kSignals.at(at), nullptr, &old);
    // What was to be ignored, as under nohup, still is.
    if (old.sa_handler == SIG_IGN) continue;
    ::sigaction(kSignals.at(at), &action, nullptr);
  }
}

Interruption::~Interruption() {
  for (std::size_t at = 0; at < kSignals.size(); ++at) {
    ::sigaction(kSignals.at(at), &OldActions().at(at), nullptr);
  }
  ClosePipe();
  // With the old action back, the signal does what it does by itself; where it
  // cannot be raised there is nothing left to do.
  if (first_signal != 0) static_cast<void>(std::raise(first_signal));
}

bool Interruption::HasCome() { return first_signal != 0; }

int Interruption::descriptor() const { return wake_pipe.front(); }

}  // namespace fragsmith

#endif  // _WIN32
