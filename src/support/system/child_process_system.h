#ifndef FRAGSMITH_SUPPORT_SYSTEM_CHILD_PROCESS_SYSTEM_H_
#define FRAGSMITH_SUPPORT_SYSTEM_CHILD_PROCESS_SYSTEM_H_

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

/// What running a program needs of the operating system; one source file per
/// family of systems.
namespace fragsmith::system {

/// Starts the program with its streams shut, or with what it prints going to
/// the output file when there is a path of one; the handle is valid when there
/// is no error, and never 0.
std::error_code StartProcess(const std::filesystem::path& program,
                             const std::vector<std::string>& arguments,
                             const std::filesystem::path& output,
                             std::intptr_t& handle);

/// True while it runs. False clears away what the system kept of it; the
/// handle is not valid any more.
bool IsProcessRunning(std::intptr_t handle);

/// Returns when the process that runs has ended or the time is over, on some
/// systems earlier.
void WaitForProcess(std::intptr_t handle, std::chrono::milliseconds longest);

/// Lets a process that runs know that it is to end; false when there is no
/// way to.
bool AskProcessToEnd(std::intptr_t handle);

/// Ends a process that runs and waits for that; the handle is not valid any
/// more.
void EndProcess(std::intptr_t handle);

/// Gives up a handle whose process still runs.
void LeaveProcess(std::intptr_t handle);

}  // namespace fragsmith::system

#endif  // FRAGSMITH_SUPPORT_SYSTEM_CHILD_PROCESS_SYSTEM_H_
