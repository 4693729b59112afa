#ifndef FRAGSMITH_INPLACE_LINE_STEPS_H_
#define FRAGSMITH_INPLACE_LINE_STEPS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace fragsmith {

/// What becomes of the lines of a chat type, in their order: an old line that
/// stays (both), is replaced (both, with another text), goes (no new one) or is
/// new.
struct LineStep {
  std::optional<std::size_t> old_line;
  std::optional<std::size_t> new_line;
};

/// The longest row of lines that both have stays.
std::vector<LineStep> StepsBetween(const std::vector<std::string>& old_lines,
                                   const std::vector<std::string>& new_lines);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_LINE_STEPS_H_
