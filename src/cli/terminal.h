#ifndef FRAGSMITH_CLI_TERMINAL_H_
#define FRAGSMITH_CLI_TERMINAL_H_

#include <string>
#include <string_view>

namespace fragsmith {

/// The text (UTF-8) with its control characters but TABs replaced by U+FFFD: a
/// name out of a file must not command the terminal that shows it.
std::string Printable(std::string_view utf8);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_TERMINAL_H_
