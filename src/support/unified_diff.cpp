#include "support/unified_diff.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace fragsmith {
namespace {

constexpr std::size_t kContext = 3;
/// Beyond so many differing lines the whole stretch is shown as replaced: to
/// look for common ones takes the square of their number.
constexpr std::size_t kMaxSteps = 2000;

using Lines = std::vector<std::string_view>;

/// With their ends.
Lines LinesOf(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::size_t length =
        end == std::string_view::npos ? text.size() : end + 1;
    lines.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return lines;
}

/// A line of the outcome: of both texts, or of one.
struct Edit {
  char mark;
  std::string_view line;
};

/// The shortest way from one row of lines to the other (Myers): by the number
/// of lines taken out or put in so far, how far each diagonal reaches.
class ShortestEdit {
 public:
  ShortestEdit(const Lines& left, const Lines& right)
      : left_(left),
        right_(right),
        rows_(static_cast<int>(left.size())),
        columns_(static_cast<int>(right.size())) {}

  std::vector<Edit> Find() {
    const int most = std::min(rows_ + columns_, static_cast<int>(kMaxSteps));
    std::vector<int> reach(static_cast<std::size_t>(2 * most + 3), 0);
    const auto at = [&reach, most](int diagonal) -> int& {
      const int index = diagonal + most + 1;
      return reach[static_cast<std::size_t>(index)];
    };
    for (int steps = 0; steps <= most; ++steps) {
      trace_.push_back(reach);
      for (int diagonal = -steps; diagonal <= steps; diagonal += 2) {
        int row = Start(at, diagonal, steps);
        int column = row - diagonal;
        while (row < rows_ && column < columns_ && IsSame(row, column)) {
          ++row;
          ++column;
        }
        at(diagonal) = row;
        if (row >= rows_ && column >= columns_) return Walk(steps, most);
      }
    }
    return Replaced();
  }

 private:
  bool IsSame(int row, int column) const {
    return left_[static_cast<std::size_t>(row)] ==
           right_[static_cast<std::size_t>(column)];
  }

  template <typename Reach>
  static bool GoesDown(const Reach& at, int diagonal, int steps) {
    return diagonal == -steps ||
           (diagonal != steps && at(diagonal - 1) < at(diagonal + 1));
  }

  template <typename Reach>
  static int Start(const Reach& at, int diagonal, int steps) {
    if (steps == 0) return 0;
    return GoesDown(at, diagonal, steps) ? at(diagonal + 1)
                                         : at(diagonal - 1) + 1;
  }

  /// Back from the end, by what each step knew.
  std::vector<Edit> Walk(int steps, int most) const {
    std::vector<Edit> edits;
    int row = rows_;
    int column = columns_;
    for (; steps >= 0; --steps) {
      const std::vector<int>& reach = trace_[static_cast<std::size_t>(steps)];
      const auto at = [&reach, most](int diagonal) {
        const int index = diagonal + most + 1;
        return reach[static_cast<std::size_t>(index)];
      };
      const int diagonal = row - column;
      const bool is_down = steps > 0 && GoesDown(at, diagonal, steps);
      const int start = Start(at, diagonal, steps);
      while (row > start && column > start - diagonal) {
        edits.push_back({' ', left_[static_cast<std::size_t>(--row)]});
        --column;
      }
      if (steps == 0) break;
      if (is_down) {
        edits.push_back({'+', right_[static_cast<std::size_t>(--column)]});
      } else {
        edits.push_back({'-', left_[static_cast<std::size_t>(--row)]});
      }
    }
    std::reverse(edits.begin(), edits.end());
    return edits;
  }

  std::vector<Edit> Replaced() const {
    std::vector<Edit> edits;
    for (const std::string_view line : left_) edits.push_back({'-', line});
    for (const std::string_view line : right_) edits.push_back({'+', line});
    return edits;
  }

