#include "inplace/line_steps.h"

#include <algorithm>

namespace fragsmith {
namespace {

using Lines = std::vector<std::string>;

/// Pairs the lines of two stretches that have no line in common.
void PairUp(std::size_t old_begin, std::size_t old_end, std::size_t new_begin,
            std::size_t new_end, const Lines& new_lines,
            std::vector<LineStep>& steps) {
  // An empty line is written in no file.
  std::vector<std::size_t> wanted;
  for (std::size_t at = new_begin; at < new_end; ++at) {
    if (!new_lines[at].empty()) wanted.push_back(at);
  }
  std::size_t next = 0;
  for (std::size_t at = old_begin; at < old_end; ++at) {
    if (next < wanted.size()) {
      steps.push_back({at, wanted[next++]});
    } else {
      steps.push_back({at, std::nullopt});
    }
  }
  while (next < wanted.size()) steps.push_back({std::nullopt, wanted[next++]});
}

}  // namespace

std::vector<LineStep> StepsBetween(const Lines& old_lines,
                                   const Lines& new_lines) {
  std::size_t front = 0;
  const std::size_t shorter = std::min(old_lines.size(), new_lines.size());
  while (front < shorter && old_lines[front] == new_lines[front]) ++front;
  std::size_t back = 0;
  while (back < shorter - front && old_lines[old_lines.size() - 1 - back] ==
                                       new_lines[new_lines.size() - 1 - back]) {
    ++back;
  }
  const std::size_t old_end = old_lines.size() - back;
  const std::size_t new_end = new_lines.size() - back;
  const std::size_t rows = old_end - front;
  const std::size_t columns = new_end - front;

  std::vector<LineStep> steps;
  for (std::size_t at = 0; at < front; ++at) steps.push_back({at, at});
  std::size_t old_at = front;
  std::size_t new_at = front;
  constexpr std::size_t kMaxTable = 1'000'000;
  if ((rows + 1) * (columns + 1) <= kMaxTable) {
    // Lengths of the common rows of what is left.
    std::vector<std::size_t> common((rows + 1) * (columns + 1));
    const auto cell = [&](std::size_t row, std::size_t column) -> auto& {
      return common[row * (columns + 1) + column];
    };
    for (std::size_t row = rows; row-- > 0;) {
      for (std::size_t column = columns; column-- > 0;) {
        cell(row, column) =
            old_lines[front + row] == new_lines[front + column]
                ? cell(row + 1, column + 1) + 1
                : std::max(cell(row + 1, column), cell(row, column + 1));
      }
    }
    std::size_t row = 0;
    std::size_t column = 0;
    while (row < rows && column < columns) {
      if (old_lines[front + row] == new_lines[front + column]) {
        PairUp(old_at, front + row, new_at, front + column, new_lines, steps);
        steps.push_back({front + row, front + column});
        old_at = front + ++row;
        new_at = front + ++column;
      } else if (cell(row + 1, column) >= cell(row, column + 1)) {
        ++row;
      } else {
        ++column;
      }
    }
  }
  PairUp(old_at, old_end, new_at, new_end, new_lines, steps);
  for (std::size_t at = 0; at < back; ++at) {
    steps.push_back({old_end + at, new_end + at});
  }
  return steps;
}

}  // namespace fragsmith
