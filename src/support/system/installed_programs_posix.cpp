#ifndef _WIN32

#include "support/system/installed_programs.h"

namespace fragsmith {

std::vector<InstalledProgram> InstalledPrograms() { return {}; }

}  // namespace fragsmith

#endif  // _WIN32
