#include "support/child_process.h"

#include <chrono>
#include <system_error>
#include <utility>

#include "support/files.h"
#include "support/localization.h"
#include "support/system/child_process_system.h"

namespace fragsmith {

Result<ChildProcess> ChildProcess::Start(
    const std::filesystem::path& program,
    const std::vector<std::string>& arguments) {
  return Start(program, arguments, {});
}

Result<ChildProcess> ChildProcess::Start(
    const std::filesystem::path& program,
    const std::vector<std::string>& arguments,
    const std::filesystem::path& output) {
  std::intptr_t handle = 0;
  const std::error_code reason =
      system::StartProcess(program, arguments, output, handle);
  if (!reason) return ChildProcess(handle);
  return Failure(
      {.what =
           Localized("The program cannot be started: %1.", {reason.message()}),
       .file = Utf8FromPath(program),
       .line = 0,
       .advice = Localized("Check that it is there and may be run.")});
}

ChildProcess::ChildProcess(ChildProcess&& other) noexcept
    : handle_(std::exchange(other.handle_, 0)) {}

ChildProcess::~ChildProcess() {
  if (IsRunning()) system::LeaveProcess(handle_);
}

bool ChildProcess::IsRunning() {
  if (handle_ != 0 && !system::IsProcessRunning(handle_)) handle_ = 0;
  return handle_ != 0;
}

void ChildProcess::Wait(std::chrono::milliseconds longest) {
  if (IsRunning()) system::WaitForProcess(handle_, longest);
}

void ChildProcess::End() {
  using std::chrono::steady_clock;
  if (!IsRunning()) return;
  const bool may_end = system::AskProcessToEnd(handle_);
  const auto end = steady_clock::now() + std::chrono::seconds(2);
  while (may_end && IsRunning() && steady_clock::now() < end) {
    Wait(std::chrono::milliseconds(50));
  }
  if (!IsRunning()) return;
  system::EndProcess(handle_);
  handle_ = 0;
}

}  // namespace fragsmith
