#ifndef FRAGSMITH_INSTALL_PROGRAM_GONE_PACKAGES_H_
#define FRAGSMITH_INSTALL_PROGRAM_GONE_PACKAGES_H_

#include <filesystem>
#include <set>
#include <string>

#include "install/program/base_scan.h"

namespace fragsmith {

/// The packages in which a scan found something, as the lists name them, that
/// the game's folder has no more. None when its packages cannot be looked at,
/// as when it lies on a disk that is not there.
std::set<std::string> GonePackages(const std::filesystem::path& gameFolder,
                                   const BaseLists& lists);

/// Takes what a scan found in these packages out of both lists.
void DropPackages(const std::set<std::string>& packages, BaseLists& lists);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_GONE_PACKAGES_H_
