#ifndef FRAGSMITH_INSTALL_PACKAGES_UNZIP_COMMAND_H_
#define FRAGSMITH_INSTALL_PACKAGES_UNZIP_COMMAND_H_

#include <string>
#include <vector>

#include "support/result.h"

namespace fragsmith {

/// Arguments of the unzip tool, as its usage line shows them.
inline constexpr const char* kUnzipUsage =
    "usage: wzunzip -o PACKAGE FILE FOLDER";

/// What the unzip tool does: takes FILE out of PACKAGE and puts it into
/// FOLDER under its bare name, over an older one. FILE is looked for ignoring
/// case and with either slash, in the package's bytes or as the 8-bit text
/// that it stands for.
Result<void> RunUnzipCommand(const std::vector<std::string>& arguments);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PACKAGES_UNZIP_COMMAND_H_
