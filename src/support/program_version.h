#ifndef FRAGSMITH_SUPPORT_PROGRAM_VERSION_H_
#define FRAGSMITH_SUPPORT_PROGRAM_VERSION_H_

#include <string_view>

namespace fragsmith {

/// As the window shows it.
inline constexpr std::string_view kProgramVersion = "0.97b BETA";

/// Major, minor and revision, as the head of each bot file has them.
inline constexpr std::string_view kFileVersion = "0.97";

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_PROGRAM_VERSION_H_
