#ifndef FRAGSMITH_SUPPORT_CHILD_PROCESS_SYSTEM_H_
#define FRAGSMITH_SUPPORT_CHILD_PROCESS_SYSTEM_H_

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

/// What running a program needs of the operating system; one source file per
/// family of systems.
namespace fragsmith::system {

/// Starts the program with its streams shut; the handle is valid when there
/// is no error, and never 0.
std::error_code StartProcess(const std::filesystem::path& program,
                             const std::vector<std::string>& arguments,
                             std::intptr_t& handle);

/// True while it runs. False clears away what the system kept of it; the
/// handle is not valid any more.
bool IsProcessRunning(std::intptr_t handle);

/// Gives up a handle whose process still runs.
void LeaveProcess(std::intptr_t handle);

}  // namespace fragsmith::system

#endif  // FRAGSMITH_SUPPORT_CHILD_PROCESS_SYSTEM_H_