  const Lines& left_;
  const Lines& right_;
  int rows_;
  int columns_;
  std::vector<std::vector<int>> trace_;
};

/// All lines of both texts; those at the ends that are the same cost nothing.
std::vector<Edit> EditsBetween(Lines left, Lines right) {
  std::size_t front = 0;
  const std::size_t shorter = std::min(left.size(), right.size());
  while (front < shorter && left[front] == right[front]) ++front;
  std::size_t back = 0;
  while (back < shorter - front &&
         left[left.size() - 1 - back] == right[right.size() - 1 - back]) {
    ++back;
  }
  std::vector<Edit> edits;
  for (std::size_t at = 0; at < front; ++at) edits.push_back({' ', left[at]});
  const Lines left_end(left.end() - static_cast<std::ptrdiff_t>(back),
                       left.end());
  const auto middle = [front, back](const Lines& lines) {
    return Lines(lines.begin() + static_cast<std::ptrdiff_t>(front),
                 lines.end() - static_cast<std::ptrdiff_t>(back));
  };
  left = middle(left);
  right = middle(right);
  const std::vector<Edit> between = ShortestEdit(left, right).Find();
  edits.insert(edits.end(), between.begin(), between.end());
  for (const std::string_view line : left_end) edits.push_back({' ', line});
  return edits;
}

/// "START,COUNT" of a hunk: lines count from 1, and where there are none the
/// start is the line before.
std::string RangeText(std::size_t before, std::size_t count) {
  std::string text = std::to_string(count == 0 ? before : before + 1);
  if (count != 1) text += ',' + std::to_string(count);
  return text;
}

/// Behind a name with blanks, what reads the file wants a TAB.
std::string NameLine(const char* mark, const std::string& name) {
  const bool has_blank = name.find(' ') != std::string::npos;
  return mark + name + (has_blank ? "\t\n" : "\n");
}

class HunkWriter {
 public:
  explicit HunkWriter(const std::vector<Edit>& edits) : edits_(edits) {}

  std::string Write() {
    std::size_t at = 0;
    while (at < edits_.size()) {
      if (edits_[at].mark == ' ') {
        Pass(at++);
        continue;
      }
      const std::size_t begin = at - std::min(at, kContext);
      WriteHunk(begin, at);
    }
    return text_;
  }

 private:
  void Pass(std::size_t at) {
    if (edits_[at].mark != '+') ++left_;
    if (edits_[at].mark != '-') ++right_;
  }

  /// From the context before the change to the one behind it; moves the place
  /// behind that.
  void WriteHunk(std::size_t begin, std::size_t& at) {
    std::size_t end = at;
    for (std::size_t index = at; index < edits_.size(); ++index) {
      if (edits_[index].mark != ' ') end = index + 1;
      if (index + 1 > end + 2 * kContext) break;
    }
    end = std::min(end + kContext, edits_.size());
    // The lines of the context before have been passed already.
    const std::size_t passed = at - begin;
    const std::size_t left = left_ - passed;
    const std::size_t right = right_ - passed;
    std::string body;
    for (std::size_t index = begin; index < end; ++index) {
      if (index >= at) Pass(index);
      body += edits_[index].mark;
      body += edits_[index].line;
      if (!edits_[index].line.ends_with('\n')) {
        body += "\n\\ No newline at end of file\n";
      }
    }
    text_ += "@@ -" + RangeText(left, left_ - left) + " +" +
             RangeText(right, right_ - right) + " @@\n" + body;
    at = end;
  }

  const std::vector<Edit>& edits_;
  std::string text_;
  std::size_t left_ = 0;
  std::size_t right_ = 0;
};

}  // namespace

std::string UnifiedDiff(std::string_view left, std::string_view right,
                        const std::string& left_name,
                        const std::string& right_name) {
  if (left == right) return {};
  const std::vector<Edit> edits = EditsBetween(LinesOf(left), LinesOf(right));
  return NameLine("--- ", left_name) + NameLine("+++ ", right_name) +
         HunkWriter(edits).Write();
}

}  // namespace fragsmith
