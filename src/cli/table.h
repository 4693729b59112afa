#ifndef FRAGSMITH_CLI_TABLE_H_
#define FRAGSMITH_CLI_TABLE_H_

#include <ostream>
#include <string>
#include <vector>

namespace fragsmith {

/// Rows of as many cells each (game text), in columns.
void PrintRows(const std::vector<std::vector<std::string>>& rows,
               std::ostream& out);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_TABLE_H_
