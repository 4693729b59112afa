#include "support/child_process.h"

#include <system_error>
#include <utility>

#include "support/child_process_system.h"
#include "support/files.h"

namespace fragsmith {

Result<ChildProcess> ChildProcess::Start(
    const std::filesystem::path& program,
    const std::vector<std::string>& arguments) {
  std::intptr_t handle = 0;
  const std::error_code reason =
      system::StartProcess(program, arguments, handle);
  if (!reason) return ChildProcess(handle);
  return Failure(
      {.what = "The program cannot be started: " + reason.message() + ".",
       .file = Utf8FromPath(program),
       .line = 0,
       .advice = "Check that it is there and may be run."});
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

}  // namespace fragsmith
