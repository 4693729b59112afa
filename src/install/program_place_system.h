#ifndef FRAGSMITH_INSTALL_PROGRAM_PLACE_SYSTEM_H_
#define FRAGSMITH_INSTALL_PROGRAM_PLACE_SYSTEM_H_

#include <filesystem>

/// What only the operating system knows; one source file per family of
/// systems. Empty paths stand for no answer.
namespace fragsmith::system {

std::filesystem::path ExecutablePath();

/// The user's settings of all programs.
std::filesystem::path ConfigurationFolder();

bool IsWritableFolder(const std::filesystem::path& path);

}  // namespace fragsmith::system

#endif  // FRAGSMITH_INSTALL_PROGRAM_PLACE_SYSTEM_H_
