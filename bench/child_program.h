#ifndef FRAGSMITH_BENCH_CHILD_PROGRAM_H_
#define FRAGSMITH_BENCH_CHILD_PROGRAM_H_

#include <string>
#include <vector>

namespace fragsmith::bench {

/// Runs the program, looked up in PATH, with its output thrown away, and
/// waits for it. True when its exit status was 0.
bool RunProgram(std::vector<std::string> arguments);

}  // namespace fragsmith::bench

#endif  // FRAGSMITH_BENCH_CHILD_PROGRAM_H_
