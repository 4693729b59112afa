#ifndef _WIN32

#include "support/system/program_arguments.h"

namespace fragsmith {

std::vector<std::string> ProgramArguments(int count,
                                          const char* const* arguments) {
  // A caller may pass not even the name.
  if (count < 1) return {};
  return {arguments + 1, arguments + count};
}

}  // namespace fragsmith

#endif  // _WIN32
