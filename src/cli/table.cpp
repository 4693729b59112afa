#include "cli/table.h"

#include <algorithm>
#include <cstddef>

#include "cli/terminal.h"
#include "support/code_page.h"

namespace fragsmith {

void PrintRows(const std::vector<std::vector<std::string>>& rows,
               std::ostream& out) {
  for (const std::vector<std::string>& row : rows) {
    std::string line;
    for (std::size_t column = 0; column < row.size(); ++column) {
      std::size_t width = 0;
      for (const auto& other : rows) {
        width = std::max(width, other[column].size());
      }
      line += row[column];
      if (column + 1 < row.size()) {
        line.append(width - row[column].size() + 2, ' ');
      }
    }
    out << Printable(Utf8FromGameText(line)) << '\n';
  }
}

}  // namespace fragsmith
