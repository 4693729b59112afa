#ifndef FRAGSMITH_BENCH_CHILD_PROGRAM_H_
#define FRAGSMITH_BENCH_CHILD_PROGRAM_H_

#include <optional>
#include <string>
#include <vector>

namespace fragsmith::bench {

/// Runs the program, looked up in PATH, and gives what it printed; nothing
/// when it cannot be run or fails.
std::optional<std::string> RunProgram(std::vector<std::string> arguments);

}  // namespace fragsmith::bench

#endif  // FRAGSMITH_BENCH_CHILD_PROGRAM_H_
