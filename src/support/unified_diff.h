#ifndef FRAGSMITH_SUPPORT_UNIFIED_DIFF_H_
#define FRAGSMITH_SUPPORT_UNIFIED_DIFF_H_

#include <string>
#include <string_view>

namespace fragsmith {

/// In what two texts differ, line by line, in the form that git and patch read:
/// with a head that names the files, three lines around each change, and a mark
/// where the last line has no end. A line ends at LF; a CR before it is a part
/// of the line, as it is for them. Empty where the texts are the same.
std::string UnifiedDiff(std::string_view left, std::string_view right,
                        const std::string& left_name,
                        const std::string& right_name);

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_UNIFIED_DIFF_H_
