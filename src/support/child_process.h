#ifndef FRAGSMITH_SUPPORT_CHILD_PROCESS_H_
#define FRAGSMITH_SUPPORT_CHILD_PROCESS_H_

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "support/result.h"

namespace fragsmith {

/// A program that runs beside ours, without a shell and without any of our
/// input and output; where there are windows, minimised and without focus.
/// When this object goes away while the program still runs, the program is
/// left alone.
class ChildProcess {
 public:
  /// Each argument reaches the program as it is, in the bytes in which a
  /// setting or an argument of ours would hold it.
  static Result<ChildProcess> Start(const std::filesystem::path& program,
                                    const std::vector<std::string>& arguments);

  /// The same, but all that the program prints goes into a file, which is
  /// made anew, and where there are windows it gets none for it. Where the
  /// system has groups of programs, what it starts in turn ends with it, and
  /// Ctrl+C reaches us alone. Where the system can, it ends when we are killed;
  /// so it is started by a thread that lives as long as the program.
  static Result<ChildProcess> Start(const std::filesystem::path& program,
                                    const std::vector<std::string>& arguments,
                                    const std::filesystem::path& output);

  ChildProcess(ChildProcess&& other) noexcept;
  ChildProcess& operator=(ChildProcess&& other) = delete;
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ~ChildProcess();

  /// Returns at once. What the system kept of a program that has ended is
  /// cleared away.
  bool IsRunning();

  /// Waits for the end of the program, or for about so long.
  void Wait(std::chrono::milliseconds longest);

  /// Asks the program to end, where the system has a way to ask, and makes it
  /// end when it has not done so within two seconds. It has ended then.
  void End();

 private:
  explicit ChildProcess(std::intptr_t handle) : handle_(handle) {}

  /// A process number or a process handle; 0 when the program has ended.
  std::intptr_t handle_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_CHILD_PROCESS_H_
