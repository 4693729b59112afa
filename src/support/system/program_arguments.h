#ifndef FRAGSMITH_SUPPORT_SYSTEM_PROGRAM_ARGUMENTS_H_
#define FRAGSMITH_SUPPORT_SYSTEM_PROGRAM_ARGUMENTS_H_

#include <string>
#include <vector>

namespace fragsmith {

/// The arguments of this program behind its name, in bytes that PathFromBytes
/// understands: as they are, or as UTF-8 where the system has wide characters.
std::vector<std::string> ProgramArguments(int count,
                                          const char* const* arguments);

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_SYSTEM_PROGRAM_ARGUMENTS_H_
